// Asks the routers of this machine's networks, by UPnP and by NAT-PMP.
#pragma once

#include <QObject>
#include <map>
#include <memory>

#include "platform/router.h"
#include "platform_qt/router/router_worker.h"

namespace verlume::qt {

// Belongs to the thread that creates it, whose event loop raises onReport.
class QtRouter : public QObject, public Router {
 public:
  explicit QtRouter(const RouterTimes& times = {});
  // Gives the port back, which takes 2 s at most.
  ~QtRouter() override;

  void MapPort(std::int32_t port) override;
  void AskAddress() override;
  void Release() override;
  std::int32_t Port() const override { return port_; }
  RouterReport Report(RouterLanguage language) const override;

 private:
  struct Asked {
    std::unique_ptr<RouterWorker> worker;
    RouterReport report;
  };
  void Add(RouterLanguage language, std::unique_ptr<PortAsker> asker, const RouterTimes& times);
  void Wish(bool wantsAddress);
  void SetStates(RouterState state);
  void TakeAnswer(RouterLanguage language, int number, const RouterReport& report);

  std::map<RouterLanguage, Asked> asked_;
  std::int32_t port_ = 0;
  int wishNumber_ = 0;
};

}  // namespace verlume::qt
