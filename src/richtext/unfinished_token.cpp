#include "richtext/unfinished_token.h"

#include <algorithm>
#include <cstdlib>

#include "richtext/rtf_tokens.h"

namespace verlume::richtext {
namespace {

std::string_view Rest(const RtfTokens<char>& tokens) {
  return {tokens.At(), tokens.Left()};
}

// At a control word.
std::string ShortenedWord(RtfTokens<char> tokens) {
  const char* const letters = tokens.At() + 1;
  const char* const lettersEnd = std::find_if_not(letters, tokens.End(), IsAsciiLetter<char>);
  tokens.Skip(1);
  const ControlToken token = tokens.ReadControlWord();
  const bool isDelimited = tokens.At()[-1] == ' ';
  const bool hasEnd = isDelimited || !tokens.AtEnd();
  if (hasEnd && token.word->action == Action::kBinary && token.parameter > 0) {
    const auto size = static_cast<std::size_t>(token.parameter);
    const std::size_t missing = size - std::min(size, tokens.Left());
    tokens.Skip(size);
    return "\\bin" + std::to_string(missing) + ' ' + std::string(Rest(tokens));
  }
  const auto length = static_cast<std::size_t>(lettersEnd - letters);
  std::string rtf = "\\";
  rtf.append(letters, std::min(length, limits::kMaxControlWordLength + 1));
  if (token.hasParameter) {
    if (*lettersEnd == '-') rtf += '-';
    rtf += std::to_string(std::abs(token.parameter));
  }
  if (isDelimited) rtf += ' ';
  return rtf.append(Rest(tokens));
}

}  // namespace

std::string ShortenedToken(std::string_view rtf) {
  constexpr std::string_view kIgnorable = "\\*";
  RtfTokens<char> tokens(rtf.data(), rtf.data() + rtf.size());
  std::string shortened;
  if (rtf.starts_with(kIgnorable)) {
    tokens.Skip(kIgnorable.size());
    tokens.SkipLineEnds();
    shortened = kIgnorable;
  }
  if (tokens.AtControlWord()) return shortened + ShortenedWord(tokens);
  return shortened.append(Rest(tokens));
}

}  // namespace verlume::richtext
