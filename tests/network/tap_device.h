// An Ethernet device whose cable ends in this program. Needs root and /dev/net/tun.
#pragma once

#include <optional>
#include <string>

#include "network/descriptor.h"
#include "network/link_model.h"
#include "network/net_namespace.h"

namespace verlume::network {

class TapDevice {
 public:
  // Makes the device inside the network, and brings it up. Throws std::system_error.
  TapDevice(const NetNamespace& network, const std::string& name);

  // The next frame that the network sends; nothing while there is none.
  std::optional<Frame> Read();
  // Sends a frame into the network. If the device does not accept it the frame is lost, as with a
  // real network card.
  void Write(const Frame& frame);
  // Readable when a frame waits.
  int DescriptorNumber() const { return descriptor_.Number(); }

 private:
  Descriptor descriptor_;
};

}  // namespace verlume::network
