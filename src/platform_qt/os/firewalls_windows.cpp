#include <optional>
#include <string>

#include "platform_qt/os/firewalls.h"
#include "platform_qt/os/machine.h"

namespace verlume::qt {
namespace {

constexpr std::u16string_view kOwn =
    u"SYSTEM\\CurrentControlSet\\Services\\SharedAccess\\Parameters\\FirewallPolicy\\";
// What an administrator has decided for many machines counts more.
constexpr std::u16string_view kPolicy = u"SOFTWARE\\Policies\\Microsoft\\WindowsFirewall\\";

std::optional<bool> IsOnFor(std::u16string_view networks) {
  for (const std::u16string_view place : {kPolicy, kOwn}) {
    std::u16string key(place);
    key += networks;
    if (const auto number = RegistryNumber(key, u"EnableFirewall")) return *number != 0;
  }
  return std::nullopt;
}

}  // namespace

// For every kind of network there is a switch. Which of them counts changes with the network, so
// that one that is on may be in the way.
std::vector<Firewall> MachineFirewalls() {
  bool isKnown = false;
  bool isOn = false;
  for (const std::u16string_view networks :
       {u"DomainProfile", u"StandardProfile", u"PublicProfile"}) {
    const std::optional<bool> isOnHere = IsOnFor(networks);
    isKnown |= isOnHere.has_value();
    isOn |= isOnHere.value_or(false);
  }
  if (!isKnown) return {};
  return {{u"Windows Firewall", isOn}};
}

}  // namespace verlume::qt
