#include "richtext/rtf_cut.h"

#include <algorithm>
#include <cstdint>

#include "richtext/open_groups.h"
#include "richtext/rtf_tokens.h"

namespace verlume::richtext {
namespace {

// As much of a word without end as its reader looks at, and more.
constexpr std::size_t kLengthOfUnended = 64;
static_assert(kLengthOfUnended > 2 * limits::kMaxControlWordLength);

// The word that makes a document of what follows is in both.
constexpr std::size_t kShortest = std::string_view("{\\rtf").size();

bool IsHighSurrogate(int unit) {
  return (unit & 0xFC00) == 0xD800;
}

// Goes through a document as its reader does, as far as the cut.
class Cutter {
 public:
  Cutter(std::string_view document, std::size_t length)
      : document_(document),
        cut_(document.data() + std::min(std::max(length, kShortest), document.size())),
        tokens_(document.data(), document.data() + document.size()) {}

  CutDocument Cut();

 private:
  bool MayCutHere() const;
  bool GoesOnWithCharacter() const;
  void ReadToken();
  void ReadText();
  void ReadControl();
  void ReadSymbol();
  void ReadHexCharacter();
  void ReadIgnorable();
  void Apply(const ControlToken& token);
  void ApplyData(int length);
  void PassByte(unsigned char byte);
  void PassCharacters(int count) { fallbackLeft_ -= std::min(fallbackLeft_, count); }

  const std::string_view document_;
  const char* const cut_;
  RtfTokens<char> tokens_;
  OpenGroups groups_;
  int fallbackLeft_ = 0;         // characters still to be passed over behind \u
  bool isInPair_ = false;        // behind a first surrogate and its fallback
  int bytesOfCharacter_ = 0;     // of UTF-8, where the document declares that
  std::size_t missingData_ = 0;  // behind the end
};

CutDocument Cutter::Cut() {
  const char* token = tokens_.At();
  while (!tokens_.AtEnd()) {
    token = tokens_.At();
    if (token >= cut_ && MayCutHere()) break;
    ReadToken();
  }
  const auto length = std::max(static_cast<std::size_t>(token - document_.data()),
                               std::min(kShortest, document_.size()));
  std::string_view rest = document_.substr(length);
  if (tokens_.AtEnd()) rest = rest.substr(0, kLengthOfUnended);
  const std::string data = R"(\bin)" + std::to_string(missingData_) + ' ';
  if (missingData_ != 0) rest = data;
  return {std::string(document_.substr(0, length)) + groups_.Closing(),
          groups_.OpeningAt(token) + std::string(rest)};
}

bool Cutter::MayCutHere() const {
  if (groups_.IsEmpty()) return false;
  const char next = tokens_.Peek();
  if (next == '{' || next == '}') return true;
  return fallbackLeft_ == 0 && !isInPair_ && !(bytesOfCharacter_ != 0 && GoesOnWithCharacter());
}

// Whether another byte of a character follows: 0x80 to 0xBF.
bool Cutter::GoesOnWithCharacter() const {
  RtfTokens<char> next = tokens_;
  const auto byte = next.ReadUpperByte();
  return byte && *byte < 0xC0;
}

void Cutter::ReadToken() {
  const char first = tokens_.Peek();
  if (first == '\\') return ReadControl();
  isInPair_ = isInPair_ && fallbackLeft_ != 0;
  if (tokens_.Value(first) < 0x80) bytesOfCharacter_ = 0;
  switch (first) {
    case '{':
    case '}':
      tokens_.Skip(1);
      fallbackLeft_ = 0;
      if (first == '{') {
        groups_.Open(tokens_.At() - 1);
      } else {
        groups_.Close(tokens_.At());
      }
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

void Cutter::ReadText() {
  const char* begin = tokens_.At();
  const char* end = tokens_.FindTextEnd(std::max(cut_, begin + 1));
  if (begin == end) {
    PassByte(static_cast<unsigned char>(*begin));
    ++end;
  }
  PassCharacters(static_cast<int>(end - begin));
  tokens_.GoTo(end);
}

void Cutter::ReadControl() {
  tokens_.Skip(1);
  if (tokens_.AtEnd()) return;
  if (!tokens_.IsLetter(tokens_.Peek())) return ReadSymbol();
  bytesOfCharacter_ = 0;
  Apply(tokens_.ReadControlWord());
}

void Cutter::ReadSymbol() {
  constexpr std::string_view kCharacters = "\\{}\t~_-";
  const char symbol = tokens_.Peek();
  if (tokens_.Value(symbol) >= 0x80) return;
  tokens_.Skip(1);
  if (symbol == '\'') return ReadHexCharacter();
  bytesOfCharacter_ = 0;
  if (symbol == '*') return ReadIgnorable();
  if (symbol == '\r' || symbol == '\n') fallbackLeft_ = 0;
  if (kCharacters.find(symbol) != kCharacters.npos) PassCharacters(1);
}

void Cutter::ReadHexCharacter() {
  const auto byte = tokens_.ReadHexByte();
  PassByte(byte.value_or(0));
  if (byte) {
    PassCharacters(1);
  } else if (tokens_.Left() < 2) {
    tokens_.Skip(2);
  }
}

void Cutter::PassByte(unsigned char byte) {
  constexpr int kMostBytes = 4;
  const bool begins = byte >= 0xC0;
  const bool goesOn = byte >= 0x80 && !begins && bytesOfCharacter_ != 0;
  bytesOfCharacter_ = begins ? 1 : goesOn ? (bytesOfCharacter_ + 1) % kMostBytes : 0;
}

void Cutter::ReadIgnorable() {
  while (!tokens_.AtEnd() && (tokens_.Peek() == '\r' || tokens_.Peek() == '\n')) tokens_.Skip(1);
  if (tokens_.Left() < 2 || tokens_.Peek() != '\\' || !tokens_.IsLetter(tokens_.At()[1])) return;
  tokens_.Skip(1);
  const ControlToken token = tokens_.ReadControlWord();
  const Action action = token.word->action;
  if (action == Action::kFontTable || action == Action::kColorTable) return Apply(token);
  groups_.NoteUnshown();
}

void Cutter::Apply(const ControlToken& token) {
  const Action action = token.word->action;
  if (action == Action::kCharacter) return PassCharacters(1);
  if (action == Action::kBinary) return ApplyData(token.parameter);
  fallbackLeft_ = 0;
  isInPair_ = false;
  switch (action) {
    case Action::kUnicode:
      if (!token.hasParameter) break;
      isInPair_ = IsHighSurrogate(token.parameter);
      fallbackLeft_ = groups_.FallbackCount();
      break;
    case Action::kFontTable:
    case Action::kColorTable:
      groups_.NoteTable(token);
      break;
    case Action::kUnshown:
      groups_.NoteUnshown();
      break;
    case Action::kUnknown:
    case Action::kBreak:
    case Action::kParagraphEnd:
      break;
    default:
      groups_.Note(token);
  }
}

void Cutter::ApplyData(int length) {
  PassCharacters(1);
  if (length <= 0) return;
  const auto size = static_cast<std::size_t>(length);
  missingData_ = size - std::min(size, tokens_.Left());
  tokens_.Skip(size);
}

}  // namespace

CutDocument CutRtf(std::string_view document, std::size_t length) {
  return Cutter(document, length).Cut();
}

}  // namespace verlume::richtext
