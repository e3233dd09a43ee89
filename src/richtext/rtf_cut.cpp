#include "richtext/rtf_cut.h"

#include <algorithm>
#include <utility>

#include "richtext/rtf_opening.h"
#include "richtext/rtf_parser.h"
#include "richtext/unfinished_token.h"

namespace verlume::richtext {
namespace {

using Parser = RtfParser<char, RtfState>;

// The word that makes a document of what follows is in both.
constexpr std::string_view kStart = "{\\rtf";

// No token looks further ahead: the bytes of a character of UTF-8, or "\*" and a table's word.
constexpr std::ptrdiff_t kLookAhead = 16;

class Cutter {
 public:
  explicit Cutter(std::string_view document) : document_(document) {}

  CutDocument CutAt(std::size_t length) const;

 private:
  const char* Begin() const { return document_.data(); }
  const char* End() const { return Begin() + document_.size(); }
  Parser ReadTo(const char* place) const;

  bool IsUnfinished(const Parser& parser) const;
  bool IsInsideFallback(const Parser& parser) const;
  bool IsInsidePair(const Parser& parser) const;

  std::string DefaultFontOf(const Parser& parser) const;
  CutDocument Cut(const Parser& parser, const std::string& character,
                  const std::string& rest) const;

  const std::string_view document_;
};

// Reads to a place between two tokens, or to the next such place.
Parser Cutter::ReadTo(const char* place) const {
  Parser parser(Begin(), End());
  parser.ReadOn(static_cast<std::size_t>(place - Begin()));
  return parser;
}

// Whether what comes later may make another token of the one read last.
bool Cutter::IsUnfinished(const Parser& parser) const {
  const RtfTokens<char> token(parser.LastToken(), End());
  const std::ptrdiff_t left = End() - parser.At();
  // A sign belongs to a word only where a digit follows.
  if (token.AtControlWord()) return left == 0 || (left == 1 && *parser.At() == '-');
  const char first = token.Peek();
  if (first != '\\') return !IsAscii(first) && left < kLookAhead;
  if (left == 0) return true;
  const char symbol = token.At()[1];
  return (symbol == '\'' || symbol == '*' || !IsAscii(symbol)) && left < kLookAhead;
}

// A brace ends the fallback whatever is left of it.
bool Cutter::IsInsideFallback(const Parser& parser) const {
  if (parser.FallbackLeft() == 0) return false;
  return parser.At() == End() || (*parser.At() != '{' && *parser.At() != '}');
}

bool Cutter::IsInsidePair(const Parser& parser) const {
  RtfTokens<char> next(parser.At(), End());
  const auto isHigh = IsHighSurrogate(static_cast<char16_t>(parser.LastUnicodeNumber()));
  if (!isHigh || !next.AtControlWord()) return false;
  next.Skip(1);
  const ControlToken token = next.ReadControlWord();
  return token.word->action == Action::kUnicode &&
         IsLowSurrogate(static_cast<char16_t>(token.parameter));
}

// What is found behind the cut may still say which font the text before it is in: the default one.
std::string Cutter::DefaultFontOf(const Parser& parser) const {
  Parser rest = parser;
  rest.ReadOn(document_.size());
  const FontTable& fonts = rest.GetListener().Fonts();
  if (fonts.DefaultFont() == parser.GetListener().Fonts().DefaultFont()) return {};
  const std::uint16_t index = fonts.IndexOf(fonts.DefaultNumber());
  const std::string font =
      index == FontTable::kDefaultFont ? "" : WriteFont(fonts.Declarations()[index - 1u]) + ';';
  return R"({\fonttbl\uc0)" + font + R"(}\deff)" + std::to_string(fonts.DefaultNumber());
}

CutDocument Cutter::Cut(const Parser& parser, const std::string& character,
                        const std::string& rest) const {
  const RtfState& state = parser.GetListener();
  const std::size_t excess = state.ExcessDepth();
  const std::size_t depth = state.OuterGroups().size() + excess + parser.SkippedDepth();

  std::string before(Begin(), parser.At());
  before.append(depth - 1, '}');
  before += DefaultFontOf(parser);
  before += '}';

  std::string behind = WriteOpening(state);
  behind.append(std::min(excess, kDeepestCut), '{');
  if (parser.IsSkipping()) {
    behind += R"(\*\x )";  // nobody knows such a word
    behind.append(std::min(parser.SkippedDepth(), kDeepestCut), '{');
  }
  return {std::move(before), behind + character + rest};
}

CutDocument Cutter::CutAt(std::size_t length) const {
  const char* cut = Begin() + std::min(std::max(length, kStart.size()), document_.size());
  Parser parser = ReadTo(std::min(cut, End() - std::min(kLookAhead, End() - Begin())));
  const auto goesOn = [&] {
    return parser.At() < cut || IsInsideFallback(parser) || IsInsidePair(parser);
  };
  while (!parser.IsDone() && !IsUnfinished(parser) && goesOn()) parser.ReadOn(1);
  if (parser.GetListener().Ended()) return {std::string(document_), {}};

  std::string rest(parser.At(), End());
  if (IsUnfinished(parser)) {
    const char* token = parser.LastToken();
    rest = ShortenedToken({token, End()});
    if (token == Begin() + 1) return {std::string(kStart) + '}', '{' + rest};
    parser = ReadTo(token);
  }
  if (!IsInsideFallback(parser)) return Cut(parser, {}, rest);

  // The character itself goes behind the cut, with as much of its fallback as has been read.
  const Parser before = ReadTo(parser.LastUnicode());
  const int read = before.GetListener().FallbackCount() - parser.FallbackLeft();
  const std::string character = "\\u" + std::to_string(parser.LastUnicodeNumber()) + ' ' +
                                std::string(static_cast<std::size_t>(read), '?');
  return Cut(before, character, rest);
}

}  // namespace

CutDocument CutRtf(std::string_view document, std::size_t length) {
  return Cutter(document).CutAt(length);
}

}  // namespace verlume::richtext
