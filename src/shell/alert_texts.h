// The texts of announcements and notifications.
#pragma once

#include "shell/text_pair.h"

namespace verlume::alert_texts {

// Who says a line, before the peer has sent its nickname.
inline constexpr TextPair kOtherSide = {u"The other side", u"Η άλλη πλευρά"};
// %1 who says it, %2 the line
inline constexpr TextPair kLine = {u"%1: %2", u"%1: %2"};
// In the place of a line whose text is not to be shown.
inline constexpr TextPair kNewLine = {u"New line", u"Νέα γραμμή"};
// %1 how many, always more than one
inline constexpr TextPair kNewLines = {u"%1 new lines", u"%1 νέες γραμμές"};

inline constexpr TextPair kIncomingCall = {u"Incoming call", u"Εισερχόμενη κλήση"};
// %1 the address
inline constexpr TextPair kIsCalling = {u"%1 is calling", u"Κλήση από %1"};

}  // namespace verlume::alert_texts
