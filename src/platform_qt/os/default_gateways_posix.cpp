#include "platform_qt/os/default_gateways_posix.h"

#include <net/route.h>

#include <cstdint>
#include <ios>
#include <sstream>
#include <string>
#include <utility>

#include "platform_qt/os/small_file_posix.h"

namespace verlume::qt {
namespace {

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

std::vector<Ipv4> DefaultGatewaysIn(std::string_view routes) {
  std::istringstream lines{std::string(routes)};
  std::vector<DefaultRoute> found;
  DefaultRoute route;
  for (std::string line; std::getline(lines, line);) {
    if (ReadDefaultRoute(line, route)) found.push_back(route);
  }
  return PreferredGateways(std::move(found));
}

// Of the calling thread: it may be in another network than the process began in.
std::vector<Ipv4> DefaultGateways() {
  return DefaultGatewaysIn(ReadSmallFile("/proc/thread-self/net/route"));
}

}  // namespace verlume::qt
