// Who owns a folder, and who is at the other end of a local connection.
#pragma once

#include <cstdint>
#include <string>

namespace verlume::qt {

// Whether the folder is the user's, and nobody else may write into it.
bool OnlyUserMayWrite(const std::string& folder);

// Whether the process at the other end runs for the same user. True where the system does not tell:
// there only the user can open the connection.
bool IsSameUser(std::intptr_t localSocket);

// What a local connection in this folder is called: its path, or its name alone.
std::string LocalConnectionName(const std::string& folder, const std::string& name);

}  // namespace verlume::qt
