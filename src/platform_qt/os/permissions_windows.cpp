#include "platform_qt/os/permissions_windows.h"

#include <aclapi.h>
#include <sddl.h>

#include <vector>

#include "platform_qt/os/errors_windows.h"
#include "platform_qt/os/handle_windows.h"
#include "platform_qt/os/paths_windows.h"

namespace verlume::qt {
namespace {

// The user's identifier as text ("S-1-5-..."); empty if the system does not say.
std::wstring UserIdentifier() {
  Handle token;
  if (!::OpenProcessToken(::GetCurrentProcess(), TOKEN_QUERY, token.Place())) return {};
  DWORD size = 0;
  ::GetTokenInformation(token.Get(), TokenUser, nullptr, 0, &size);
  std::vector<std::byte> buffer(size);
  if (!::GetTokenInformation(token.Get(), TokenUser, buffer.data(), size, &size)) return {};
  wchar_t* text = nullptr;
  const auto* user = reinterpret_cast<const TOKEN_USER*>(buffer.data());
  if (!::ConvertSidToStringSidW(user->User.Sid, &text)) return {};
  std::wstring identifier = text;
  ::LocalFree(text);
  return identifier;
}

void SetList(const std::string& path, PACL list, SECURITY_INFORMATION inheritance) {
  std::wstring name = NativePath(path);
  const DWORD error =
      ::SetNamedSecurityInfoW(name.data(), SE_FILE_OBJECT, DACL_SECURITY_INFORMATION | inheritance,
                              nullptr, nullptr, list, nullptr);
  if (error != ERROR_SUCCESS && error != ERROR_NOT_SUPPORTED) ThrowError(error, path);
}

}  // namespace

// Protected (P): nothing is inherited from the folder. FA: everything may be done.
OwnerOnly::OwnerOnly(const std::string& path) {
  attributes_.nLength = sizeof attributes_;
  const std::wstring description = L"D:P(A;;FA;;;" + UserIdentifier() + L")";
  if (!::ConvertStringSecurityDescriptorToSecurityDescriptorW(
          description.c_str(), SDDL_REVISION_1, &attributes_.lpSecurityDescriptor, nullptr)) {
    ThrowLastError(path);
  }
}

OwnerOnly::~OwnerOnly() {
  ::LocalFree(attributes_.lpSecurityDescriptor);
}

PACL OwnerOnly::List() const {
  BOOL isThere = FALSE;
  BOOL isDefault = FALSE;
  PACL list = nullptr;
  ::GetSecurityDescriptorDacl(attributes_.lpSecurityDescriptor, &isThere, &list, &isDefault);
  return list;
}

void LetOnlyOwnerOpen(const std::string& path) {
  const OwnerOnly owner(path);
  SetList(path, owner.List(), PROTECTED_DACL_SECURITY_INFORMATION);
}

void CopyPermissions(const std::string& from, const std::string& to) {
  std::wstring name = NativePath(from);
  PACL list = nullptr;
  PSECURITY_DESCRIPTOR descriptor = nullptr;
  const DWORD error =
      ::GetNamedSecurityInfoW(name.data(), SE_FILE_OBJECT, DACL_SECURITY_INFORMATION, nullptr,
                              nullptr, &list, nullptr, &descriptor);
  if (error == ERROR_NOT_SUPPORTED) return;
  if (error != ERROR_SUCCESS) ThrowError(error, from);
  struct Free {
    PSECURITY_DESCRIPTOR descriptor;
    ~Free() { ::LocalFree(descriptor); }
  } const guard{descriptor};
  SECURITY_DESCRIPTOR_CONTROL control = 0;
  DWORD revision = 0;
  ::GetSecurityDescriptorControl(descriptor, &control, &revision);
  SetList(to, list,
          (control & SE_DACL_PROTECTED) != 0 ? PROTECTED_DACL_SECURITY_INFORMATION
                                             : UNPROTECTED_DACL_SECURITY_INFORMATION);
}

}  // namespace verlume::qt
