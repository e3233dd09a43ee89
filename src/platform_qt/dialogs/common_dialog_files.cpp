#include "platform_qt/dialogs/common_dialog_files.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QHeaderView>
#include <QLineEdit>
#include <QMessageBox>
#include <QPointer>
#include <QScreen>
#include <QTreeView>

#include "platform_qt/convert/text.h"
#include "platform_qt/os/files.h"

namespace verlume::qt {
namespace {

constexpr QSize kUsualSize(780, 480);
constexpr QSize kWindowFrame(20, 50);  // the window manager's frame

}  // namespace

QStringList NameFilters(std::u16string_view filter) {
  const QStringList pieces = ToQt(filter).split(u'|', Qt::SkipEmptyParts);
  if (pieces.size() == 1) return pieces;
  QStringList filters;
  for (qsizetype index = 0; index + 1 < pieces.size(); index += 2) {
    const QString& description = pieces[index];
    QString pattern = pieces[index + 1];
    pattern.replace(u';', u' ');
    // Qt takes the patterns from the last parentheses, which many descriptions already have.
    const QString behind = QStringLiteral("(%1)").arg(pattern);
    filters.append(description.endsWith(behind) ? description : description + u' ' + behind);
  }
  return filters;
}

bool HasOtherExtension(const QString& path, const QString& defaultExtension) {
  return !defaultExtension.isEmpty() &&
         QFileInfo(path).suffix().compare(defaultExtension, Qt::CaseInsensitive) != 0;
}

QString FileTypes::type(const QFileInfo& info) const {
  if (info.isDir()) return QCoreApplication::translate("QAbstractFileIconProvider", "Folder");
  const QString suffix = info.suffix().toUpper();
  if (suffix.isEmpty()) return QCoreApplication::translate("QAbstractFileIconProvider", "File");
  return QCoreApplication::translate("QAbstractFileIconProvider", "%1 File").arg(suffix);
}

FileDialog::FileDialog(QWidget* owner, const QString& title, std::u16string_view initialFolder,
                       FileDialogs dialogs)
    : FileDialogBase(dialogs), QFileDialog(owner, title) {
  setObjectName(QStringLiteral("fileDialog"));
  if (dialogs == FileDialogs::Qts) setOption(DontUseNativeDialog);
  allowed.End();
  setIconProvider(&types);
  const QString folder = ToQt(initialFolder);
  if (!folder.isEmpty() && QFileInfo(folder).isDir()) setDirectory(folder);
  if (!IsDesktops()) FitColumns();
}

// Qt makes its own widgets only when the desktop has no dialog.
bool FileDialog::IsDesktops() const {
  return !findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
}

// The desktop's dialog does not get the extension: it would not tell whether it has added it.
void FileDialog::SetDefaultExtension(const QString& extension) {
  extension_ = extension;
  if (!IsDesktops()) setDefaultSuffix(extension);
}

// Qt's own widths cut the type and the date. Here the name gets what the other columns leave.
void FileDialog::FitColumns() {
  resize(kUsualSize.boundedTo(screen()->availableSize() - kWindowFrame));
  const auto* details = findChild<QTreeView*>(QStringLiteral("treeView"));
  if (!details || details->header()->count() == 0) return;
  details->header()->setStretchLastSection(false);
  details->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
  details->header()->setSectionResizeMode(0, QHeaderView::Stretch);
}

void FileDialog::accept() {
  const QString path = Path();
  const QString refusal = path.isEmpty() || IsDesktops() ? QString() : RefusalOf(path);
  if (refusal.isEmpty()) return QFileDialog::accept();
  Tell(refusal);
}

// The desktop's dialog has closed when it accepts.
int FileDialog::exec() {
  const QPointer<FileDialog> alive = this;
  for (;;) {
    const int result = QFileDialog::exec();
    if (!alive || result != Accepted || !IsDesktops()) return result;
    const bool mayTake = MayTake(Path());
    if (!alive || mayTake) return result;
  }
}

bool FileDialog::MayTake(const QString& path) {
  const QString refusal = path.isEmpty() ? QString() : RefusalOf(path);
  if (!refusal.isEmpty()) {
    Tell(refusal);
    return false;
  }
  // The dialog has asked about the name that it returns.
  const bool hasAsked = acceptMode() == AcceptOpen || testOption(DontConfirmOverwrite) ||
                        path == selectedFiles().value(0);
  if (hasAsked || !QFileInfo::exists(path)) return true;
  // As QFileDialog asks itself.
  QMessageBox box(QMessageBox::Warning, windowTitle(), QString(),
                  QMessageBox::Yes | QMessageBox::No, parentWidget());
  box.setTextFormat(Qt::PlainText);
  box.setText(QFileDialog::tr("%1 already exists.\nDo you want to replace it?")
                  .arg(QDir::toNativeSeparators(path)));
  box.setDefaultButton(QMessageBox::No);
  return box.exec() == QMessageBox::Yes;
}

void FileDialog::Tell(const QString& refusal) {
  QMessageBox box(QMessageBox::Warning, windowTitle(), QString(), QMessageBox::Ok,
                  IsDesktops() ? parentWidget() : this);
  box.setTextFormat(Qt::PlainText);
  box.setText(refusal);
  box.exec();
}

QString FileDialog::Path() const {
  const QString path = selectedFiles().value(0);
  if (IsDesktops()) return MeantFile(path, extension_, acceptMode() == AcceptOpen);
  const QString extension = u'.' + defaultSuffix();
  const auto* edit = findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
  const bool wasTyped = !edit || edit->text().endsWith(extension, Qt::CaseInsensitive);
  if (!requireFile_ || wasTyped || !path.endsWith(extension) || QFileInfo::exists(path)) {
    return path;
  }
  const QString bare = path.chopped(extension.size());
  return QFileInfo(bare).isFile() ? bare : path;
}

// Qt's own wording, where it has any; the translator translates all like Qt's other texts.
QString FileDialog::RefusalOf(const QString& path) const {
  const QFileInfo file(path);
  const QString folder = file.absolutePath();
  if (requireFolder_ && !QFileInfo(folder).isDir()) {
    return QFileDialog::tr(
               "%1\nDirectory not found.\nPlease verify the correct directory name was given.")
        .arg(QDir::toNativeSeparators(folder));
  }
  if (fileMode() != Directory && !file.isDir() && !CanBeFileName(FromQt(file.fileName()))) {
    return QFileDialog::tr("%1\nNo file can have this name.\nPlease choose another one.")
        .arg(QDir::toNativeSeparators(path));
  }
  if (requireFile_ && !file.exists()) {
    return QFileDialog::tr("%1\nFile not found.\nPlease verify the correct file name was given.")
        .arg(QDir::toNativeSeparators(path));
  }
  if (refuseReadOnly_ && file.isFile() && !CanWriteTo(path.toStdString())) {
    return QCoreApplication::translate("QSaveFile", "Existing file %1 is not writable")
        .arg(QDir::toNativeSeparators(path));
  }
  return {};
}

}  // namespace verlume::qt
