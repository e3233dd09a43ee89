// The file dialog of QtCommonDialog.
#pragma once

#include <QFileDialog>
#include <QFileIconProvider>
#include <QStringList>

#include "platform/dialogs.h"
#include "platform_qt/dialogs/desktop_dialogs.h"

namespace verlume::qt {

// Qt's name filters for "description|pattern|...". A trailing "|" is ignored.
QStringList NameFilters(std::u16string_view filter);

// True if the name's extension differs from the default one, ignoring letter case.
bool HasOtherExtension(const QString& path, const QString& defaultExtension);

// Texts for the type column: a folder, or a file with its extension. The desktop's own texts would
// be in the desktop's language.
class FileTypes : public QFileIconProvider {
 public:
  QString type(const QFileInfo& info) const override;
};

enum class FileDialogs { Qts, Desktops };

// A base class, so that it is there before the dialog and outlives its threads that use it.
struct FileDialogBase {
  explicit FileDialogBase(FileDialogs dialogs) : allowed(dialogs == FileDialogs::Desktops) {}

  DesktopDialogsAllowed allowed;
  FileTypes types;
};

class FileDialog : private FileDialogBase, public QFileDialog {
 public:
  // Qt's dialog, or the desktop's where it has one. Both refuse the same, with the same boxes; the
  // desktop's is closed meanwhile and shown again.
  FileDialog(QWidget* owner, const QString& title, std::u16string_view initialFolder,
             FileDialogs dialogs = FileDialogs::Qts);

  void SetDefaultExtension(const QString& extension);

  // Refuses a name in a folder that does not exist.
  void RequireFolder() { requireFolder_ = true; }
  // Refuses a file that does not exist, with a box. QFileDialog::ExistingFile disables the button
  // instead, and also for files that the name filter hides.
  void RequireFile() { requireFile_ = true; }
  // Refuses a file that exists and is read-only.
  void RefuseReadOnly() { refuseReadOnly_ = true; }

  // The chosen path; empty if there is none. Qt adds the default extension to a name without one.
  // If a file must exist, and does only without the extension, that file is meant.
  QString Path() const;

  int exec() override;

 protected:
  void accept() override;

 private:
  void FitColumns();
  bool IsDesktops() const;
  // Asks the user what the desktop's dialog has not asked. False if the path is not to be taken.
  bool MayTake(const QString& path);
  void Tell(const QString& refusal);
  // The reason why the path may not be chosen; empty if it may.
  QString RefusalOf(const QString& path) const;

  QString extension_;
  bool requireFolder_ = false;
  bool requireFile_ = false;
  bool refuseReadOnly_ = false;
};

}  // namespace verlume::qt
