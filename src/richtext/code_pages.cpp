#include "richtext/code_pages.h"

#include <algorithm>
#include <array>

#include "richtext/characters.h"
#include "richtext/code_page_tables.h"
#include "richtext/utf8.h"

namespace verlume::richtext {
namespace {

constexpr int kWesternPage = 1252;
constexpr int kGreekPage = 1253;

constexpr const CodePageTable* FindTable(int codePage) {
  for (const CodePageTable& table : kCodePageTables) {
    if (table.codePage == codePage) return &table;
  }
  return nullptr;
}

struct GreekCharacter {
  char16_t character = 0;
  unsigned char byte = 0;
};

// Windows-1253 turned round: the Greek letters have a table of their own, since they are what is
// written most; the others are searched.
struct GreekEncoder {
  static constexpr char16_t kFirstLetter = 0x0370;
  std::array<unsigned char, 0x90> letters{};
  std::array<GreekCharacter, 128> others{};
};

constexpr GreekEncoder MakeGreekEncoder() {
  GreekEncoder encoder;
  const CodePageTable& table = *FindTable(kGreekPage);
  for (std::size_t i = 0; i < table.high.size(); ++i) {
    const char16_t character = table.high[i];
    const auto byte = static_cast<unsigned char>(0x80 + i);
    encoder.others[i] = {character, byte};
    const std::size_t letter = character - std::size_t{GreekEncoder::kFirstLetter};
    if (letter < encoder.letters.size()) encoder.letters[letter] = byte;
  }
  std::ranges::sort(encoder.others, {}, &GreekCharacter::character);
  return encoder;
}

constexpr GreekEncoder kGreekEncoder = MakeGreekEncoder();
constexpr const char16_t* kGreekHigh = FindTable(kGreekPage)->high.data();

char16_t DecodeGreekByte(char byte) {
  const auto value = static_cast<unsigned char>(byte);
  return value < 0x80 ? value : kGreekHigh[value - 0x80];
}

}  // namespace

bool IsKnownCodePage(int codePage) {
  return FindTable(codePage) != nullptr;
}

const char16_t* UpperHalf(int codePage) {
  const CodePageTable* table = FindTable(codePage);
  return (table != nullptr ? table : FindTable(kWesternPage))->high.data();
}

int CodePageOf(const char16_t* upperHalf) {
  const auto found = std::ranges::find(
      kCodePageTables, upperHalf, [](const CodePageTable& table) { return table.high.data(); });
  return found->codePage;
}

char16_t DecodeByte(unsigned char byte, int codePage) {
  return byte < 0x80 ? byte : UpperHalf(codePage)[byte - 0x80];
}

int CodePageOfCharset(int charset) {
  switch (charset) {
    case 0:
      return 1252;
    case 77:
      return 10000;
    case 161:
      return 1253;
    case 162:
      return 1254;
    case 163:
      return 1258;
    case 177:
      return 1255;
    case 178:
      return 1256;
    case 186:
      return 1257;
    case 204:
      return 1251;
    case 238:
      return 1250;
    case 254:
      return 437;
    case 255:
      return 850;
    default:
      return 0;
  }
}

unsigned char GreekByte(char16_t character) {
  const std::size_t letter = character - std::size_t{GreekEncoder::kFirstLetter};
  if (letter < kGreekEncoder.letters.size()) return kGreekEncoder.letters[letter];
  const auto found =
      std::ranges::lower_bound(kGreekEncoder.others, character, {}, &GreekCharacter::character);
  const bool known = found != kGreekEncoder.others.end() && found->character == character;
  return known ? found->byte : 0;
}

std::string EncodeGreek(std::u16string_view text) {
  std::string bytes;
  bytes.reserve(text.size());
  for (std::size_t i = 0; i < text.size(); ++i) {
    const char16_t unit = text[i];
    if (IsAscii(unit)) {
      bytes.push_back(static_cast<char>(unit));
      continue;
    }
    const unsigned char byte = GreekByte(unit);
    bytes.push_back(byte != 0 ? static_cast<char>(byte) : '?');
    if (BeginsWithSurrogatePair(text.substr(i))) ++i;
  }
  return bytes;
}

std::u16string DecodeGreek(std::string_view bytes) {
  std::u16string text(bytes.size(), u'\0');
  std::ranges::transform(bytes, text.begin(), DecodeGreekByte);
  return text;
}

std::u16string DecodeUtf8OrGreek(std::string_view bytes) {
  constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
  if (bytes.starts_with(kByteOrderMark)) bytes.remove_prefix(kByteOrderMark.size());
  std::u16string text;
  text.reserve(bytes.size());
  while (!bytes.empty()) {
    if (IsAscii(bytes[0])) {
      text.push_back(static_cast<char16_t>(bytes[0]));
      bytes.remove_prefix(1);
      continue;
    }
    const Utf8Character character = DecodeUtf8Character(bytes.substr(0, 4));
    if (character.length != 0) {
      AppendCodePoint(text, character.codePoint);
    } else {
      text.push_back(DecodeGreekByte(bytes[0]));
    }
    bytes.remove_prefix(std::max<std::size_t>(character.length, 1));
  }
  return text;
}

}  // namespace verlume::richtext
