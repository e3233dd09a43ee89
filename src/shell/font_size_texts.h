// Texts of the question for a font size.
#pragma once

#include "shell/text_pair.h"

namespace verlume::font_size_texts {

inline constexpr TextPair kTitle = {u"Font size definition", u"Ορισμός μεγέθους γραμματοσειράς"};
inline constexpr TextPair kPrompt = {
    u"Type the font size."
    u"\r\n\r\n"
    u"You may type a number between 8 and 11 inclusive.",
    u"Πληκτρολογήστε το μέγεθος που θέλετε να έχει η γραμματοσειρά."
    u"\r\n\r\n"
    u"Μπορείτε να πληκτρολογήσετε έναν αριθμό από το 8 μέχρι και το 11."};
inline constexpr TextPair kRange = {
    u"The font size must be between 8 and 11 inclusive.",
    u"Το μέγεθος της γραμματοσειράς πρέπει να είναι μεταξύ του 8 και του 11."};

}  // namespace verlume::font_size_texts
