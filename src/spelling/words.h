// Which words of a line are looked up in a dictionary.
#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

namespace verlume::spelling {

enum class Script { Latin, Greek };

struct Word {
  std::size_t start;
  std::size_t length;
  Script script;

  bool operator==(const Word&) const = default;
};

// A longer word is in no dictionary.
inline constexpr std::size_t kLongestWord = 64;

// The words of a text, in order. Left out are words of one letter or of capitals alone, with a
// digit or with letters of two scripts, addresses and paths, placeholders such as "$l", and what is
// cut off before an apostrophe in Greek.
std::vector<Word> WordsOf(std::u16string_view text);

// Where the words of a line begin: behind the command word of an action line, at the end of any
// other line that begins with "/", and otherwise at the start.
std::size_t StartOfWords(std::u16string_view line);

}  // namespace verlume::spelling
