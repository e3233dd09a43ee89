#include "router/nat_pmp_router.h"

#include <arpa/inet.h>
#include <netinet/in.h>
#include <sys/socket.h>

#include <algorithm>
#include <array>
#include <utility>

namespace verlume::router {
namespace {

std::string Bytes16(std::uint16_t number) {
  return {static_cast<char>(number >> 8), static_cast<char>(number)};
}

std::string Bytes32(std::uint32_t number) {
  return Bytes16(static_cast<std::uint16_t>(number >> 16)) +
         Bytes16(static_cast<std::uint16_t>(number));
}

std::uint32_t Number(const std::string& bytes, std::size_t at, std::size_t size) {
  std::uint32_t number = 0;
  for (std::size_t i = at; i < at + size; ++i) {
    number = number << 8 | static_cast<unsigned char>(bytes[i]);
  }
  return number;
}

}  // namespace

NatPmpRouter::NatPmpRouter(const Home& home, NatPmpManner manner)
    : manner_(std::move(manner)),
      server_(home, SOCK_DGRAM, manner_.address, 5351, [this](int socket) { Serve(socket); }) {}

std::map<std::uint16_t, NatPmpRouter::Mapping> NatPmpRouter::Mappings() const {
  const std::lock_guard lock(mutex_);
  return mappings_;
}

int NatPmpRouter::TimesAskedForPort() const {
  const std::lock_guard lock(mutex_);
  return timesAskedForPort_;
}

void NatPmpRouter::Serve(int socket) {
  std::array<char, 64> bytes{};
  sockaddr_in sender{};
  socklen_t length = sizeof sender;
  const ssize_t size = ::recvfrom(socket, bytes.data(), bytes.size(), 0,
                                  reinterpret_cast<sockaddr*>(&sender), &length);
  if (size < 2) return;
  const auto answer = Answer({bytes.data(), static_cast<std::size_t>(size)});
  for (int i = 0; answer && i < manner_.times; ++i) {
    ::sendto(socket, answer->data(), answer->size(), 0, reinterpret_cast<sockaddr*>(&sender),
             length);
  }
}

std::optional<std::string> NatPmpRouter::Answer(const std::string& question) {
  constexpr std::size_t kPortQuestion = 12;
  if (manner_.answer) return manner_.answer(question);
  if (question.size() >= kPortQuestion) return AnswerForPort(question);
  in_addr outer{};
  ::inet_pton(AF_INET, manner_.outerAddress.c_str(), &outer);
  return std::string({0, static_cast<char>(128)}) + Bytes16(0) + Bytes32(1) +
         Bytes32(ntohl(outer.s_addr));
}

// Version, operation, 2 bytes reserved, inner port, outer port, lifetime.
std::string NatPmpRouter::AnswerForPort(const std::string& question) {
  const std::lock_guard lock(mutex_);
  ++timesAskedForPort_;
  const auto port = static_cast<std::uint16_t>(Number(question, 4, 2));
  const auto wanted = static_cast<std::uint16_t>(Number(question, 6, 2));
  const std::uint32_t lease = std::min(Number(question, 8, 4), manner_.longestLease);
  const std::uint16_t outerPort = manner_.outerPort != 0 ? manner_.outerPort : wanted;
  if (lease == 0) {
    mappings_.erase(port);
  } else if (manner_.result == 0) {
    mappings_[port] = {outerPort, lease};
  }
  return std::string({0, static_cast<char>(question[1] + 128)}) + Bytes16(manner_.result) +
         Bytes32(1) + Bytes16(port) + Bytes16(lease == 0 ? 0 : outerPort) + Bytes32(lease);
}

}  // namespace verlume::router
