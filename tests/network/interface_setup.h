// The devices of the network that the calling thread is in. Everything throws std::system_error.
#pragma once

#include <string>

namespace verlume::network {

void SetUp(const std::string& device);
// An IPv4 or IPv6 address, in use at once: nobody else can have it on a link of two.
void AddAddress(const std::string& device, const std::string& address, int prefixLength);

}  // namespace verlume::network
