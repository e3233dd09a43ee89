#include "platform_qt/router/nat_pmp_talk.h"

#include <poll.h>
#include <sys/socket.h>

#include <algorithm>
#include <array>

namespace verlume::qt {
namespace {

constexpr std::size_t kAddressSize = 12;  // bytes of an answer
constexpr std::size_t kPortSize = 16;
constexpr std::size_t kRefusalSize = 8;

bool IsRefusal(int result) {
  switch (result) {
    case NATPMP_ERR_UNSUPPORTEDVERSION:
    case NATPMP_ERR_UNSUPPORTEDOPCODE:
    case NATPMP_ERR_UNDEFINEDERROR:
    case NATPMP_ERR_NOTAUTHORIZED:
    case NATPMP_ERR_NETWORKFAILURE:
    case NATPMP_ERR_OUTOFRESOURCES:
      return true;
    default:
      return false;
  }
}

}  // namespace

NatPmpTalk::NatPmpTalk(in_addr_t gateway) : isOpen_(::initnatpmp(&state_, 1, gateway) == 0) {}

NatPmpTalk::~NatPmpTalk() {
  if (isOpen_) ::closenatpmp(&state_);
}

NatPmpAnswer NatPmpTalk::AskAddress(const WaitLimit& limit) {
  if (!isOpen_) return {};
  ::sendpublicaddressrequest(&state_);
  return ReadAnswer(NATPMP_RESPTYPE_PUBLICADDRESS, kAddressSize, limit);
}

NatPmpAnswer NatPmpTalk::AskForPort(std::uint16_t port, std::uint16_t outerPort,
                                    std::chrono::seconds lifetime, const WaitLimit& limit) {
  if (!isOpen_) return {};
  ::sendnewportmappingrequest(&state_, NATPMP_PROTOCOL_TCP, port, outerPort,
                              static_cast<std::uint32_t>(lifetime.count()));
  return ReadAnswer(NATPMP_RESPTYPE_TCPPORTMAPPING, kPortSize, limit);
}

// The library reads an answer of any length as if it were whole, and one to another question as if
// it were wanted: so it is looked at before.
bool NatPmpTalk::HasWantedAnswer(std::uint16_t type, std::size_t size, bool& isNonsense) const {
  std::array<unsigned char, 64> bytes{};
  const ssize_t got =
      ::recv(state_.s, bytes.data(), bytes.size(), MSG_PEEK | MSG_TRUNC | MSG_DONTWAIT);
  if (got < 0) return true;  // the library sees why
  constexpr unsigned char kAnswer = 128;
  const auto length = static_cast<std::size_t>(got);
  const bool isNatPmp = length >= kRefusalSize && bytes[0] == 0;
  const bool isRefused =
      length >= kRefusalSize && (bytes[0] != 0 || bytes[2] != 0 || bytes[3] != 0);
  if (isRefused) return true;
  if (isNatPmp && bytes[1] == (kAnswer | type) && length >= size) return true;
  // An answer to an earlier question has come late.
  const bool isLate = isNatPmp && (bytes[1] & kAnswer) != 0 && bytes[1] != (kAnswer | type);
  isNonsense |= !isLate;
  return false;
}

NatPmpAnswer NatPmpTalk::ReadAnswer(std::uint16_t type, std::size_t size, const WaitLimit& limit) {
  // The library asks again after 250 ms, 500 ms, 1 s and so on.
  constexpr std::chrono::milliseconds kLongest{3700};
  const WaitLimit whole = limit.Within(kLongest);
  bool isNonsense = false;
  while (!whole.IsOver()) {
    timeval untilRetry{};
    ::getnatpmprequesttimeout(&state_, &untilRetry);
    const auto wait =
        std::chrono::milliseconds(untilRetry.tv_sec * 1000 + untilRetry.tv_usec / 1000 + 1);
    const bool hasCome =
        whole.Within(std::max(wait, std::chrono::milliseconds(1))).Await(state_.s, POLLIN);
    if (hasCome && !HasWantedAnswer(type, size, isNonsense)) {
      char byte = 0;
      ::recv(state_.s, &byte, sizeof byte, MSG_DONTWAIT);
      continue;
    }
    NatPmpAnswer answer;
    const int result = ::readnatpmpresponseorretry(&state_, &answer.response);
    if (result == NATPMP_TRYAGAIN) continue;
    if (result == 0) answer.outcome = NatPmpOutcome::Done;
    if (IsRefusal(result)) answer.outcome = NatPmpOutcome::Refused;
    return answer;
  }
  return {isNonsense ? NatPmpOutcome::Nonsense : NatPmpOutcome::Silent, {}};
}

}  // namespace verlume::qt
