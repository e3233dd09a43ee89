// RTF taken apart: stretches of text, control words, hexadecimal bytes. For the characters of a
// string (char16_t) and for the bytes of a file (char) alike. Nothing here reads behind the end; a
// token that the end cuts off is what there is of it.
#pragma once

#include <algorithm>
#include <cstddef>
#include <optional>
#include <type_traits>

#include "richtext/characters.h"
#include "richtext/control_words.h"

namespace verlume::richtext {

// What begins something other than text.
template <typename Ch>
constexpr bool IsMarkup(Ch character) {
  return character == '\\' || character == '{' || character == '}';
}

// Line ends between tokens are no text.
template <typename Ch>
constexpr bool IsLineEnd(Ch character) {
  return character == '\r' || character == '\n';
}

struct ControlToken {
  const ControlWord* word = nullptr;
  bool hasParameter = false;
  int parameter = 0;

  int ParameterOr(int absent) const { return hasParameter ? parameter : absent; }
};

template <typename Ch>
class RtfTokens {
 public:
  RtfTokens(const Ch* begin, const Ch* end) : at_(begin), end_(end) {}

  bool AtEnd() const { return at_ == end_; }
  std::size_t Left() const { return static_cast<std::size_t>(end_ - at_); }
  const Ch* At() const { return at_; }
  const Ch* End() const { return end_; }
  Ch Peek() const { return *at_; }
  void Skip(std::size_t count) { at_ += std::min(count, Left()); }
  void SkipLineEnds() { at_ = std::find_if_not(at_, end_, IsLineEnd<Ch>); }
  void GoTo(const Ch* place) { at_ = place; }

  // Whether a control word begins here, and not a control symbol.
  bool AtControlWord() const { return Left() > 1 && *at_ == '\\' && IsAsciiLetter(at_[1]); }

  // The end of the text that begins here, as far as `last`. Bytes above 127 end it: they have to be
  // decoded.
  const Ch* FindTextEnd(const Ch* last) const {
    const Ch* place = at_;
    while (place != last && IsText(*place)) ++place;
    return place;
  }

  // With the backslash read and a letter next: the control word, its number and the blank that
  // delimits it.
  ControlToken ReadControlWord() {
    ControlToken token{&FindControlWord(ControlWordName::Read(at_, end_))};
    const bool isNegative = Left() > 1 && *at_ == '-' && IsAsciiDigit(at_[1]);
    if (isNegative) ++at_;
    token.hasParameter = at_ != end_ && IsAsciiDigit(*at_);
    if (token.hasParameter) token.parameter = isNegative ? -ReadDigits() : ReadDigits();
    if (at_ != end_ && *at_ == ' ') ++at_;
    return token;
  }

  // With the apostrophe read: the byte of two hexadecimal digits. Where there are none, nothing is
  // read.
  std::optional<unsigned char> ReadHexByte() {
    if (Left() < 2) return std::nullopt;
    const int high = HexDigitValue(at_[0]);
    const int low = HexDigitValue(at_[1]);
    if ((high | low) < 0) return std::nullopt;
    at_ += 2;
    return static_cast<unsigned char>(high << 4 | low);
  }

  // A byte above 127, as it stands (in a file) or as \'xx. Where there is none, nothing is read.
  std::optional<unsigned char> ReadUpperByte() {
    if (std::is_same_v<Ch, char> && !AtEnd() && !IsAscii(*at_)) {
      return static_cast<unsigned char>(*at_++);
    }
    if (Left() < 4 || at_[0] != '\\' || at_[1] != '\'') return std::nullopt;
    at_ += 2;
    const auto byte = ReadHexByte();
    if (byte && *byte >= 0x80) return byte;
    at_ -= byte ? 4 : 2;
    return std::nullopt;
  }

 private:
  static constexpr bool IsText(Ch character) {
    if (!IsAscii(character)) return std::is_same_v<Ch, char16_t>;
    return !IsMarkup(character) && !IsLineEnd(character) && character != 0;
  }

  int ReadDigits() {
    int number = 0;
    const Ch* begin = at_;
    at_ = std::find_if_not(begin, end_, IsAsciiDigit<Ch>);
    for (const Ch* place = begin; place != at_; ++place) number = WithDigit(number, *place);
    return ControlNumber(number);
  }

  const Ch* at_;
  const Ch* end_;
};

}  // namespace verlume::richtext
