// What one side of a conversation says: a script that follows from a seed. Each step is one message
// of the protocol.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace verlume::network {

enum class StepKind {
  Plain,      // a typed line
  Formatted,  // a typed line, half of it bold
  Action,     // the action command
  Nickname,   // the nickname command, which leaves no line
  Macro,      // the macro of that name
  Bare        // text that is no rich text, as other programs send it
};

struct Step {
  StepKind kind;
  std::u16string text;  // what is typed, without a command's word
};

struct Play {
  char16_t side = u'A';  // every nickname of this side begins with it
  std::uint64_t seed = 0;
  std::size_t steps = 0;
  std::size_t longest = 64 << 10;  // characters of the longest line
  std::size_t longLines = 1;       // how many lines are so long
};

inline constexpr char16_t kMacroName[] = u"greeting";
// The macro's text; "$l" stands for who sends it.
inline constexpr char16_t kMacroText[] = u"A macro of $l, run once.";

std::u16string FirstNickname(char16_t side);

std::vector<Step> StepsOf(const Play& play);

// What the other side's dialogue pane shows of it, line by line.
std::vector<std::u16string> LinesShownOf(const Play& play);

}  // namespace verlume::network
