// A router that answers as a test says, and the addresses of a machine that is on no real network.
#pragma once

#include <map>
#include <utility>
#include <vector>

#include "platform/network.h"
#include "platform/router.h"

namespace verlume::fake {

// Keeps what it was asked for. It says nothing by itself: a test calls Say, once the program is
// back from what it was doing, as the real one does.
class FakeRouter : public Router {
 public:
  void MapPort(std::int32_t port) override {
    asked.push_back(port);
    port_ = port;
    for (auto& [language, report] : reports_) report = {RouterState::Asking, u"", 0, u""};
  }
  void AskAddress() override {
    if (port_ != 0) return;
    ++timesAskedForAddress;
    for (auto& [language, report] : reports_) report = {RouterState::Asking, u"", 0, u""};
  }
  void Release() override {
    if (port_ != 0) ++timesReleased;
    port_ = 0;
    for (auto& [language, report] : reports_) report = {};
  }
  std::int32_t Port() const override { return port_; }
  RouterReport Report(RouterLanguage language) const override { return reports_.at(language); }

  // The router's answer arrives.
  void Say(RouterLanguage language, RouterReport report) {
    reports_[language] = std::move(report);
    if (onReport) onReport();
  }

  std::vector<std::int32_t> asked;  // every port of MapPort
  int timesReleased = 0;            // of a port
  int timesAskedForAddress = 0;

 private:
  std::int32_t port_ = 0;
  std::map<RouterLanguage, RouterReport> reports_ = {{RouterLanguage::Upnp, {}},
                                                     {RouterLanguage::NatPmp, {}}};
};

// A machine with a loopback address only, unless a test gives it others.
class FakeAddresses : public Network {
 public:
  std::vector<NetworkAddress> Addresses() const override { return list; }
  std::vector<Firewall> Firewalls() const override { return firewalls; }

  // The machine is on other networks now.
  void Become(std::vector<NetworkAddress> addresses) {
    list = std::move(addresses);
    if (onChange) onChange();
  }

  std::vector<NetworkAddress> list = {{u"127.0.0.1", u"lo"}, {u"::1", u"lo"}};
  std::vector<Firewall> firewalls;
};

}  // namespace verlume::fake
