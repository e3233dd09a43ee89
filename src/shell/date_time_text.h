// The fixed forms of date and time in stamps and log lines, independent of the regional settings.
#pragma once

#include <string>

#include "platform/system.h"

namespace verlume {

std::u16string DateText(const Clock& clock);  // 2026-03-07
std::u16string TimeText(const Clock& clock);  // 09:05:30

// DateText + "_" + TimeText, as in log lines and full stamps.
std::u16string DateTimeText(const Clock& clock);

// For the clock of the status panel, in the system's long forms: date + " - " + time.
std::u16string LongDateTimeText(const Clock& clock, const Locale& locale);

}  // namespace verlume
