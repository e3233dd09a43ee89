// The texts about invitations.
#pragma once

#include "shell/text_pair.h"

namespace verlume::invitation_texts {

inline constexpr TextPair kTitle = {u"Invitation", u"Πρόσκληση"};
// %1 the invitation
inline constexpr TextPair kCopied = {
    u"This invitation is on the clipboard:\r\n\r\n%1\r\n\r\n"
    u"Send it to a friend, who pastes it into the command pane and presses Enter. The call reaches "
    u"you, and nobody else, as long as you wait on this port.",
    u"Αυτή η πρόσκληση βρίσκεται στο πρόχειρο:\r\n\r\n%1\r\n\r\n"
    u"Στείλτε την σε έναν φίλο, για να την επικολλήσει στο πλαίσιο εντολών και να πατήσει Enter. Η "
    u"κλήση φτάνει σε εσάς και σε κανέναν άλλον, όσο περιμένετε σε αυτή τη θύρα."};
inline constexpr TextPair kWaitFirst = {
    u"An invitation says where you wait for a call. Choose Communication > Wait first.",
    u"Η πρόσκληση λέει πού περιμένετε κλήση. Επιλέξτε πρώτα Επικοινωνία > Αναμονή."};
inline constexpr TextPair kWrong = {
    u"This is not a whole invitation. Copy it again, from its first letter to its last.",
    u"Αυτή δεν είναι ολόκληρη πρόσκληση. Αντιγράψτε την ξανά, από το πρώτο γράμμα ως το "
    u"τελευταίο."};
// %1 host, %2 port
inline constexpr TextPair kAskToCall = {
    u"An invitation was opened. Do you want to call the computer %1 on port %2?\r\n\r\n"
    u"The call goes on only if the key of the invitation answers.",
    u"Ανοίχτηκε μια πρόσκληση. Θέλετε να καλέσετε τον υπολογιστή %1 στη θύρα %2;\r\n\r\n"
    u"Η κλήση συνεχίζεται μόνο αν απαντήσει το κλειδί της πρόσκλησης."};

}  // namespace verlume::invitation_texts
