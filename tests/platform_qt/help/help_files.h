// The help files that tests read: the program's own, and a small book in both languages.
#pragma once

#include "platform_qt/help/help_book.h"

namespace verlume::qt {

QString HelpFileName(bool isGreek);
QString SmallHelpFile(bool isGreek);
HelpBook SmallBook(bool isGreek);
HelpBook OwnBook(bool isGreek);

}  // namespace verlume::qt
