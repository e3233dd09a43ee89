// The desktop's own file dialogs, which Qt shows where the desktop has any (a platform theme or a
// portal), and what they may leave undone.
#pragma once

#include <QString>
#include <QStringList>

namespace verlume::qt {

// Whether the desktop's dialogs are in the language of the program. `desktopLanguages` are those of
// the user's locale, the preferred one first, as QLocale::uiLanguages() has them.
bool DesktopSpeaks(bool isGreek, const QStringList& desktopLanguages);

// The file that is meant by what a dialog of the desktop returns. `extension` belongs to a name
// without one; unless an existing file of that bare name was opened.
QString MeantFile(const QString& returned, const QString& extension, bool isOpened);

// While one lives, a dialog that is made may be the desktop's.
class DesktopDialogsAllowed {
 public:
  explicit DesktopDialogsAllowed(bool areAllowed);
  ~DesktopDialogsAllowed() { End(); }
  DesktopDialogsAllowed(const DesktopDialogsAllowed&) = delete;
  DesktopDialogsAllowed& operator=(const DesktopDialogsAllowed&) = delete;

  void End();

 private:
  bool isOver_;
};

}  // namespace verlume::qt
