// The datagrams of NAT-PMP (RFC 6886). Answers come from outside.
#pragma once

#include <chrono>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "platform_qt/os/ipv4.h"

namespace verlume::qt {

enum class NatPmpOperation : std::uint8_t {
  OuterAddress = 0,
  MapTcpPort = 2,
};

std::string NatPmpAddressQuestion();
// A lifetime of 0 gives the port back; then `outerPort` is 0, too.
std::string NatPmpPortQuestion(std::uint16_t port, std::uint16_t outerPort,
                               std::chrono::seconds lifetime);

enum class NatPmpOutcome { Done, Refused, Silent, Nonsense };

struct NatPmpAnswer {
  NatPmpOutcome outcome = NatPmpOutcome::Silent;
  std::uint16_t resultCode = 0;  // of every answer; when Refused it says why
  Ipv4 outerAddress = kNoIpv4;   // of OuterAddress, when Done
  std::uint16_t port = 0;        // the rest of MapTcpPort, when Done
  std::uint16_t outerPort = 0;
  std::chrono::seconds lifetime{0};
};

// Never Silent. Nothing if it answers another question: one that was asked before, and it comes
// late.
std::optional<NatPmpAnswer> ReadNatPmpAnswer(std::string_view bytes, NatPmpOperation wanted);

}  // namespace verlume::qt
