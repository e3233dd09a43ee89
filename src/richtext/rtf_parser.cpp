#include "richtext/rtf_parser.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <string>

#include "richtext/utf8.h"

namespace verlume::richtext {
namespace {

constexpr char16_t kNoBreakSpace = 0x00A0;
constexpr char16_t kOptionalHyphen = 0x00AD;
constexpr char16_t kNoBreakHyphen = 0x2011;
constexpr char16_t kReplacement = 0xFFFD;

}  // namespace

template <typename Ch, typename Listener>
void RtfParser<Ch, Listener>::ReadOn(std::size_t length) {
  limit_ = tokens_.At() + std::min(length, tokens_.Left());
  while (!IsDone() && tokens_.At() < limit_) ReadNext();
}

template <typename Ch, typename Listener>
void RtfParser<Ch, Listener>::ReadToken() {
  limit_ = tokens_.End();
  ReadNext();
}

template <typename Ch, typename Listener>
inline void RtfParser<Ch, Listener>::ReadNext() {
  if (isSkipping_) return ReadSkipped();
  token_ = tokens_.At();
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

template <typename Ch, typename Listener>
void RtfParser<Ch, Listener>::ReadBrace() {
  const bool opens = tokens_.Peek() == '{';
  tokens_.Skip(1);
  fallbackLeft_ = 0;
  if (opens) {
    listener_.OpenGroup();
  } else {
    listener_.CloseGroup();
  }
}

template <typename Ch, typename Listener>
void RtfParser<Ch, Listener>::ReadText() {
  const Ch* begin = tokens_.At();
  // Behind the limit, where half a surrogate pair has been read, one more unit.
  const Ch* end = tokens_.FindTextEnd(std::max(limit_, begin + 1));
  if (begin == end) return ReadUpperByte();
  if (fallbackLeft_ != 0) {
    const auto skipped = std::min<std::ptrdiff_t>(fallbackLeft_, end - begin);
    fallbackLeft_ -= static_cast<int>(skipped);
    begin += skipped;
  }
  listener_.Append(begin, end);
  tokens_.GoTo(end);
}

template <typename Ch, typename Listener>
void RtfParser<Ch, Listener>::ReadUpperByte() {
  const auto byte = static_cast<unsigned char>(tokens_.Peek());
  tokens_.Skip(1);
  EmitByte(byte);
}

template <typename Ch, typename Listener>
void RtfParser<Ch, Listener>::ReadControl() {
  tokens_.Skip(1);
  if (tokens_.AtEnd()) return;
  if (IsAsciiLetter(tokens_.Peek())) {
    Apply(tokens_.ReadControlWord());
  } else {
    ReadSymbol();
  }
}

// A symbol that names nothing is read over, but for what stands outside ASCII: that is text with a
// stray backslash before it.
template <typename Ch, typename Listener>
void RtfParser<Ch, Listener>::ReadSymbol() {
  const Ch symbol = tokens_.Peek();
  if (!IsAscii(symbol)) return ReadText();
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
template <typename Ch, typename Listener>
void RtfParser<Ch, Listener>::ReadHexCharacter() {
  const auto byte = tokens_.ReadHexByte();
  if (byte) {
    EmitByte(*byte);
  } else if (tokens_.Left() < 2) {
    tokens_.Skip(2);
  }
}

// \* before a word says that readers who do not know the word shall pass over its group. All this
// reader knows of such words are the two tables.
template <typename Ch, typename Listener>
void RtfParser<Ch, Listener>::ReadIgnorable() {
  tokens_.SkipLineEnds();
  if (!tokens_.AtControlWord()) return;
  const Ch* place = tokens_.At();
  tokens_.Skip(1);
  const ControlToken token = tokens_.ReadControlWord();
  const Action action = token.word->action;
  if (action == Action::kFontTable || action == Action::kColorTable) return Apply(token);
  tokens_.GoTo(place);
  SkipGroup();
}

// Behind \u, only what stands for a character is passed over: any other word is taken as a sign
// that the fallback is missing.
template <typename Ch, typename Listener>
void RtfParser<Ch, Listener>::Apply(const ControlToken& token) {
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
      SkipGroup();
      break;
    default:
      listener_.Apply(token);
  }
}

// One UTF-16 unit, signed as it should be or unsigned; some writers put a whole code point there.
template <typename Ch, typename Listener>
void RtfParser<Ch, Listener>::ApplyUnicode(int number) {
  if (number < INT16_MIN || number > 0x10FFFF) {
    listener_.Append(kReplacement);
  } else if (number > 0xFFFF) {
    listener_.AppendCodePoint(static_cast<char32_t>(number));
  } else {
    listener_.Append(static_cast<char16_t>(number));
  }
  unicode_ = token_;
  unicodeNumber_ = number;
  fallbackLeft_ = listener_.FallbackCount();
}

template <typename Ch, typename Listener>
void RtfParser<Ch, Listener>::ApplyBinary(int length) {
  SkipData(length);
  SkipFallback();
}

template <typename Ch, typename Listener>
void RtfParser<Ch, Listener>::ApplyTable(Destination table) {
  if (!listener_.OpenTable(table)) SkipGroup();
}

// Nothing is shown of the rest of the group: braces and the data of \bin are all that matters.
template <typename Ch, typename Listener>
void RtfParser<Ch, Listener>::SkipGroup() {
  isSkipping_ = true;
  skippedDepth_ = 0;
  fallbackLeft_ = 0;
}

template <typename Ch, typename Listener>
void RtfParser<Ch, Listener>::ReadSkipped() {
  token_ = tokens_.At();
  const Ch* end = std::max(limit_, token_ + 1);
  tokens_.GoTo(std::find_if(tokens_.At(), end, IsMarkup<Ch>));
  if (tokens_.At() == end) return;
  token_ = tokens_.At();
  switch (tokens_.Peek()) {
    case '\\':
      return SkipControl();
    case '{':
      ++skippedDepth_;
      break;
    default:
      isSkipping_ = skippedDepth_ != 0;
      if (!isSkipping_) return ReadBrace();
      --skippedDepth_;
  }
  tokens_.Skip(1);
}

template <typename Ch, typename Listener>
void RtfParser<Ch, Listener>::SkipControl() {
  tokens_.Skip(1);
  if (tokens_.AtEnd()) return;
  if (!IsAsciiLetter(tokens_.Peek())) return tokens_.Skip(1);
  const ControlToken token = tokens_.ReadControlWord();
  if (token.word->action == Action::kBinary) SkipData(token.parameter);
}

template <typename Ch, typename Listener>
void RtfParser<Ch, Listener>::SkipData(int length) {
  if (length > 0) tokens_.Skip(static_cast<std::size_t>(length));
}

template <typename Ch, typename Listener>
void RtfParser<Ch, Listener>::Emit(char16_t unit) {
  if (!SkipFallback()) listener_.Append(unit);
}

template <typename Ch, typename Listener>
void RtfParser<Ch, Listener>::EmitByte(unsigned char byte) {
  if (SkipFallback()) return;
  if (byte < 0x80) return listener_.Append(byte);
  const bool emitted = listener_.IsUtf8() && TryEmitUtf8(byte);
  if (!emitted) EmitUpperBytes(byte);
}

// Such bytes come in stretches: words of a language with letters of its own.
template <typename Ch, typename Listener>
void RtfParser<Ch, Listener>::EmitUpperBytes(unsigned char first) {
  const char16_t* upperHalf = listener_.UpperHalf();
  std::array<char16_t, 64> units;
  std::size_t count = 0;
  units[count++] = upperHalf[first - 0x80];
  while (!listener_.IsUtf8() && count < units.size()) {
    const auto byte = tokens_.ReadUpperByte();
    if (!byte) break;
    units[count++] = upperHalf[*byte - 0x80];
  }
  listener_.Append(units.data(), units.data() + count);
}

template <typename Ch, typename Listener>
void RtfParser<Ch, Listener>::EmitBreak(bool endsParagraph) {
  fallbackLeft_ = 0;
  listener_.AppendBreak(endsParagraph);
}

// In a document that declares UTF-8, bytes that form a character are that character whatever the
// font says; they may be written as they are or as \'xx. Any other byte is the font's.
template <typename Ch, typename Listener>
bool RtfParser<Ch, Listener>::TryEmitUtf8(unsigned char first) {
  const Ch* place = tokens_.At();
  std::string bytes(1, static_cast<char>(first));
  while (bytes.size() < 4) {
    const auto byte = tokens_.ReadUpperByte();
    if (!byte) break;
    bytes.push_back(static_cast<char>(*byte));
    const Utf8Character character = DecodeUtf8Character(bytes);
    if (character.length == 0) continue;
    listener_.AppendCodePoint(character.codePoint);
    return true;
  }
  tokens_.GoTo(place);
  return false;
}

// One of the characters behind \u is passed over, if there are any left.
template <typename Ch, typename Listener>
bool RtfParser<Ch, Listener>::SkipFallback() {
  if (fallbackLeft_ == 0) return false;
  --fallbackLeft_;
  return true;
}

template class RtfParser<char, RtfContent>;
template class RtfParser<char16_t, RtfContent>;
template class RtfParser<char, RtfState>;
template class RtfParser<char16_t, RtfState>;

}  // namespace verlume::richtext
