#include "platform_qt/os/user.h"

#include <windows.h>

#include <array>
#include <cstddef>
#include <optional>

#include "platform_qt/os/handle_windows.h"

namespace verlume::qt {
namespace {

using UserSid = std::array<std::byte, SECURITY_MAX_SID_SIZE>;

// None if the process is another user's and does not let itself be asked.
std::optional<UserSid> UserOf(HANDLE process) {
  struct {
    TOKEN_USER user;
    UserSid space;  // for what the first points to
  } information;
  UserSid identifier{};
  Handle token;
  DWORD size = sizeof information;
  if (!::OpenProcessToken(process, TOKEN_QUERY, token.Place()) ||
      !::GetTokenInformation(token.Get(), TokenUser, &information, size, &size) ||
      !::CopySid(identifier.size(), identifier.data(), information.user.User.Sid)) {
    return std::nullopt;
  }
  return identifier;
}

// A pipe knows the processes at its two ends, of which this is one: 0 if it does not.
DWORD ProcessAtOtherEnd(std::intptr_t localSocket) {
  const auto pipe = reinterpret_cast<HANDLE>(localSocket);
  DWORD server = 0;
  DWORD client = 0;
  if (!::GetNamedPipeServerProcessId(pipe, &server)) return 0;
  if (!::GetNamedPipeClientProcessId(pipe, &client)) return 0;
  return server == ::GetCurrentProcessId() ? client : server;
}

}  // namespace

// Asked of folders in the user's profile only.
bool OnlyUserMayWrite(const std::string&) {
  return true;
}

// Anybody may have made a pipe of this name first.
bool IsSameUser(std::intptr_t localSocket) {
  HANDLE process =
      ::OpenProcess(PROCESS_QUERY_LIMITED_INFORMATION, FALSE, ProcessAtOtherEnd(localSocket));
  if (!process) return false;
  const Handle closesIt(process);
  const std::optional<UserSid> other = UserOf(process);
  return other && other == UserOf(::GetCurrentProcess());
}

void LetComeToFront(std::intptr_t localSocket) {
  ::AllowSetForegroundWindow(ProcessAtOtherEnd(localSocket));
}

// Pipes have no folder.
std::string LocalConnectionName(const std::string&, const std::string& name) {
  return name;
}

}  // namespace verlume::qt
