// Stands in for the router and the networks where nothing asks them: no port is ever passed on, and
// no address is known.
#pragma once

#include "platform/network.h"
#include "platform/router.h"

namespace verlume::qt {

class RouterStandIn : public Router {
 public:
  void MapPort(std::int32_t) override {}
  void AskAddress() override {}
  void Release() override {}
  std::int32_t Port() const override { return 0; }
  RouterReport Report(RouterLanguage) const override { return {}; }
};

class NetworkStandIn : public Network {
 public:
  std::vector<NetworkAddress> Addresses() const override { return {}; }
  std::vector<Firewall> Firewalls() const override { return {}; }
};

}  // namespace verlume::qt
