// A home network: this machine at 192.168.77.2 and its router at 192.168.77.1, joined by a cable.
// Needs root and /dev/net/tun.
#pragma once

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QEventLoop>
#include <QTimer>
#include <chrono>
#include <functional>
#include <string>

#include "network/net_namespace.h"
#include "network/relay.h"
#include "network/tap_device.h"

namespace verlume::router {

// Handles events until the condition is true; false if it is not within the limit.
template <class Condition>
bool WaitFor(Condition condition, std::chrono::milliseconds time = std::chrono::seconds(20)) {
  const QDeadlineTimer limit(time);
  QTimer tick;  // for what is no event of this thread
  tick.start(std::chrono::milliseconds(5));
  while (!condition()) {
    if (limit.hasExpired()) return false;
    QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
  }
  return true;
}

class Home {
 public:
  static constexpr char kMachine[] = "192.168.77.2";
  static constexpr char kRouter[] = "192.168.77.1";
  static constexpr char kNeighbour[] = "192.168.77.9";  // on the router's side of the cable
  static constexpr char kDevice[] = "cable";

  Home();

  // Runs the action on this machine, on a thread that can handle events.
  void OnMachine(const std::function<void()>& action) const;
  const network::NetNamespace& RouterSide() const { return router_; }

  // On this machine. Throws std::system_error.
  void AddDefaultRoute(const std::string& gateway, int metric = 0) const;
  // With iproute2: "addr add 192.0.2.1/24 dev cable". Throws std::runtime_error.
  void Ip(const std::string& arguments) const;

 private:
  network::NetNamespace machine_;
  network::NetNamespace router_;
  network::TapDevice machinesEnd_{machine_, kDevice};
  network::TapDevice routersEnd_{router_, kDevice};
  network::Relay cable_{machinesEnd_, routersEnd_, {}, 1};
};

}  // namespace verlume::router
