// Who can reach a computer by one of its addresses.
#pragma once

#include <string_view>

#include "reach/ip_address.h"

namespace verlume {

enum class AddressScope {
  NoAddress,     // the text is none
  ThisComputer,  // loopback
  ThisLink,      // link-local: IPv6 needs to know through which cable, which no caller can type
  ThisNetwork,   // private IPv4 addresses, unique local IPv6 addresses
  Provider,      // 100.64.0.0/10: a network of the provider's, behind a router of its own
  Tunnel,        // IPv6 carried over IPv4 by 6to4 or Teredo: hardly anybody carries it any more
  Anyone,
  Nobody,  // no computer has it: unspecified, multicast, for examples, translations, reserved
};

AddressScope ScopeOf(const IpAddress& address);
AddressScope ScopeOf(std::u16string_view text);

}  // namespace verlume
