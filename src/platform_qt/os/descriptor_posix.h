// A file descriptor that is closed by its owner's end.
#pragma once

#include <unistd.h>

#include <utility>

namespace verlume::qt {

class OwnedDescriptor {
 public:
  OwnedDescriptor() = default;
  // A negative number is none: what a system call that failed has returned.
  explicit OwnedDescriptor(int number) : number_(number) {}
  OwnedDescriptor(OwnedDescriptor&& other) noexcept : number_(std::exchange(other.number_, -1)) {}
  OwnedDescriptor& operator=(OwnedDescriptor&& other) noexcept {
    std::swap(number_, other.number_);
    return *this;
  }
  ~OwnedDescriptor() {
    if (number_ >= 0) ::close(number_);
  }

  int Number() const { return number_; }
  bool IsOpen() const { return number_ >= 0; }

 private:
  int number_ = -1;
};

}  // namespace verlume::qt
