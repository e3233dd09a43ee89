// RTF taken apart: stretches of text, control words, hexadecimal bytes, groups to be passed over.
// For the characters of a string (char16_t) and for the bytes of a file (char) alike. Nothing here
// reads behind the end; a token that the end cuts off is what there is of it.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <optional>
#include <type_traits>

#include "richtext/control_words.h"
#include "richtext/rtf_limits.h"

namespace verlume::richtext {

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
  Ch Peek() const { return *at_; }
  void Skip(std::size_t count) { at_ += std::min(count, Left()); }
  void GoTo(const Ch* place) { at_ = place; }

  static constexpr unsigned Value(Ch character) {
    return static_cast<std::make_unsigned_t<Ch>>(character);
  }
  static constexpr bool IsLetter(Ch character) { return IsAsciiLetter(character); }
  static constexpr bool IsDigit(Ch character) { return Value(character) - '0' < 10u; }

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
    const bool negative = Left() > 1 && *at_ == '-' && IsDigit(at_[1]);
    if (negative) ++at_;
    token.hasParameter = at_ != end_ && IsDigit(*at_);
    if (token.hasParameter) token.parameter = negative ? -ReadDigits() : ReadDigits();
    if (at_ != end_ && *at_ == ' ') ++at_;
    return token;
  }

  // With the apostrophe read: the byte of two hexadecimal digits. Where there are none, nothing is
  // read.
  std::optional<unsigned char> ReadHexByte() {
    if (Left() < 2) return std::nullopt;
    const int high = HexDigit(at_[0]);
    const int low = HexDigit(at_[1]);
    if ((high | low) < 0) return std::nullopt;
    at_ += 2;
    return static_cast<unsigned char>(high << 4 | low);
  }

  // A byte above 127, as it stands (in a file) or as \'xx. Where there is none, nothing is read.
  std::optional<unsigned char> ReadUpperByte() {
    if (std::is_same_v<Ch, char> && !AtEnd() && Value(*at_) >= 0x80) {
      return static_cast<unsigned char>(*at_++);
    }
    if (Left() < 4 || at_[0] != '\\' || at_[1] != '\'') return std::nullopt;
    at_ += 2;
    const auto byte = ReadHexByte();
    if (byte && *byte >= 0x80) return byte;
    at_ -= byte ? 4 : 2;
    return std::nullopt;
  }

  // Goes to the brace that closes the group, whatever is in between.
  void SkipGroup() {
    std::size_t depth = 0;
    while (at_ != end_) {
      const Ch character = *at_;
      if (character == '}' && depth == 0) return;
      ++at_;
      if (character == '{') ++depth;
      if (character == '}') --depth;
      if (character == '\\') SkipControl();
    }
  }

 private:
  static constexpr bool IsText(Ch character) {
    const unsigned value = Value(character);
    if (value >= 0x80) return std::is_same_v<Ch, char16_t>;
    return value != '\\' && value != '{' && value != '}' && value != '\r' && value != '\n' &&
           value != 0;
  }

  static constexpr int HexDigit(Ch character) {
    if (IsDigit(character)) return static_cast<int>(Value(character) - '0');
    const unsigned letter = (Value(character) | 0x20u) - 'a';
    return letter < 6 ? static_cast<int>(letter) + 10 : -1;
  }

  int ReadDigits() {
    int number = 0;
    const Ch* begin = at_;
    at_ = std::find_if_not(begin, end_, IsDigit);
    for (const Ch* place = begin; place != at_; ++place) {
      const int digit = static_cast<int>(Value(*place) - '0');
      if (number < limits::kMaxParameter) number = number * 10 + digit;
    }
    return std::min(number, limits::kMaxParameter);
  }

  // With the backslash read: a control word with its binary data, or one character.
  void SkipControl() {
    if (AtEnd()) return;
    if (!IsLetter(*at_)) {
      ++at_;
      return;
    }
    const ControlToken token = ReadControlWord();
    const bool binary = token.word->action == Action::kBinary && token.parameter > 0;
    if (binary) Skip(static_cast<std::size_t>(token.parameter));
  }

  const Ch* at_;
  const Ch* end_;
};

}  // namespace verlume::richtext
