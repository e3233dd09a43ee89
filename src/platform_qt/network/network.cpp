#include "platform_qt/network/network.h"

#include <utility>

#include "platform_qt/os/firewalls.h"
#include "platform_qt/os/machine_addresses.h"

namespace verlume::qt {

QtNetwork::QtNetwork(SleepWatch::AskTimeAsleep timeAsleep, std::chrono::milliseconds sleepInterval)
    : known_(MachineAddresses()),
      addresses_([this](AddressNews news) { RaiseLater(news == AddressNews::Gone); }),
      sleep_([this] { RaiseLater(true); }, std::move(timeAsleep), sleepInterval) {
  constexpr std::chrono::seconds kQuiet{1};
  quiet_.setSingleShot(true);
  quiet_.setInterval(kQuiet);
  QObject::connect(&quiet_, &QTimer::timeout, [this] { Raise(); });
}

std::vector<NetworkAddress> QtNetwork::Addresses() const {
  return MachineAddresses();
}

std::vector<Firewall> QtNetwork::Firewalls() const {
  return MachineFirewalls();
}

void QtNetwork::RaiseLater(bool isSure) {
  isSure_ |= isSure;
  quiet_.start();
}

// The system also tells when a router has only prolonged an address.
void QtNetwork::Raise() {
  std::vector<NetworkAddress> now = MachineAddresses();
  const bool isOther = now != std::exchange(known_, now);
  if ((std::exchange(isSure_, false) || isOther) && onChange) onChange();
}

}  // namespace verlume::qt
