#include "stream/utf8_text.h"

#include <algorithm>

#include "richtext/characters.h"
#include "richtext/utf8.h"

namespace verlume::stream {
namespace {

constexpr char32_t kReplacement = 0xFFFD;
constexpr std::size_t kLongestCharacter = 4;

bool IsContinuation(char byte) {
  return (static_cast<unsigned char>(byte) & 0xC0) == 0x80;
}

void AppendUtf8(std::string& bytes, char32_t character) {
  const auto append = [&bytes](char32_t byte) { bytes.push_back(static_cast<char>(byte)); };
  if (character < 0x80) return append(character);
  if (character < 0x800) {
    append(0xC0 | character >> 6);
  } else {
    if (character < 0x10000) {
      append(0xE0 | character >> 12);
    } else {
      append(0xF0 | character >> 18);
      append(0x80 | (character >> 12 & 0x3F));
    }
    append(0x80 | (character >> 6 & 0x3F));
  }
  append(0x80 | (character & 0x3F));
}

// How many bytes a character has that begins so; 1 if none does.
std::size_t LengthOfCharacter(char first) {
  const auto byte = static_cast<unsigned char>(first);
  return byte >= 0xF0 ? 4 : byte >= 0xE0 ? 3 : byte >= 0xC0 ? 2 : 1;
}

}  // namespace

std::string EncodeUtf8(std::u16string_view text) {
  std::string bytes;
  bytes.reserve(text.size());
  for (std::size_t i = 0; i < text.size(); ++i) {
    char32_t character = text[i];
    if (richtext::BeginsWithSurrogatePair(text.substr(i))) {
      character = 0x10000 + ((character - 0xD800) << 10) + (text[++i] - 0xDC00u);
    } else if (richtext::IsSurrogate(character)) {
      character = kReplacement;
    }
    AppendUtf8(bytes, character);
  }
  return bytes;
}

std::u16string DecodeUtf8(std::string_view bytes) {
  std::u16string text;
  text.reserve(bytes.size());
  while (!bytes.empty()) {
    const richtext::Utf8Character next = richtext::DecodeUtf8Character(bytes.substr(0, 4));
    richtext::AppendCodePoint(text, next.length == 0 ? kReplacement : next.codePoint);
    bytes.remove_prefix(std::max<std::size_t>(next.length, 1));
  }
  return text;
}

std::string_view CutUtf8(std::string_view bytes, std::size_t limit) {
  if (bytes.size() <= limit) return bytes;
  for (std::size_t end = limit; end > 0 && limit - end < kLongestCharacter; --end) {
    if (!IsContinuation(bytes[end])) return bytes.substr(0, end);
  }
  return bytes.substr(0, limit);
}

std::string_view WholeUtf8(std::string_view bytes) {
  const std::size_t most = std::min(bytes.size(), kLongestCharacter - 1);
  for (std::size_t length = 1; length <= most; ++length) {
    const std::size_t start = bytes.size() - length;
    if (IsContinuation(bytes[start])) continue;
    return LengthOfCharacter(bytes[start]) > length ? bytes.substr(0, start) : bytes;
  }
  return bytes;
}

}  // namespace verlume::stream
