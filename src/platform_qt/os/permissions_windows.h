// Who may open a file on Windows: access control lists. A disk that has none (FAT) lets everybody
// in; there these do nothing.
#pragma once

#include <windows.h>

#include <string>

namespace verlume::qt {

// What is handed over to make a file that only this user may open.
class OwnerOnly {
 public:
  // Throws a RunTimeFailure for `path` if the system does not say who the user is.
  explicit OwnerOnly(const std::string& path);
  ~OwnerOnly();
  OwnerOnly(const OwnerOnly&) = delete;
  OwnerOnly& operator=(const OwnerOnly&) = delete;

  SECURITY_ATTRIBUTES* Attributes() { return &attributes_; }
  PACL List() const;

 private:
  SECURITY_ATTRIBUTES attributes_{};
};

// These throw a RunTimeFailure.
void LetOnlyOwnerOpen(const std::string& path);
void CopyPermissions(const std::string& from, const std::string& to);

}  // namespace verlume::qt
