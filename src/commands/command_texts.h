// What the slash commands do, in a few words, for the list of completions.
#pragma once

#include <string_view>

#include "shell/text_pair.h"

namespace verlume {

struct CommandText {
  std::u16string_view command;  // the English word
  TextPair arguments;           // those in brackets may be left out; "" for none
  TextPair explanation;
};

// The texts of a command of the table, by its English word. Every command has some.
const CommandText& TextOfCommand(std::u16string_view english);

}  // namespace verlume
