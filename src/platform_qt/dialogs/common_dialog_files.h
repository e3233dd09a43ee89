// The file dialog behind QtCommonDialog.
#pragma once

#include <QFileDialog>
#include <QFileIconProvider>
#include <QStringList>

#include "platform/dialogs.h"

namespace verlume::qt {

// Qt's name filters for "description|pattern|...". A last "|" with nothing behind it is nothing.
QStringList NameFilters(std::u16string_view filter);

// True when the name's extension is another than the default one, in any letter case.
bool HasOtherExtension(const QString& path, const QString& defaultExtension);

// What the column of types says: a folder, or a file of its extension. The desktop's own
// descriptions would come in the desktop's language.
class FileTypes : public QFileIconProvider {
 public:
  QString type(const QFileInfo& info) const override;
};

// A base, so that it outlives the dialog's own threads that ask it.
struct FileTypesHolder {
  FileTypes types;
};

class FileDialog : private FileTypesHolder, public QFileDialog {
 public:
  FileDialog(QWidget* owner, const QString& title, std::u16string_view initialFolder);

  // Refuses a name in a folder that is not there.
  void RequireFolder() { requireFolder_ = true; }
  // Refuses a file that is there and may not be written.
  void RefuseReadOnly() { refuseReadOnly_ = true; }

 protected:
  void accept() override;

 private:
  void FitColumns();
  // Why the path may not be chosen; empty where it may.
  QString RefusalOf(const QString& path) const;

  bool requireFolder_ = false;
  bool refuseReadOnly_ = false;
};

}  // namespace verlume::qt
