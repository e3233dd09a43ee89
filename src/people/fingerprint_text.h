// Fingerprints of keys as text.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/privacy.h"

namespace verlume {

// 64 digits of base 16, small.
std::u16string HexText(const KeyFingerprint& key);
// None unless the text is 64 such digits, in any case.
std::optional<KeyFingerprint> FingerprintInHex(std::u16string_view text);

// 43 characters of base64url, without padding.
std::u16string Base64UrlText(const KeyFingerprint& key);
// None unless the text is as Base64UrlText writes it.
std::optional<KeyFingerprint> FingerprintInBase64Url(std::u16string_view text);

}  // namespace verlume
