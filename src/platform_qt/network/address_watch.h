// Hears from the system that an address has come or gone.
#pragma once

#include <QSocketNotifier>
#include <functional>
#include <memory>

#include "platform_qt/os/address_feed.h"

namespace verlume::qt {

class AddressWatch {
 public:
  // `onNews` is raised by the event loop of the thread that creates the watch. Where the system
  // does not tell, it is never raised.
  explicit AddressWatch(std::function<void(AddressNews)> onNews);

 private:
  const std::function<void(AddressNews)> onNews_;
  AddressFeed feed_;
  std::unique_ptr<QSocketNotifier> notifier_;
};

}  // namespace verlume::qt
