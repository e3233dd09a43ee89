// What Windows says of the network's adapters.
#pragma once

#include <winsock2.h>
#include <ws2tcpip.h>
// Behind those, which it builds on.
#include <iphlpapi.h>

#include <cstddef>
#include <vector>

namespace verlume::qt {

class Adapters {
 public:
  Adapters();

  // The first of a list; nullptr if there is none.
  const IP_ADAPTER_ADDRESSES* First() const;

 private:
  std::vector<std::byte> buffer_;  // all of the list
};

}  // namespace verlume::qt
