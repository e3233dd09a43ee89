// Hears from the system that an address has come or gone.
#pragma once

#include <QSocketNotifier>
#include <functional>
#include <memory>

#include "platform_qt/network/descriptor.h"

namespace verlume::qt {

enum class AddressNews {
  Touched,  // maybe another address, maybe only another lifetime of one
  Gone,     // an address was taken away, even if it is back by now
};

class AddressWatch {
 public:
  // `onNews` is raised by the event loop of the thread that creates the watch. Where the system
  // does not tell, it is never raised.
  explicit AddressWatch(std::function<void(AddressNews)> onNews);

 private:
  void Read();

  const std::function<void(AddressNews)> onNews_;
  Descriptor kernel_;
  std::unique_ptr<QSocketNotifier> notifier_;
};

}  // namespace verlume::qt
