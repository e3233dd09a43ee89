// The routers that may be asked.
#pragma once

#include <vector>

#include "platform/router.h"
#include "platform_qt/os/ipv4.h"

namespace verlume::qt {

struct Gateway {
  Ipv4 address = kNoIpv4;
  Ipv4 local = kNoIpv4;  // this machine's address on the gateway's network
};

// The gateways of the default routes that are on a network of somebody's own. Nobody else is asked
// or listened to: passing calls on is of use only where the answers go out, and another machine
// that offers it means no good.
std::vector<Gateway> NearGateways();

// The report that tells more of two.
RouterReport Better(const RouterReport& a, const RouterReport& b);

}  // namespace verlume::qt
