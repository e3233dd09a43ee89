// Digits that two people compare to know that nobody is between them.
#pragma once

#include <string>

#include "platform_qt/privacy/public_key.h"

namespace verlume::qt {

// Sixty digits, the same whichever key is whose.
// Takes some milliseconds.
std::u16string SafetyDigitsOf(const PublicKey& one, const PublicKey& other);

}  // namespace verlume::qt
