// An open handle of Windows, closed with this object.
#pragma once

#include <windows.h>

#include <utility>

namespace verlume::qt {

class Handle {
 public:
  Handle() = default;
  explicit Handle(HANDLE handle) : handle_(handle) {}
  ~Handle() {
    if (*this) ::CloseHandle(handle_);
  }
  Handle(Handle&& other) noexcept : handle_(std::exchange(other.handle_, INVALID_HANDLE_VALUE)) {}
  Handle& operator=(Handle&&) = delete;

  explicit operator bool() const { return handle_ != INVALID_HANDLE_VALUE; }
  HANDLE Get() const { return handle_; }
  // Where a function puts a handle.
  HANDLE* Place() { return &handle_; }

 private:
  HANDLE handle_ = INVALID_HANDLE_VALUE;
};

}  // namespace verlume::qt
