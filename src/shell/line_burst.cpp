#include "shell/line_burst.h"

#include <utility>

namespace verlume {

bool LineBurst::Add() {
  if (!std::exchange(hasTold_, true)) return true;
  ++untold_;
  return false;
}

std::size_t LineBurst::Tick() {
  hasTold_ = untold_ > 0;
  return std::exchange(untold_, 0);
}

}  // namespace verlume
