#include "reach/reach_facts.h"

#include <algorithm>

#include "reach/address_scope.h"

namespace verlume {
namespace {

std::u16string OuterAddress(const Router& router) {
  const std::u16string upnp = router.Report(RouterLanguage::Upnp).outerAddress;
  return upnp.empty() ? router.Report(RouterLanguage::NatPmp).outerAddress : upnp;
}

bool IsPrivateIPv4(const NetworkAddress& each) {
  const auto address = IpAddressIn(each.text);
  return address && IsIPv4(*address) && ScopeOf(*address) == AddressScope::ThisNetwork;
}

}  // namespace

ReachFacts FactsOf(const AppState& state, const Platform& platform,
                   const std::vector<Firewall>& firewalls) {
  const SocketState socket = platform.sckControl.State();
  const bool isListening = state.IsWaiting && socket == SocketState::Listening;
  return {.addresses = platform.network.Addresses(),
          .firewalls = firewalls,
          .router = VerdictOn(platform.router),
          .outerAddress = OuterAddress(platform.router),
          .choice = state.AskRouter,
          .isListening = isListening,
          .isTalking = state.IsConnected || (state.IsWaiting && !isListening),
          .port = isListening ? state.LocalPort : 0,
          .place = isListening ? state.Place : PlaceToCall()};
}

bool IsOnNetwork(const std::vector<NetworkAddress>& addresses) {
  // Every interface that is up has an IPv6 address of its link; an IPv4 one can be called.
  return std::ranges::any_of(addresses, [](const NetworkAddress& each) {
    const auto address = IpAddressIn(each.text);
    if (!address || ScopeOf(*address) == AddressScope::ThisComputer) return false;
    return IsIPv4(*address) || ScopeOf(*address) != AddressScope::ThisLink;
  });
}

const Firewall* FirewallOn(const std::vector<Firewall>& firewalls) {
  const auto found = std::ranges::find_if(firewalls, &Firewall::isOn);
  return found == firewalls.end() ? nullptr : &*found;
}

std::u16string AddressBehindRouter(const ReachFacts& facts) {
  const auto found = std::ranges::find_if(facts.addresses, IsPrivateIPv4);
  return found == facts.addresses.end() ? facts.place.host : found->text;
}

}  // namespace verlume
