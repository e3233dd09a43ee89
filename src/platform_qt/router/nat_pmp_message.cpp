#include "platform_qt/router/nat_pmp_message.h"

#include <array>
#include <bit>

namespace verlume::qt {
namespace {

constexpr char kVersion = 0;
constexpr unsigned kAnswer = 128;  // added to the operation
// Version, operation, result code (2 bytes), seconds since the router was started (4), and then the
// address (4) or the port, the outer port (2 each) and the lifetime (4).
constexpr std::size_t kAnswerSize = 12;
constexpr std::size_t kPortAnswerSize = 16;
constexpr std::size_t kRefusalSize = 8;

std::string Bytes16(std::uint16_t number) {
  return {static_cast<char>(number >> 8), static_cast<char>(number)};
}

std::string Bytes32(std::uint32_t number) {
  return Bytes16(static_cast<std::uint16_t>(number >> 16)) +
         Bytes16(static_cast<std::uint16_t>(number));
}

unsigned ByteAt(std::string_view bytes, std::size_t place) {
  return static_cast<unsigned char>(bytes[place]);
}

std::uint16_t Number16(std::string_view bytes, std::size_t place) {
  return static_cast<std::uint16_t>(ByteAt(bytes, place) << 8 | ByteAt(bytes, place + 1));
}

std::uint32_t Number32(std::string_view bytes, std::size_t place) {
  return std::uint32_t{Number16(bytes, place)} << 16 | Number16(bytes, place + 2);
}

Ipv4 AddressAt(std::string_view bytes, std::size_t place) {
  std::array<char, 4> address{};
  bytes.copy(address.data(), address.size(), place);
  return std::bit_cast<Ipv4>(address);
}

}  // namespace

std::string NatPmpAddressQuestion() {
  return {kVersion, static_cast<char>(NatPmpOperation::OuterAddress)};
}

std::string NatPmpPortQuestion(std::uint16_t port, std::uint16_t outerPort,
                               std::chrono::seconds lifetime) {
  constexpr std::uint16_t kReserved = 0;
  return std::string{kVersion, static_cast<char>(NatPmpOperation::MapTcpPort)} +
         Bytes16(kReserved) + Bytes16(port) + Bytes16(outerPort) +
         Bytes32(static_cast<std::uint32_t>(lifetime.count()));
}

// A router that knows another version refuses in its own, with an operation of its own.
std::optional<NatPmpAnswer> ReadNatPmpAnswer(std::string_view bytes, NatPmpOperation wanted) {
  NatPmpAnswer answer;
  answer.outcome = NatPmpOutcome::Nonsense;
  if (bytes.size() < kRefusalSize) return answer;
  const bool isOfPort = wanted == NatPmpOperation::MapTcpPort;
  const unsigned operation = ByteAt(bytes, 1);
  answer.resultCode = Number16(bytes, 2);
  if (bytes[0] != kVersion || answer.resultCode != 0) {
    answer.outcome = NatPmpOutcome::Refused;
    return answer;
  }
  if (operation < kAnswer) return answer;
  if (operation != (kAnswer | static_cast<unsigned>(wanted))) return std::nullopt;
  if (bytes.size() < (isOfPort ? kPortAnswerSize : kAnswerSize)) return answer;
  answer.outcome = NatPmpOutcome::Done;
  if (isOfPort) {
    answer.port = Number16(bytes, 8);
    answer.outerPort = Number16(bytes, 10);
    answer.lifetime = std::chrono::seconds(Number32(bytes, 12));
  } else {
    answer.outerAddress = AddressAt(bytes, 8);
  }
  return answer;
}

}  // namespace verlume::qt
