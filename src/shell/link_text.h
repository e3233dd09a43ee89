// An address as the user is asked about it.
#pragma once

#include <string>
#include <string_view>

#include "platform/links.h"

namespace verlume {

// The name of a host. It is shown in its own letters only if each of its parts is either ASCII, or
// Greek with at least one letter that no Latin one looks like; else in ASCII letters.
std::u16string ShowableHost(const LinkHost& host);

// The address with its host as ShowableHost says, and with an escape for every character that is
// not seen. A long one is cut in the middle, but never its host. In lines of a message box.
std::u16string ShowableAddress(std::u16string_view address, const LinkHost& host);

}  // namespace verlume
