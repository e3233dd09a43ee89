// Marks that something is in progress.
#pragma once

namespace verlume {

// Sets a flag during its own lifetime, then restores the old value.
class ScopedFlag {
 public:
  explicit ScopedFlag(bool& flag) : flag_(flag), before_(flag) { flag_ = true; }
  ~ScopedFlag() { flag_ = before_; }
  ScopedFlag(const ScopedFlag&) = delete;
  ScopedFlag& operator=(const ScopedFlag&) = delete;

 private:
  bool& flag_;
  const bool before_;
};

}  // namespace verlume
