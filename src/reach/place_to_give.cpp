#include "reach/place_to_give.h"

#include <algorithm>

#include "reach/address_scope.h"

namespace verlume {
namespace {

enum class Family { IPv4, IPv6 };

// "" if there is none. Never a temporary one.
std::u16string FirstOf(const std::vector<NetworkAddress>& addresses, AddressScope scope,
                       Family family) {
  const auto fits = [=](const NetworkAddress& each) {
    const auto address = IpAddressIn(each.text);
    return address && !each.isTemporary && ScopeOf(*address) == scope &&
           IsIPv4(*address) == (family == Family::IPv4);
  };
  const auto found = std::ranges::find_if(addresses, fits);
  return found == addresses.end() ? std::u16string() : found->text;
}

bool IsTemporary(const std::vector<NetworkAddress>& addresses, std::u16string_view text) {
  return std::ranges::any_of(addresses, [text](const NetworkAddress& each) {
    return each.isTemporary && each.text == text;
  });
}

}  // namespace

PlaceToCall PlaceToGive(const std::vector<NetworkAddress>& addresses, const RouterVerdict& router,
                        std::u16string_view ownAddress, std::int32_t port) {
  for (const Family family : {Family::IPv6, Family::IPv4}) {
    const std::u16string global = FirstOf(addresses, AddressScope::Anyone, family);
    if (!global.empty()) return {global, port};
  }
  if (router.finding == RouterFinding::Passes) return router.place;
  if (IsTemporary(addresses, ownAddress)) {
    for (const Family family : {Family::IPv4, Family::IPv6}) {
      const std::u16string local = FirstOf(addresses, AddressScope::ThisNetwork, family);
      if (!local.empty()) return {local, port};
    }
  }
  return {std::u16string(ownAddress), port};
}

}  // namespace verlume
