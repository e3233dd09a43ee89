#include "platform_qt/router/ssdp_search.h"

#include <arpa/inet.h>
#include <poll.h>
#include <sys/socket.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <chrono>
#include <string>

#include "platform_qt/network/descriptor.h"
#include "platform_qt/network/ipv4.h"
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

Descriptor OpenSsdp(in_addr_t local) {
  Descriptor socket(::socket(AF_INET, SOCK_DGRAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0));
  const sockaddr_in from = SocketAddress(local, 0);
  const in_addr interface { local };
  const int hops = 2;
  const int number = socket.Number();
  ::setsockopt(number, IPPROTO_IP, IP_MULTICAST_IF, &interface, sizeof interface);
  ::setsockopt(number, IPPROTO_IP, IP_MULTICAST_TTL, &hops, sizeof hops);
  const bool isBound = ::bind(number, reinterpret_cast<const sockaddr*>(&from), sizeof from) == 0;
  return isBound ? std::move(socket) : Descriptor();
}

// To the group, as is usual, and to the gateway: firewalls let only its answer to that through.
void SendQuestions(int socket, in_addr_t gateway) {
  for (const in_addr_t receiver : {in_addr_t{htonl(0xEFFFFFFA)}, gateway}) {
    const sockaddr_in to = SocketAddress(receiver, kSsdpPort);
    const std::string host = Ipv4Text(receiver) + ":" + std::to_string(kSsdpPort);
    for (const char* target : kTargets) {
      const std::string question = SsdpQuestion(host, target);
      ::sendto(socket, question.data(), question.size(), 0, reinterpret_cast<const sockaddr*>(&to),
               sizeof to);
    }
  }
}

// Reads what is there of the gateway's answers.
void ReadAnswers(int socket, in_addr_t gateway, SsdpFindings& findings) {
  // Between two of these it is looked at whether the time is up.
  constexpr int kMostAtOnce = 100;
  std::array<char, 2048> bytes{};
  for (int i = 0; i < kMostAtOnce; ++i) {
    sockaddr_in sender{};
    socklen_t length = sizeof sender;
    const ssize_t size = ::recvfrom(socket, bytes.data(), bytes.size(), 0,
                                    reinterpret_cast<sockaddr*>(&sender), &length);
    if (size < 0 && errno == EAGAIN) return;
    if (size < 0 || sender.sin_addr.s_addr != gateway) continue;
    const auto answer = ReadSsdpAnswer({bytes.data(), static_cast<std::size_t>(size)}, gateway);
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

SsdpFindings SearchGateway(in_addr_t gateway, in_addr_t local, const WaitLimit& limit) {
  using namespace std::chrono_literals;
  SsdpFindings findings;
  const Descriptor socket = OpenSsdp(local);
  if (!socket.IsOpen()) return findings;
  // Twice, because a datagram may be lost. Routers answer within a second.
  for (const auto time : {800ms, 1700ms}) {
    SendQuestions(socket.Number(), gateway);
    const WaitLimit part = limit.Within(time);
    while (findings.locations.empty() && part.Await(socket.Number(), POLLIN)) {
      ReadAnswers(socket.Number(), gateway, findings);
    }
    if (findings.hasAnswered) break;
  }
  // A router has several descriptions at times: they come together.
  const WaitLimit rest = limit.Within(200ms);
  while (!findings.locations.empty() && rest.Await(socket.Number(), POLLIN)) {
    ReadAnswers(socket.Number(), gateway, findings);
  }
  return findings;
}

}  // namespace verlume::qt
