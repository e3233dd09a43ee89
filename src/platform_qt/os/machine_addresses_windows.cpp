#include "platform_qt/os/machine_addresses.h"

#include <array>
#include <optional>
#include <string>
#include <string_view>

#include "platform_qt/os/adapters_windows.h"

namespace verlume::qt {
namespace {

// Windows tests an address before it uses it.
bool CanBeUsed(const IP_ADAPTER_UNICAST_ADDRESS& entry) {
  return entry.DadState == IpDadStatePreferred || entry.DadState == IpDadStateDeprecated;
}

std::optional<std::u16string> TextOf(const sockaddr& place) {
  const void* address = nullptr;
  if (place.sa_family == AF_INET) {
    address = &reinterpret_cast<const sockaddr_in&>(place).sin_addr;
  } else if (place.sa_family == AF_INET6) {
    address = &reinterpret_cast<const sockaddr_in6&>(place).sin6_addr;
  } else {
    return std::nullopt;
  }
  std::array<wchar_t, INET6_ADDRSTRLEN> text{};
  if (!::InetNtopW(place.sa_family, address, text.data(), text.size())) return std::nullopt;
  const std::wstring_view wide = text.data();
  return std::u16string(wide.begin(), wide.end());
}

void AddAddressesOf(const IP_ADAPTER_ADDRESSES& adapter, std::vector<NetworkAddress>& addresses) {
  const std::wstring_view wide = adapter.FriendlyName;
  const std::u16string name(wide.begin(), wide.end());
  for (const auto* each = adapter.FirstUnicastAddress; each; each = each->Next) {
    const sockaddr& place = *each->Address.lpSockaddr;
    const auto text = TextOf(place);
    if (!text || !CanBeUsed(*each)) continue;
    const bool isTemporary =
        place.sa_family == AF_INET6 && each->SuffixOrigin == IpSuffixOriginRandom;
    addresses.push_back({*text, name, isTemporary});
  }
}

}  // namespace

std::vector<NetworkAddress> MachineAddresses() {
  const Adapters adapters;
  std::vector<NetworkAddress> addresses;
  for (const auto* each = adapters.First(); each; each = each->Next) {
    if (each->OperStatus == IfOperStatusUp) AddAddressesOf(*each, addresses);
  }
  return addresses;
}

}  // namespace verlume::qt
