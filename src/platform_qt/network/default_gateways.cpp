#include "platform_qt/network/default_gateways.h"

#include <net/route.h>

#include <algorithm>
#include <cstdint>
#include <ios>
#include <sstream>
#include <string>

#include "platform_qt/network/small_file.h"

namespace verlume::qt {
namespace {

struct DefaultRoute {
  std::uint32_t metric = 0;
  in_addr_t gateway = 0;
};

// A line: device, destination, gateway, flags, references, uses, metric, mask and more. Addresses
// and flags are hexadecimal, and an address is the number that it is in memory.
bool ReadDefaultRoute(const std::string& line, DefaultRoute& route) {
  std::istringstream words(line);
  std::string device;
  std::uint32_t destination = 0;
  std::uint32_t flags = 0;
  std::uint32_t references = 0;
  std::uint32_t uses = 0;
  std::uint32_t mask = 0;
  words >> device >> std::hex >> destination >> route.gateway >> flags >> std::dec >> references >>
      uses >> route.metric >> std::hex >> mask;
  constexpr std::uint32_t kWanted = RTF_UP | RTF_GATEWAY;
  return !words.fail() && destination == 0 && mask == 0 && (flags & kWanted) == kWanted &&
         route.gateway != 0;
}

}  // namespace

std::vector<in_addr_t> DefaultGatewaysIn(std::string_view routes) {
  std::istringstream lines{std::string(routes)};
  std::vector<DefaultRoute> found;
  DefaultRoute route;
  for (std::string line; std::getline(lines, line);) {
    if (ReadDefaultRoute(line, route)) found.push_back(route);
  }
  std::stable_sort(found.begin(), found.end(), [](const DefaultRoute& a, const DefaultRoute& b) {
    return a.metric < b.metric;
  });
  std::vector<in_addr_t> gateways;
  for (const DefaultRoute& each : found) {
    const bool isKnown = std::count(gateways.begin(), gateways.end(), each.gateway) > 0;
    if (!isKnown && gateways.size() < kMostGateways) gateways.push_back(each.gateway);
  }
  return gateways;
}

// Of the calling thread: it may be in another network than the process began in.
std::vector<in_addr_t> DefaultGateways() {
  return DefaultGatewaysIn(ReadSmallFile("/proc/thread-self/net/route"));
}

}  // namespace verlume::qt
