// Wakes a thread that waits for sockets, each system in a file of its own.
#pragma once

#include "platform_qt/os/open_socket.h"

namespace verlume::qt {

class WakeUp {
 public:
  WakeUp();

  // False when the system has no more to give.
  bool IsOpen() const { return waits_.IsOpen(); }
  // Can be read between Ring and Clear.
  SocketNumber Number() const { return waits_.Number(); }
  // From any thread.
  void Ring() const;
  void Clear() const;

 private:
  OpenSocket waits_;
  OpenSocket rings_;  // where one thing cannot be both
};

}  // namespace verlume::qt
