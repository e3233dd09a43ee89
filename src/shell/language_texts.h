// The fixed texts of the main window, each with the element that shows it.
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

// The tool tip of lblStatus; shell/delivery.h may add to it.
inline constexpr TextPair kStatusToolTip = {u"Status", u"Κατάσταση"};

// The tool tip of lblLocalIP; reach/outer_address.h may add to it.
inline constexpr TextPair kLocalAddressToolTip = {u"Local address", u"Τοπική διεύθυνση"};

// The tool tip of lblRemoteNickname; shell/who_is_who.h may add to it.
inline constexpr TextPair kRemoteNicknameToolTip = {u"Remote nickname", u"Απομακρυσμένο ψευδώνυμο"};

// The tool tip of an address in the dialogue.
inline constexpr TextPair kLinkHint = {u"Ctrl+click opens this address",
                                       u"Ctrl+κλικ ανοίγει αυτή τη διεύθυνση"};

// The tool tip of the entry "Always on top" when the desktop does not allow that.
inline constexpr TextPair kNeverTopMost = {
    u"This desktop does not let programs place themselves above others.",
    u"Αυτή η επιφάνεια εργασίας δεν επιτρέπει στα προγράμματα να τοποθετούνται πάνω από τα άλλα."};

// Title, menus and tool tips, in the order in which they are set.
std::vector<FixedText> MenuAndToolTipTexts(const MainWindow& frmMain);

// The captions of the status panel and of the format controls, and the names that assistive tools
// read.
std::vector<FixedText> PanelTexts(const MainWindow& frmMain);

}  // namespace verlume
