#include "platform_qt/router/ssdp_search.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <string>
#include <utility>

#include "platform_qt/os/open_socket.h"
#include "platform_qt/router/ssdp_answer.h"

namespace verlume::qt {
namespace {

constexpr std::uint16_t kSsdpPort = 1900;
constexpr std::array<const char*, 4> kTargets = {
    "urn:schemas-upnp-org:device:InternetGatewayDevice:1",
    "urn:schemas-upnp-org:device:InternetGatewayDevice:2",
    "urn:schemas-upnp-org:service:WANIPConnection:1",
    "urn:schemas-upnp-org:service:WANPPPConnection:1",
};

OpenSocket OpenSsdp(Ipv4 local) {
  constexpr int kHops = 2;
  OpenSocket socket = OpenSocket::Datagrams();
  if (!socket.IsOpen()) return socket;
  socket.AskGroupsFrom(local, kHops);
  return socket.Bind({local, 0}) ? std::move(socket) : OpenSocket();
}

// To the group, as is usual, and to the gateway: firewalls let only its answer to that through.
void SendQuestions(const OpenSocket& socket, Ipv4 gateway) {
  for (const Ipv4 receiver : {*ParseIpv4("239.255.255.250"), gateway}) {
    const std::string host = Ipv4Text(receiver) + ":" + std::to_string(kSsdpPort);
    for (const char* target : kTargets) {
      socket.SendTo(SsdpQuestion(host, target), {receiver, kSsdpPort});
    }
  }
}

// Reads what is there of the gateway's answers.
void ReadAnswers(const OpenSocket& socket, Ipv4 gateway, SsdpFindings& findings) {
  // Between two of these it is looked at whether the time is up.
  constexpr int kMostAtOnce = 100;
  std::array<char, 2048> bytes{};
  for (int i = 0; i < kMostAtOnce; ++i) {
    Ipv4Place sender;
    const SocketBytes came = socket.ReceiveFrom(bytes, sender);
    if (came.step == SocketStep::Later) return;
    if (came.step == SocketStep::Failed || sender.address != gateway) continue;
    const auto answer = ReadSsdpAnswer({bytes.data(), came.size}, gateway);
    if (answer && !answer->isOfRouter) continue;
    findings.hasAnswered = true;
    if (!answer || !answer->location || findings.locations.size() == kMostLocations) continue;
    auto& known = findings.locations;
    if (std::count(known.begin(), known.end(), *answer->location) == 0) {
      known.push_back(*answer->location);
    }
  }
}

}  // namespace

SsdpFindings SearchGateway(Ipv4 gateway, Ipv4 local, const WaitLimit& limit) {
  using namespace std::chrono_literals;
  SsdpFindings findings;
  const OpenSocket socket = OpenSsdp(local);
  if (!socket.IsOpen()) return findings;
  // Twice, because a datagram may be lost. Routers answer within a second.
  for (const auto time : {800ms, 1700ms}) {
    SendQuestions(socket, gateway);
    const WaitLimit part = limit.Within(time);
    while (findings.locations.empty() && part.Await(socket.Number(), Readiness::Read)) {
      ReadAnswers(socket, gateway, findings);
    }
    if (findings.hasAnswered) break;
  }
  // A router has several descriptions at times: they come together.
  const WaitLimit rest = limit.Within(200ms);
  while (!findings.locations.empty() && rest.Await(socket.Number(), Readiness::Read)) {
    ReadAnswers(socket, gateway, findings);
  }
  return findings;
}

}  // namespace verlume::qt
