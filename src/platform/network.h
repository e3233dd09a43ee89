// The networks this machine is on: its addresses, its firewall, and when they are others.
#pragma once

#include <functional>
#include <string>
#include <vector>

namespace verlume {

struct NetworkAddress {
  std::u16string text;           // "192.0.2.7", "2001:db8::1"; without a zone
  std::u16string interfaceName;  // "eth0"
  // An IPv6 address that the system replaces after some hours, so that nobody is followed by it.
  bool isTemporary = false;

  bool operator==(const NetworkAddress&) const = default;
};

// A firewall that can be asked.
struct Firewall {
  std::u16string name;  // "ufw", "firewalld"
  bool isOn = false;
};

class Network {
 public:
  virtual ~Network() = default;

  // The addresses of the interfaces that are up, loopback included, in the system's order.
  virtual std::vector<NetworkAddress> Addresses() const = 0;
  // The firewalls that this machine has and that answer at once. None is no proof that there is
  // none.
  virtual std::vector<Firewall> Firewalls() const = 0;

  // The addresses are others, or the machine has slept. Raised on the user-interface thread, once
  // things have been quiet for a second.
  std::function<void()> onChange;
};

}  // namespace verlume
