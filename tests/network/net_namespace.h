// A network of its own, in which only what is put there can be reached. Needs root.
#pragma once

#include <functional>

#include "network/descriptor.h"

namespace verlume::network {

class NetNamespace {
 public:
  // With the loopback device up. Throws std::system_error.
  NetNamespace();

  // Runs the action on a thread inside, to its end; throws what it throws.
  void Run(const std::function<void()>& action) const;
  // Takes the calling process there, before it becomes another program; false on failure.
  bool Enter() const;

 private:
  Descriptor descriptor_;
};

}  // namespace verlume::network
