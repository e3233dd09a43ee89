#include <winsock2.h>
#include <ws2ipdef.h>
// Behind those, which it builds on.
#include <iphlpapi.h>

#include <atomic>

#include "platform_qt/os/address_feed.h"
#include "platform_qt/os/wake_up.h"

namespace verlume::qt {

// Windows tells on a thread of its own.
struct AddressFeed::System {
  WakeUp wakeUp;
  std::atomic<bool> isGone = false;
  HANDLE news = nullptr;
};

namespace {

template <class System>
void WINAPI TakeNews(void* feed, MIB_UNICASTIPADDRESS_ROW*, MIB_NOTIFICATION_TYPE kind) {
  auto* system = static_cast<System*>(feed);
  if (kind == MibDeleteInstance) system->isGone = true;
  system->wakeUp.Ring();
}

}  // namespace

AddressFeed::AddressFeed() : system_(std::make_unique<System>()) {
  if (!system_->wakeUp.IsOpen()) return;
  const DWORD error = ::NotifyUnicastIpAddressChange(AF_UNSPEC, &TakeNews<System>, system_.get(),
                                                     FALSE, &system_->news);
  if (error != NO_ERROR) system_->news = nullptr;
}

// Returns when nothing is being told any more.
AddressFeed::~AddressFeed() {
  if (system_->news) ::CancelMibChangeNotify2(system_->news);
}

SocketNumber AddressFeed::Number() const {
  return system_->news ? system_->wakeUp.Number() : kNoSocket;
}

AddressNews AddressFeed::Read() {
  system_->wakeUp.Clear();
  return system_->isGone.exchange(false) ? AddressNews::Gone : AddressNews::Touched;
}

}  // namespace verlume::qt
