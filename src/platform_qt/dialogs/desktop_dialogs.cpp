#include "platform_qt/dialogs/desktop_dialogs.h"

#include <QCoreApplication>
#include <QFileInfo>

namespace verlume::qt {

bool DesktopSpeaks(bool isGreek, const QStringList& desktopLanguages) {
  const QString language = desktopLanguages.value(0).section(u'-', 0, 0);
  // A system without a language speaks English.
  const bool isEnglish =
      language.isEmpty() || language == QStringLiteral("C") || language == QStringLiteral("en");
  return isGreek ? language == QStringLiteral("el") : isEnglish;
}

QString MeantFile(const QString& returned, const QString& extension, bool isOpened) {
  const QFileInfo file(returned);
  const bool isComplete =
      returned.isEmpty() || extension.isEmpty() || file.fileName().contains(u'.');
  if (isComplete || file.isDir() || (isOpened && file.isFile())) return returned;
  return returned + u'.' + extension;
}

DesktopDialogsAllowed::DesktopDialogsAllowed(bool areAllowed)
    : isOver_(!areAllowed || !QCoreApplication::testAttribute(Qt::AA_DontUseNativeDialogs)) {
  if (!isOver_) QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs, false);
}

void DesktopDialogsAllowed::End() {
  if (isOver_) return;
  isOver_ = true;
  QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
}

}  // namespace verlume::qt
