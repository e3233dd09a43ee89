// The fixed texts of what the user sees of private conversations, each with the element that shows
// it.
#pragma once

#include <vector>

#include "platform/people_window.h"
#include "platform/verify_window.h"
#include "shell/language_texts.h"

namespace verlume {

// The menus, the lock and the bar of the main window.
std::vector<FixedText> PrivateTexts(const MainWindow& frmMain);
std::vector<FixedText> PeopleWindowTexts(const PeopleWindow& frmPeople);
std::vector<FixedText> VerifyWindowTexts(const VerifyWindow& frmVerify);

// The columns of lstPeople, in their order.
enum class PeopleColumn { Name, CallsItself, Since, Last, Verified };

// lblPeopleNone while the table is empty.
inline constexpr TextPair kNobodyYet = {
    u"Nobody yet. Everybody with whom you talk in private will be listed here.",
    u"Κανείς ακόμη. Εδώ θα εμφανίζονται όλοι όσοι συνομιλούν μαζί σας ιδιωτικά."};

}  // namespace verlume
