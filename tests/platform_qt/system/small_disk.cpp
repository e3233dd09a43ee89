#include "platform_qt/system/small_disk.h"

#include <linux/capability.h>
#include <sched.h>
#include <sys/mount.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <cerrno>
#include <fstream>

namespace verlume::qt {
namespace {

constexpr auto kSize = "size=256k";

void WriteTo(const char* path, const std::string& text) {
  std::ofstream(path) << text;
}

// In a user name space of its own, the process keeps its user.
bool EnterOwnNameSpace() {
  const uid_t user = ::geteuid();
  const gid_t group = ::getegid();
  if (user == 0) return ::unshare(CLONE_NEWNS) == 0;
  if (::unshare(CLONE_NEWUSER | CLONE_NEWNS) != 0) return false;
  WriteTo("/proc/self/setgroups", "deny");
  WriteTo("/proc/self/uid_map", std::to_string(user) + " " + std::to_string(user) + " 1");
  WriteTo("/proc/self/gid_map", std::to_string(group) + " " + std::to_string(group) + " 1");
  return true;
}

// With the privileges in the name space, the process could write where its user may not.
void GiveUpRights() {
  if (::geteuid() == 0) return;
  __user_cap_header_struct header = {_LINUX_CAPABILITY_VERSION_3, 0};
  const __user_cap_data_struct none[2] = {};
  ::syscall(SYS_capset, &header, none);
}

}  // namespace

bool MountSmallDisk(const std::string& folder) {
  if (!EnterOwnNameSpace()) return false;
  const bool isMounted = ::mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0 &&
                         ::mount("tmpfs", folder.c_str(), "tmpfs", 0, kSize) == 0;
  const int error = errno;
  if (!isMounted) GiveUpRights();
  errno = error;
  return isMounted;
}

void UnmountSmallDisk(const std::string& folder) {
  ::umount2(folder.c_str(), MNT_DETACH);
  GiveUpRights();
}

}  // namespace verlume::qt
