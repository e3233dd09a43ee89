// Tests of permissions must not run as administrator, who may do everything. Each system in a file
// of its own.
#pragma once

namespace verlume::qt {

// If the tests run as administrator, takes on the rights of the user "nobody" for its lifetime.
// Does nothing on Windows, where administrators keep to permissions too.
class Unprivileged {
 public:
  Unprivileged();
  ~Unprivileged();
  Unprivileged(const Unprivileged&) = delete;
  Unprivileged& operator=(const Unprivileged&) = delete;

 private:
  bool isLowered_ = false;
};

}  // namespace verlume::qt
