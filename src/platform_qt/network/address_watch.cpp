#include "platform_qt/network/address_watch.h"

#include <utility>

namespace verlume::qt {

AddressWatch::AddressWatch(std::function<void(AddressNews)> onNews) : onNews_(std::move(onNews)) {
  if (feed_.Number() == kNoSocket) return;
  notifier_ = std::make_unique<QSocketNotifier>(feed_.Number(), QSocketNotifier::Read);
  QObject::connect(notifier_.get(), &QSocketNotifier::activated, [this] { onNews_(feed_.Read()); });
}

}  // namespace verlume::qt
