// Who owns a folder, and who is at the other end of a local connection.
#pragma once

#include <cstdint>
#include <string>

namespace verlume::qt {

// Whether the folder is the user's, and nobody else may write into it.
bool OnlyUserMayWrite(const std::string& folder);

// Whether the process at the other end runs for the same user. False if the system does not tell.
bool IsSameUser(std::intptr_t localSocket);

// Lets the process at the other end come to the front as this one could. Does nothing where a token
// of the desktop does that.
void LetComeToFront(std::intptr_t localSocket);

// What a local connection in this folder is called: its path, or its name alone.
std::string LocalConnectionName(const std::string& folder, const std::string& name);

}  // namespace verlume::qt
