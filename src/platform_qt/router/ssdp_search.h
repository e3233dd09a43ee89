// Looks for a gateway's description of itself.
#pragma once

#include <cstddef>
#include <vector>

#include "platform_qt/router/http_url.h"
#include "platform_qt/router/wait_limit.h"

namespace verlume::qt {

struct SsdpFindings {
  bool hasAnswered = false;        // the gateway has, with sense or without
  std::vector<HttpUrl> locations;  // on the gateway, each once; kMostLocations at most
};

constexpr std::size_t kMostLocations = 4;

// Asks the network and the gateway itself, from the address `local`, and listens to the gateway
// alone.
SsdpFindings SearchGateway(Ipv4 gateway, Ipv4 local, const WaitLimit& limit);

}  // namespace verlume::qt
