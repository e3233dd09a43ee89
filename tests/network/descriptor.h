// A file descriptor that is closed by its owner's end, and a failed system call as an exception.
#pragma once

#include <unistd.h>

#include <cerrno>
#include <system_error>
#include <utility>

namespace verlume::network {

// The result of a system call that says failure by a negative number.
inline int Checked(int result, const char* what) {
  if (result < 0) throw std::system_error(errno, std::generic_category(), what);
  return result;
}

class Descriptor {
 public:
  Descriptor() = default;
  explicit Descriptor(int number) : number_(number) {}
  Descriptor(Descriptor&& other) noexcept : number_(std::exchange(other.number_, -1)) {}
  Descriptor& operator=(Descriptor&& other) noexcept {
    std::swap(number_, other.number_);
    return *this;
  }
  ~Descriptor() {
    if (number_ >= 0) ::close(number_);
  }

  int Number() const { return number_; }

 private:
  int number_ = -1;
};

}  // namespace verlume::network
