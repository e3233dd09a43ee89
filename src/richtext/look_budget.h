// How much of the look of a text that somebody else wrote is kept, so that a short text cannot cost
// much memory and time. What a budget cuts is look, never text.
#pragma once

#include <cstddef>

#include "richtext/document.h"

namespace verlume::richtext {

namespace look_budget {

// Each change of format is a piece that a pane keeps, lays out and paints by itself: some 40 bytes
// and 5 microseconds. People change formats by the word. The first are free, for a short text in
// which every letter has a colour of its own.
inline constexpr std::size_t kFreeFormatChanges = 1'024;
inline constexpr std::size_t kCharactersPerFormatChange = 16;  // behind the free ones

// A paragraph costs a pane up to a kibibyte, and two bytes of a peer. A thick book has fewer.
inline constexpr std::size_t kMostParagraphs = 50'000;

}  // namespace look_budget

// Beyond the budget text goes on in the last format, and line breaks become blanks. Linear.
void KeepWithinBudget(Document& document);

}  // namespace verlume::richtext
