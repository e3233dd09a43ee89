#include "network/tap_device.h"

#include <fcntl.h>
#include <linux/if_tun.h>
#include <net/if.h>
#include <sys/ioctl.h>
#include <unistd.h>

#include "network/interface_setup.h"

namespace verlume::network {

TapDevice::TapDevice(const NetNamespace& network, const std::string& name) {
  network.Run([&] {
    descriptor_ = Descriptor(
        Checked(::open("/dev/net/tun", O_RDWR | O_NONBLOCK | O_CLOEXEC), "open /dev/net/tun"));
    ifreq request{};
    name.copy(request.ifr_name, IFNAMSIZ - 1);
    request.ifr_flags = IFF_TAP | IFF_NO_PI;
    Checked(::ioctl(descriptor_.Number(), TUNSETIFF, &request), "make a TAP device");
    SetUp(name);
  });
}

std::optional<Frame> TapDevice::Read() {
  constexpr std::size_t kLongestFrame = 2048;  // 1500 bytes and the Ethernet header
  Frame frame(kLongestFrame);
  const ssize_t size = ::read(descriptor_.Number(), frame.data(), frame.size());
  if (size <= 0) return std::nullopt;
  frame.resize(static_cast<std::size_t>(size));
  return frame;
}

void TapDevice::Write(const Frame& frame) {
  [[maybe_unused]] const ssize_t written =
      ::write(descriptor_.Number(), frame.data(), frame.size());
}

}  // namespace verlume::network
