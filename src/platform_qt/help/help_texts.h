// The help window's own texts.
#pragma once

#include <QString>

namespace verlume::qt {

struct HelpText {
  const char16_t* english;
  const char16_t* greek;

  QString In(bool isGreek) const { return QString::fromUtf16(isGreek ? greek : english); }
};

inline constexpr HelpText kHelpTitle = {u"Verlume Help", u"Βοήθεια του Verlume"};
inline constexpr HelpText kHelpBack = {u"Back", u"Πίσω"};
inline constexpr HelpText kHelpForward = {u"Forward", u"Εμπρός"};
inline constexpr HelpText kHelpContents = {u"Contents", u"Περιεχόμενα"};
inline constexpr HelpText kHelpSearch = {u"Search the help", u"Αναζήτηση στη βοήθεια"};
inline constexpr HelpText kHelpResults = {u"Search results", u"Αποτελέσματα αναζήτησης"};
inline constexpr HelpText kHelpTopic = {u"Help topic", u"Θέμα βοήθειας"};
inline constexpr HelpText kNothingFound = {u"Nothing found", u"Δεν βρέθηκε τίποτα"};

// %1 is the path of the file, %2 the number of a line.
inline constexpr HelpText kHelpMissing = {
    u"There is no help: the help file is missing or cannot be opened.\n\n%1",
    u"Δεν υπάρχει βοήθεια: το αρχείο βοήθειας λείπει ή δεν ανοίγει.\n\n%1"};
inline constexpr HelpText kHelpTooLarge = {
    u"There is no help: the help file is too large to be one.\n\n%1",
    u"Δεν υπάρχει βοήθεια: το αρχείο βοήθειας είναι υπερβολικά μεγάλο.\n\n%1"};
inline constexpr HelpText kHelpDamaged = {
    u"There is no help: the help file is damaged at line %2.\n\n%1",
    u"Δεν υπάρχει βοήθεια: το αρχείο βοήθειας είναι κατεστραμμένο στη γραμμή %2.\n\n%1"};

}  // namespace verlume::qt
