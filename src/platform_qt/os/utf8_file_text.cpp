#include "platform_qt/os/utf8_file_text.h"

#include <algorithm>

#include "richtext/characters.h"
#include "stream/utf8_text.h"

namespace verlume::qt {
namespace {

// In units. Converts in parts, so that a long text is not in memory three times.
constexpr std::size_t kPiece = 16 * 1024;

std::u16string WithoutHalves(std::u16string_view text) {
  std::u16string whole(text);
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (richtext::BeginsWithSurrogatePair(text.substr(i))) {
      ++i;
    } else if (richtext::IsSurrogate(text[i])) {
      whole[i] = u'?';
    }
  }
  return whole;
}

// The length of the first piece, which does not end within a pair.
std::size_t LengthOfPiece(std::u16string_view text) {
  if (text.size() <= kPiece) return text.size();
  return richtext::BeginsWithSurrogatePair(text.substr(kPiece - 1)) ? kPiece + 1 : kPiece;
}

}  // namespace

std::string EncodeUtf8File(std::u16string_view text) {
  std::string bytes;
  bytes.reserve(text.size());
  while (!text.empty()) {
    const std::u16string_view piece = text.substr(0, LengthOfPiece(text));
    if (std::ranges::all_of(piece, richtext::IsAscii<char16_t>)) {
      std::ranges::transform(piece, std::back_inserter(bytes),
                             [](char16_t c) { return static_cast<char>(c); });
    } else {
      bytes += stream::EncodeUtf8(WithoutHalves(piece));
    }
    text.remove_prefix(piece.size());
  }
  return bytes;
}

}  // namespace verlume::qt
