// The system's news of this machine's addresses; each system has a file of its own.
#pragma once

#include <memory>

#include "platform_qt/os/tcp.h"

namespace verlume::qt {

enum class AddressNews {
  Touched,  // maybe another address, maybe only another lifetime of one
  Gone,     // an address was taken away, even if it is back by now
};

class AddressFeed {
 public:
  AddressFeed();
  ~AddressFeed();
  AddressFeed(const AddressFeed&) = delete;
  AddressFeed& operator=(const AddressFeed&) = delete;

  // Can be read when there is news; kNoSocket where the system does not tell.
  SocketNumber Number() const;
  // What has come since the last time. Of several news the one that says most.
  AddressNews Read();

 private:
  struct System;
  const std::unique_ptr<System> system_;
};

}  // namespace verlume::qt
