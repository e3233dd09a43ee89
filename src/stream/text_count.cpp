#include "stream/text_count.h"

#include <algorithm>

namespace verlume::stream {

void TextCount::EndText() {
  if (arrivals_ == arrivalsTakenIn_) {
    ++textsTakenIn_;
  } else if (!ends_.empty() && ends_.back().arrivals == arrivals_) {
    ++ends_.back().texts;
  } else {
    ends_.push_back({arrivals_, 1});
  }
}

void TextCount::TakeIn(std::uint64_t arrivals) {
  arrivalsTakenIn_ = std::max(arrivalsTakenIn_, arrivals);
  for (; !ends_.empty() && ends_.front().arrivals <= arrivalsTakenIn_; ends_.pop_front())
    textsTakenIn_ += ends_.front().texts;
}

}  // namespace verlume::stream
