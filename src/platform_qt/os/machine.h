// What the system knows of the machine, each system in a file of its own. Nothing here fails.
#pragma once

#include <chrono>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace verlume::qt {

// The character between the parts of a path.
char16_t PathSeparator();

// A text of the registry of Windows, below HKEY_LOCAL_MACHINE; none elsewhere, and none if there is
// no such key or value, or if it is no text.
std::optional<std::u16string> RegistryText(std::u16string_view key, std::u16string_view value);

// The same for a number (REG_DWORD).
std::optional<std::uint32_t> RegistryNumber(std::u16string_view key, std::u16string_view value);

// Whether the user wants dark programs and Qt's style for this system cannot be dark.
bool NeedsDarkStyle();

// How long the machine has slept since it was started.
std::chrono::nanoseconds TimeAsleep();

// Gives back to the system what has been freed piece by piece, which stays with the process
// otherwise. Takes some milliseconds per hundred megabytes; does nothing where the system has no
// such function.
void GiveBackFreeMemory();

}  // namespace verlume::qt
