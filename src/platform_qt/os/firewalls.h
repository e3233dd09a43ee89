// The firewalls that a user may ask about without a password; each system has a file of its own.
#pragma once

#include <vector>

#include "platform/network.h"

namespace verlume::qt {

// Those of the kinds that are known here and that this machine has. Never waits.
std::vector<Firewall> MachineFirewalls();

}  // namespace verlume::qt
