#include "platform_qt/router/nat_pmp_talk.h"

#include <array>
#include <optional>
#include <string_view>
#include <utility>

namespace verlume::qt {
namespace {

constexpr std::chrono::milliseconds kFirstPatience{250};  // before it is asked again; then doubled
constexpr std::chrono::milliseconds kLongest{3700};

OpenSocket ConnectTo(Ipv4 gateway) {
  constexpr std::uint16_t kPort = 5351;
  OpenSocket socket = OpenSocket::Datagrams();
  const bool isConnected = socket.IsOpen() && socket.Connect({gateway, kPort}) == SocketStep::Done;
  return isConnected ? std::move(socket) : OpenSocket();
}

// What came until the limit, or nothing. `isNonsense` becomes true if something came that is no
// answer; it may not be the gateway's, so that more is waited for.
std::optional<NatPmpAnswer> AwaitAnswer(const OpenSocket& socket, NatPmpOperation operation,
                                        const WaitLimit& limit, bool& isNonsense) {
  std::array<char, 64> bytes{};
  while (limit.Await(socket.Number(), Readiness::Read)) {
    const SocketBytes came = socket.Receive(bytes);
    if (came.step == SocketStep::Later) continue;
    if (came.step == SocketStep::Failed) return NatPmpAnswer();  // nobody listens there
    const auto answer = ReadNatPmpAnswer(std::string_view(bytes.data(), came.size), operation);
    if (!answer) continue;
    if (answer->outcome != NatPmpOutcome::Nonsense) return answer;
    isNonsense = true;
  }
  return std::nullopt;
}

}  // namespace

NatPmpTalk::NatPmpTalk(Ipv4 gateway) : socket_(ConnectTo(gateway)) {}

NatPmpAnswer NatPmpTalk::AskAddress(const WaitLimit& limit) const {
  return Ask(NatPmpAddressQuestion(), NatPmpOperation::OuterAddress, limit);
}

NatPmpAnswer NatPmpTalk::AskForPort(std::uint16_t port, std::uint16_t outerPort,
                                    std::chrono::seconds lifetime, const WaitLimit& limit) const {
  return Ask(NatPmpPortQuestion(port, outerPort, lifetime), NatPmpOperation::MapTcpPort, limit);
}

NatPmpAnswer NatPmpTalk::Ask(const std::string& question, NatPmpOperation operation,
                             const WaitLimit& limit) const {
  if (!socket_.IsOpen()) return {};
  const WaitLimit whole = limit.Within(kLongest);
  bool isNonsense = false;
  for (auto patience = kFirstPatience; !whole.IsOver(); patience *= 2) {
    socket_.Send(question);
    const auto answer = AwaitAnswer(socket_, operation, whole.Within(patience), isNonsense);
    if (answer) return *answer;
  }
  NatPmpAnswer none;
  if (isNonsense) none.outcome = NatPmpOutcome::Nonsense;
  return none;
}

}  // namespace verlume::qt
