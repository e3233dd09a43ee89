#include "help_files.h"

namespace verlume::qt {

QString HelpFileName(bool isGreek) {
  return isGreek ? QStringLiteral("/VerlumeGR.hlp") : QStringLiteral("/VerlumeUK.hlp");
}

QString SmallHelpFile(bool isGreek) {
  return VERLUME_TEST_DATA "/help" + HelpFileName(isGreek);
}

HelpBook SmallBook(bool isGreek) {
  return HelpBook::Load(SmallHelpFile(isGreek), isGreek);
}

HelpBook OwnBook(bool isGreek) {
  return HelpBook::Load(VERLUME_HELP_FOLDER + HelpFileName(isGreek), isGreek);
}

}  // namespace verlume::qt
