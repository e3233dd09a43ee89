// Asks routers by NAT-PMP (RFC 6886).
#pragma once

#include <optional>

#include "platform_qt/os/ipv4.h"
#include "platform_qt/router/port_asker.h"

namespace verlume::qt {

class NatPmpAsker : public PortAsker {
 public:
  PortAnswer Map(std::uint16_t port, std::chrono::seconds lease, const WaitLimit& limit) override;
  RouterReport AskAddress(const WaitLimit& limit) override;
  void GiveBack(const WaitLimit& limit) override;

 private:
  struct Claim {
    Ipv4 gateway = kNoIpv4;
    std::uint16_t port = 0;
    std::uint16_t outerPort = 0;  // what was granted, or wanted
  };
  PortAnswer MapAt(Ipv4 gateway, std::uint16_t port, std::chrono::seconds lease,
                   const WaitLimit& limit);

  std::optional<Claim> claim_;
};

}  // namespace verlume::qt
