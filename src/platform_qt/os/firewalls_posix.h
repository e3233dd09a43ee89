// Reads what Linux's firewalls keep in files.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform_qt/os/firewalls.h"

namespace verlume::qt {

// ufw and firewalld, where the machine has them. `root` is "" or the folder that stands for "/".
// Reads a few short files, which never wait.
std::vector<Firewall> ReadFirewalls(const std::string& root);

// Whether ufw is on, by the text of its ufw.conf; nothing if that does not say.
std::optional<bool> IsUfwOn(std::string_view configuration);

}  // namespace verlume::qt
