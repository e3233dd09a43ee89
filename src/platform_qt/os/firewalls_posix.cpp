#include "platform_qt/os/firewalls_posix.h"

#include <unistd.h>

#include <algorithm>
#include <sstream>

#include "platform_qt/os/small_file_posix.h"

namespace verlume::qt {
namespace {

// The service manager's group of the firewall's processes says whether one runs. The firewall
// itself would have to be asked by D-Bus, where an answer may take as long as it likes.
bool IsServiceRunning(const std::string& root, const std::string& service) {
  for (const char* tree : {"/sys/fs/cgroup", "/sys/fs/cgroup/systemd"}) {
    std::string processes = root;
    processes.append(tree).append("/system.slice/").append(service).append("/cgroup.procs");
    if (!ReadSmallFile(processes).empty()) return true;
  }
  return false;
}

std::string WithoutQuotes(std::string value) {
  value.erase(std::remove_if(value.begin(), value.end(),
                             [](char c) { return c == '"' || c == '\'' || c == '\r' || c == ' '; }),
              value.end());
  std::transform(value.begin(), value.end(), value.begin(),
                 [](unsigned char c) { return c >= 'A' && c <= 'Z' ? c | 0x20 : c; });
  return value;
}

}  // namespace

std::optional<bool> IsUfwOn(std::string_view configuration) {
  constexpr std::string_view kKey = "ENABLED=";
  std::optional<bool> isOn;  // the last line counts, as for a shell
  std::istringstream lines{std::string(configuration)};
  for (std::string line; std::getline(lines, line);) {
    if (!line.starts_with(kKey)) continue;
    const std::string value = WithoutQuotes(line.substr(kKey.size()));
    isOn.reset();
    if (value == "yes") isOn = true;
    if (value == "no") isOn = false;
  }
  return isOn;
}

std::vector<Firewall> ReadFirewalls(const std::string& root) {
  std::vector<Firewall> firewalls;
  if (const auto isOn = IsUfwOn(ReadSmallFile(root + "/etc/ufw/ufw.conf"))) {
    firewalls.push_back({u"ufw", *isOn});
  }
  if (::access((root + "/etc/firewalld").c_str(), F_OK) == 0) {
    firewalls.push_back({u"firewalld", IsServiceRunning(root, "firewalld.service")});
  }
  return firewalls;
}

std::vector<Firewall> MachineFirewalls() {
  return ReadFirewalls("");
}

}  // namespace verlume::qt
