#include "platform_qt/router/router.h"

#include "platform_qt/router/nat_pmp_asker.h"
#include "platform_qt/router/upnp_asker.h"

namespace verlume::qt {

QtRouter::QtRouter(const RouterTimes& times) {
  Add(RouterLanguage::Upnp, std::make_unique<UpnpAsker>(), times);
  Add(RouterLanguage::NatPmp, std::make_unique<NatPmpAsker>(), times);
}

// Both give back at the same time.
QtRouter::~QtRouter() {
  for (auto& [language, asked] : asked_) asked.worker->BeginEnd();
  asked_.clear();
}

void QtRouter::Add(RouterLanguage language, std::unique_ptr<PortAsker> asker,
                   const RouterTimes& times) {
  const auto onAnswer = [this, language](int number, const RouterReport& report) {
    QMetaObject::invokeMethod(
        this, [this, language, number, report] { TakeAnswer(language, number, report); },
        Qt::QueuedConnection);
  };
  asked_[language].worker = std::make_unique<RouterWorker>(std::move(asker), times, onAnswer);
}

void QtRouter::MapPort(std::int32_t port) {
  constexpr std::int32_t kLastPort = 65'535;
  if (port < 1 || port > kLastPort) return Release();
  port_ = port;
  SetStates(RouterState::Asking);
  Wish(false);
}

void QtRouter::AskAddress() {
  if (port_ != 0) return;
  SetStates(RouterState::Asking);
  Wish(true);
}

void QtRouter::Release() {
  port_ = 0;
  SetStates(RouterState::NotAsked);
  Wish(false);
}

RouterReport QtRouter::Report(RouterLanguage language) const {
  return asked_.at(language).report;
}

void QtRouter::Wish(bool wantsAddress) {
  RouterWish wish;
  wish.number = ++wishNumber_;
  wish.port = static_cast<std::uint16_t>(port_);
  wish.wantsAddress = wantsAddress;
  for (auto& [language, asked] : asked_) asked.worker->Wish(wish);
}

void QtRouter::SetStates(RouterState state) {
  for (auto& [language, asked] : asked_) {
    asked.report = {};
    asked.report.state = state;
  }
}

void QtRouter::TakeAnswer(RouterLanguage language, int number, const RouterReport& report) {
  if (number != wishNumber_) return;
  RouterReport& known = asked_.at(language).report;
  if (known == report) return;
  known = report;
  if (onReport) onReport();
}

}  // namespace verlume::qt
