#include "platform_qt/os/default_gateways.h"

#include <algorithm>

namespace verlume::qt {

std::vector<Ipv4> PreferredGateways(std::vector<DefaultRoute> routes) {
  std::stable_sort(routes.begin(), routes.end(), [](const DefaultRoute& a, const DefaultRoute& b) {
    return a.metric < b.metric;
  });
  std::vector<Ipv4> gateways;
  for (const DefaultRoute& each : routes) {
    const bool isKnown = std::count(gateways.begin(), gateways.end(), each.gateway) > 0;
    if (!isKnown && gateways.size() < kMostGateways) gateways.push_back(each.gateway);
  }
  return gateways;
}

}  // namespace verlume::qt
