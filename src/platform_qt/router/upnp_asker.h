// Asks routers by UPnP (Internet Gateway Device).
#pragma once

#include <optional>
#include <vector>

#include "platform_qt/router/igd_control.h"
#include "platform_qt/router/near_gateways.h"
#include "platform_qt/router/port_asker.h"

namespace verlume::qt {

class UpnpAsker : public PortAsker {
 public:
  PortAnswer Map(std::uint16_t port, std::chrono::seconds lease, const WaitLimit& limit) override;
  RouterReport AskAddress(const WaitLimit& limit) override;
  void GiveBack(const WaitLimit& limit) override;

 private:
  // A service, and what it says its outer address is.
  struct Candidate {
    IgdService service;
    IgdAnswer address;
  };
  struct Look {
    bool hasAnswered = false;
    std::optional<Candidate> candidate;
  };
  static Look LookAt(const Gateway& gateway, const WaitLimit& limit);
  static RouterReport AddressReport(const Candidate& candidate);
  PortAnswer MapAt(const Candidate& candidate, const IgdMapping& mapping,
                   std::chrono::seconds lease, const WaitLimit& limit);

  std::optional<IgdMapping> claim_;  // what was asked for, granted or not
};

}  // namespace verlume::qt
