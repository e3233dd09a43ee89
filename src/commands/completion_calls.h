// Completions of "/CALL ": the computers that were called last.
#pragma once

#include <span>
#include <string_view>
#include <vector>

#include "commands/completion_words.h"
#include "platform/system.h"
#include "shell/called_hosts.h"

namespace verlume {

// Whether the text is the word that calls, in either language, and a blank; more may follow.
bool IsCallLine(std::u16string_view text, const Locale& locale);

// For such a text the whole lines, in the order given, whose host and port begin with what follows
// the blank; case does not matter. The word stays as it is typed. None when the line is one of them
// already.
std::vector<Completion> CallsOf(std::u16string_view typed, std::span<const CalledHost> called,
                                const Locale& locale);

}  // namespace verlume
