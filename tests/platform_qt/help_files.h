// The help files that tests read: the program's own, and a small book in both languages.
#pragma once

#include "platform_qt/help_book.h"
#include "platform_qt/qt_text.h"

namespace verlume::qt {

inline QString HelpFileName(bool isGreek) {
  return isGreek ? QStringLiteral("/VerlumeGR.hlp") : QStringLiteral("/VerlumeUK.hlp");
}

inline QString SmallHelpFile(bool isGreek) {
  return VERLUME_TEST_DATA "/help" + HelpFileName(isGreek);
}

inline HelpBook SmallBook(bool isGreek) {
  return HelpBook::Load(SmallHelpFile(isGreek), isGreek);
}

inline HelpBook OwnBook(bool isGreek) {
  return HelpBook::Load(VERLUME_HELP_FOLDER + HelpFileName(isGreek), isGreek);
}

}  // namespace verlume::qt
