// The networks of this machine, as the system tells of them.
#pragma once

#include <QTimer>
#include <chrono>

#include "platform/network.h"
#include "platform_qt/network/address_watch.h"
#include "platform_qt/network/sleep_watch.h"

namespace verlume::qt {

class QtNetwork : public Network {
 public:
  explicit QtNetwork(SleepWatch::AskTimeAsleep timeAsleep = TimeAsleep,
                     std::chrono::milliseconds sleepInterval = std::chrono::seconds(5));

  std::vector<NetworkAddress> Addresses() const override;
  std::vector<Firewall> Firewalls() const override;

 private:
  void RaiseLater(bool isSure);
  void Raise();

  std::vector<NetworkAddress> known_;
  bool isSure_ = false;  // there is something to raise, whatever the addresses are
  QTimer quiet_;
  AddressWatch addresses_;
  SleepWatch sleep_;
};

}  // namespace verlume::qt
