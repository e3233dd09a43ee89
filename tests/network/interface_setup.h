// Configures the network devices in the namespace of the calling thread. All functions throw
// std::system_error.
#pragma once

#include <string>

namespace verlume::network {

void SetUp(const std::string& device);
// Adds an IPv4 or IPv6 address without duplicate detection: on a link of two machines nobody else
// has it.
void AddAddress(const std::string& device, const std::string& address, int prefixLength);

}  // namespace verlume::network
