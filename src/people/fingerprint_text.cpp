#include "people/fingerprint_text.h"

namespace verlume {
namespace {

constexpr std::u16string_view kHexDigits = u"0123456789abcdef";
constexpr std::u16string_view kBase64UrlDigits =
    u"ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789-_";

char16_t SmallHexDigit(char16_t c) {
  return c >= u'A' && c <= u'F' ? static_cast<char16_t>(c + 32) : c;
}

}  // namespace

std::u16string HexText(const KeyFingerprint& key) {
  std::u16string text;
  for (const std::uint8_t byte : key) {
    text += kHexDigits[byte >> 4];
    text += kHexDigits[byte & 15];
  }
  return text;
}

std::optional<KeyFingerprint> FingerprintInHex(std::u16string_view text) {
  KeyFingerprint key{};
  if (text.size() != 2 * key.size()) return std::nullopt;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const std::size_t digit = kHexDigits.find(SmallHexDigit(text[i]));
    if (digit == kHexDigits.npos) return std::nullopt;
    key[i / 2] = static_cast<std::uint8_t>(key[i / 2] << 4 | digit);
  }
  return key;
}

// Each character is 6 bits. The last one has only four of the key; the other two are 0.
std::u16string Base64UrlText(const KeyFingerprint& key) {
  std::u16string text;
  unsigned bits = 0;
  int count = 0;
  for (const std::uint8_t byte : key) {
    bits = bits << 8 | byte;
    for (count += 8; count >= 6; count -= 6) text += kBase64UrlDigits[bits >> (count - 6) & 63];
  }
  text += kBase64UrlDigits[bits << (6 - count) & 63];
  return text;
}

std::optional<KeyFingerprint> FingerprintInBase64Url(std::u16string_view text) {
  KeyFingerprint key{};
  std::size_t written = 0;
  unsigned bits = 0;
  int count = 0;
  for (const char16_t c : text) {
    const std::size_t digit = kBase64UrlDigits.find(c);
    if (digit == kBase64UrlDigits.npos || written > key.size()) return std::nullopt;
    bits = bits << 6 | static_cast<unsigned>(digit);
    count += 6;
    if (count < 8) continue;
    count -= 8;
    if (written == key.size()) return std::nullopt;
    key[written++] = static_cast<std::uint8_t>(bits >> count & 255);
  }
  // One text for each key.
  if (written != key.size() || Base64UrlText(key) != text) return std::nullopt;
  return key;
}

}  // namespace verlume
