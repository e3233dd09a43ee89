// The routers that may be asked.
#pragma once

#include <netinet/in.h>

#include <vector>

#include "platform/router.h"

namespace verlume::qt {

struct Gateway {
  in_addr_t address = 0;
  in_addr_t local = 0;  // this machine's address on the gateway's network
};

// The gateways of the default routes that are on a network of somebody's own. Nobody else is asked
// or listened to: passing calls on is of use only where the answers go out, and another machine
// that offers it means no good.
std::vector<Gateway> NearGateways();

// The report that tells more of two.
RouterReport Better(const RouterReport& a, const RouterReport& b);

}  // namespace verlume::qt
