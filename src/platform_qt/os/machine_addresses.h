// The addresses of this machine's interfaces; each system has a file of its own.
#pragma once

#include <vector>

#include "platform/network.h"

namespace verlume::qt {

// Of the interfaces that are up, in the system's order. Addresses that cannot be used (yet) are
// left out: those that the system still tests, and those that another machine has.
std::vector<NetworkAddress> MachineAddresses();

}  // namespace verlume::qt
