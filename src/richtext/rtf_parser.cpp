#include "richtext/rtf_parser.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <string>

#include "richtext/utf8.h"

namespace verlume::richtext {
namespace {

constexpr char16_t kNoBreakSpace = 0x00A0;
constexpr char16_t kOptionalHyphen = 0x00AD;
constexpr char16_t kNoBreakHyphen = 0x2011;
constexpr char16_t kReplacement = 0xFFFD;

}  // namespace

template <typename Ch>
RtfParser<Ch>::RtfParser(const Ch* begin, const Ch* end, std::size_t expectedLength)
    : partEnd_(begin), tokens_(begin, end), content_(expectedLength) {}

template <typename Ch>
Document RtfParser<Ch>::ParsePart(std::size_t length) {
  partEnd_ = tokens_.At() + std::min(length, tokens_.Left());
  while (!IsDone() && (tokens_.At() < partEnd_ || content_.EndsInsidePair())) {
    switch (tokens_.Peek()) {
      case '{':
      case '}':
        ReadBrace();
        break;
      case '\\':
        ReadControl();
        break;
      case '\r':
      case '\n':
      case '\0':
        tokens_.Skip(1);
        break;
      default:
        ReadText();
    }
  }
  return content_.TakePart();
}

template <typename Ch>
void RtfParser<Ch>::ReadBrace() {
  const bool opens = tokens_.Peek() == '{';
  tokens_.Skip(1);
  fallbackLeft_ = 0;
  if (opens) {
    content_.OpenGroup();
  } else {
    content_.CloseGroup();
  }
}

template <typename Ch>
void RtfParser<Ch>::ReadText() {
  const Ch* begin = tokens_.At();
  // Where a part ends inside a pair, one more unit.
  const Ch* end = tokens_.FindTextEnd(std::max(partEnd_, begin + 1));
  if (begin == end) return ReadUpperByte();
  if (fallbackLeft_ != 0) {
    const auto skipped = std::min<std::ptrdiff_t>(fallbackLeft_, end - begin);
    fallbackLeft_ -= static_cast<int>(skipped);
    begin += skipped;
  }
  content_.Append(begin, end);
  tokens_.GoTo(end);
}

template <typename Ch>
void RtfParser<Ch>::ReadUpperByte() {
  const auto byte = static_cast<unsigned char>(tokens_.Peek());
  tokens_.Skip(1);
  EmitByte(byte);
}

template <typename Ch>
void RtfParser<Ch>::ReadControl() {
  tokens_.Skip(1);
  if (tokens_.AtEnd()) return;
  if (tokens_.IsLetter(tokens_.Peek())) {
    Apply(tokens_.ReadControlWord());
  } else {
    ReadSymbol();
  }
}

// A symbol that names nothing is read over, but for what stands outside ASCII: that is text with a
// stray backslash before it.
template <typename Ch>
void RtfParser<Ch>::ReadSymbol() {
  const Ch symbol = tokens_.Peek();
  if (tokens_.Value(symbol) >= 0x80) return;
  tokens_.Skip(1);
  switch (symbol) {
    case '\'':
      ReadHexCharacter();
      break;
    case '*':
      ReadIgnorable();
      break;
    case '\\':
    case '{':
    case '}':
    case '\t':
      Emit(static_cast<char16_t>(symbol));
      break;
    case '~':
      Emit(kNoBreakSpace);
      break;
    case '_':
      Emit(kNoBreakHyphen);
      break;
    case '-':
      Emit(kOptionalHyphen);
      break;
    case '\r':
    case '\n':
      EmitBreak(true);
      break;
    default:
      break;
  }
}

// Without two digits the escape stands for nothing and what follows it is text. An escape that the
// end cuts off is no text.
template <typename Ch>
void RtfParser<Ch>::ReadHexCharacter() {
  const auto byte = tokens_.ReadHexByte();
  if (byte) {
    EmitByte(*byte);
  } else if (tokens_.Left() < 2) {
    tokens_.Skip(2);
  }
}

// \* before a word says that readers who do not know the word shall pass over its group. All this
// reader knows of such words are the two tables.
template <typename Ch>
void RtfParser<Ch>::ReadIgnorable() {
  while (!tokens_.AtEnd() && (tokens_.Peek() == '\r' || tokens_.Peek() == '\n')) tokens_.Skip(1);
  if (tokens_.Left() < 2 || tokens_.Peek() != '\\' || !tokens_.IsLetter(tokens_.At()[1])) return;
  const Ch* place = tokens_.At();
  tokens_.Skip(1);
  const ControlToken token = tokens_.ReadControlWord();
  const Action action = token.word->action;
  if (action == Action::kFontTable || action == Action::kColorTable) return Apply(token);
  tokens_.GoTo(place);
  tokens_.SkipGroup();
}

// Behind \u, only what stands for a character is passed over: any other word is taken as a sign
// that the fallback is missing.
template <typename Ch>
void RtfParser<Ch>::Apply(const ControlToken& token) {
  const ControlWord& word = *token.word;
  switch (word.action) {
    case Action::kCharacter:
      return Emit(static_cast<char16_t>(word.value));
    case Action::kBinary:
      return ApplyBinary(token.parameter);
    default:
      fallbackLeft_ = 0;
  }
  switch (word.action) {
    case Action::kUnicode:
      if (token.hasParameter) ApplyUnicode(token.parameter);
      break;
    case Action::kBreak:
      EmitBreak(false);
      break;
    case Action::kParagraphEnd:
      EmitBreak(true);
      break;
    case Action::kFontTable:
      ApplyTable(Destination::kFontTable);
      break;
    case Action::kColorTable:
      ApplyTable(Destination::kColorTable);
      break;
    case Action::kUnshown:
      tokens_.SkipGroup();
      break;
    default:
      content_.Apply(token);
  }
}

// One UTF-16 unit, signed as it should be or unsigned; some writers put a whole code point there.
template <typename Ch>
void RtfParser<Ch>::ApplyUnicode(int number) {
  if (number < INT16_MIN || number > 0x10FFFF) {
    content_.Append(kReplacement);
  } else if (number > 0xFFFF) {
    content_.AppendCodePoint(static_cast<char32_t>(number));
  } else {
    content_.Append(static_cast<char16_t>(number));
  }
  fallbackLeft_ = content_.FallbackCount();
}

template <typename Ch>
void RtfParser<Ch>::ApplyBinary(int length) {
  if (length > 0) tokens_.Skip(static_cast<std::size_t>(length));
  SkipFallback();
}

template <typename Ch>
void RtfParser<Ch>::ApplyTable(Destination table) {
  if (!content_.OpenTable(table)) tokens_.SkipGroup();
}

template <typename Ch>
void RtfParser<Ch>::Emit(char16_t unit) {
  if (!SkipFallback()) content_.Append(unit);
}

template <typename Ch>
void RtfParser<Ch>::EmitByte(unsigned char byte) {
  if (SkipFallback()) return;
  if (byte < 0x80) return content_.Append(byte);
  const bool emitted = content_.IsUtf8() && TryEmitUtf8(byte);
  if (!emitted) EmitUpperBytes(byte);
}

// Such bytes come in stretches: words of a language with letters of its own.
template <typename Ch>
void RtfParser<Ch>::EmitUpperBytes(unsigned char first) {
  const char16_t* upperHalf = content_.UpperHalf();
  std::array<char16_t, 64> units;
  std::size_t count = 0;
  units[count++] = upperHalf[first - 0x80];
  while (!content_.IsUtf8() && count < units.size()) {
    const auto byte = tokens_.ReadUpperByte();
    if (!byte) break;
    units[count++] = upperHalf[*byte - 0x80];
  }
  content_.Append(units.data(), units.data() + count);
}

template <typename Ch>
void RtfParser<Ch>::EmitBreak(bool endsParagraph) {
  fallbackLeft_ = 0;
  content_.AppendBreak(endsParagraph);
}

// In a document that declares UTF-8, bytes that form a character are that character whatever the
// font says; they may be written as they are or as \'xx. Any other byte is the font's.
template <typename Ch>
bool RtfParser<Ch>::TryEmitUtf8(unsigned char first) {
  const Ch* place = tokens_.At();
  std::string bytes(1, static_cast<char>(first));
  while (bytes.size() < 4) {
    const auto byte = tokens_.ReadUpperByte();
    if (!byte) break;
    bytes.push_back(static_cast<char>(*byte));
    const Utf8Character character = DecodeUtf8Character(bytes);
    if (character.length == 0) continue;
    content_.AppendCodePoint(character.codePoint);
    return true;
  }
  tokens_.GoTo(place);
  return false;
}

// One of the characters behind \u is passed over, if there are any left.
template <typename Ch>
bool RtfParser<Ch>::SkipFallback() {
  if (fallbackLeft_ == 0) return false;
  --fallbackLeft_;
  return true;
}

template class RtfParser<char>;
template class RtfParser<char16_t>;

}  // namespace verlume::richtext
