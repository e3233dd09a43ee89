// Keeps many lines within a second from being told of one by one.
#pragma once

#include <cstddef>

namespace verlume {

class LineBurst {
 public:
  // A line has arrived. True if it is to be told of at once; if not, it counts for the next tick.
  bool Add();
  // Once a second: how many lines have come that nothing was told of. If any, they are told of now.
  std::size_t Tick();

 private:
  bool hasTold_ = false;  // since the last tick
  std::size_t untold_ = 0;
};

}  // namespace verlume
