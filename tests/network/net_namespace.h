// A network namespace: only what is put into it can be reached from inside. Needs root.
#pragma once

#include <functional>

#include "network/descriptor.h"

namespace verlume::network {

class NetNamespace {
 public:
  // With the loopback device up. Throws std::system_error.
  NetNamespace();

  // Runs the action on a thread inside, and waits for it; throws what it throws.
  void Run(const std::function<void()>& action) const;
  // Moves the calling process inside, for use between fork and exec; false on failure.
  bool Enter() const;

 private:
  Descriptor descriptor_;
};

}  // namespace verlume::network
