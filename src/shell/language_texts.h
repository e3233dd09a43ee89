// The fixed texts of the main window, each beside the element that shows it.
#pragma once

#include <functional>
#include <string_view>
#include <vector>

#include "platform/main_window.h"
#include "shell/text_pair.h"

namespace verlume {

struct FixedText {
  std::function<void(std::u16string_view)> set;  // gives the element its text
  TextPair text;
};

inline constexpr TextPair kMainWindowTitle = {u"Verlume", u"Verlume"};

// Of lblStatus; shell/delivery.h may add to it.
inline constexpr TextPair kStatusToolTip = {u"Status", u"Κατάσταση"};

// Of the entry "Always on top", where that cannot be.
inline constexpr TextPair kNeverTopMost = {
    u"This desktop does not let programs place themselves above others.",
    u"Αυτή η επιφάνεια εργασίας δεν επιτρέπει στα προγράμματα να τοποθετούνται πάνω από τα άλλα."};

// Title, menus and tool tips, in the order in which they are set.
std::vector<FixedText> MenuAndToolTipTexts(const MainWindow& frmMain);

// What stands beside the values of the status panel, the format controls, and the names that
// assistive tools read.
std::vector<FixedText> PanelTexts(const MainWindow& frmMain);

}  // namespace verlume
