#include "platform_qt/dialogs/common_dialog.h"

#include <QColorDialog>
#include <QFileInfo>
#include <memory>

#include "platform/run_time_failure.h"
#include "platform_qt/convert/text.h"
#include "platform_qt/dialogs/common_dialog_font.h"
#include "platform_qt/dialogs/dialogs.h"
#include "platform_qt/dialogs/folder_suggestion.h"

namespace verlume::qt {
namespace {

// Shows the dialog and returns what `result` reads from it. If the program ends meanwhile, the
// dialog is deleted with its parent, which counts as a cancel.
template <class Dialog, class Result>
auto Ask(Dialog* dialog, Result result) {
  const QPointer<Dialog> alive = dialog;
  KeepToOwnProgram(dialog);
  const bool accepted = dialog->exec() == QDialog::Accepted;
  if (!alive) throw RunTimeFailure(FailureNumber::Cancelled);
  const std::unique_ptr<Dialog> owned(dialog);
  if (!accepted) throw RunTimeFailure(FailureNumber::Cancelled);
  return result(*owned);
}

FileDialog* NewFileDialog(QWidget* owner, const FileChoice& start, FileDialogs dialogs) {
  auto* dialog = new FileDialog(owner, ToQt(start.title), start.initialFolder, dialogs);
  const QStringList filters = NameFilters(start.filter);
  if (!filters.isEmpty()) dialog->setNameFilters(filters);
  dialog->SetDefaultExtension(ToQt(start.defaultExtension));
  if (start.flags & dialog_flag::kPathMustExist) dialog->RequireFolder();
  return dialog;
}

FileChoice Chosen(const FileDialog& dialog, const FileChoice& start) {
  FileChoice choice = start;
  const QString path = dialog.Path();
  choice.fileName = PathFromQt(path);
  choice.flags &= ~dialog_flag::kExtensionDifferent;
  // A name without an extension is chosen only for a file that has that name; none was altered.
  const bool isBare =
      dialog.acceptMode() == QFileDialog::AcceptOpen && !QFileInfo(path).fileName().contains(u'.');
  if (!isBare && HasOtherExtension(path, ToQt(start.defaultExtension))) {
    choice.flags |= dialog_flag::kExtensionDifferent;
  }
  return choice;
}

// Adds the extension to the proposed name, because "ann.lee" alone would seem to have one.
QString ProposedName(const FileChoice& start) {
  const QString name = ToQt(start.fileName);
  const QString extension = ToQt(start.defaultExtension);
  if (name.isEmpty() || !HasOtherExtension(name, extension)) return name;
  return name + u'.' + extension;
}

}  // namespace

FileDialogs QtCommonDialog::FileDialogsInForce() const {
  return desktopSpeaks_ && desktopSpeaks_() ? FileDialogs::Desktops : FileDialogs::Qts;
}

FileChoice QtCommonDialog::ShowOpen(const FileChoice& start) {
  FileDialog* dialog = NewFileDialog(ParentOfBoxes(mainWindow_), start, FileDialogsInForce());
  dialog->setFileMode(QFileDialog::AnyFile);
  if (start.flags & dialog_flag::kFileMustExist) dialog->RequireFile();
  if (!start.fileName.empty()) dialog->selectFile(ToQt(start.fileName));
  return Ask(dialog, [&start](const FileDialog& done) { return Chosen(done, start); });
}

FileChoice QtCommonDialog::ShowSave(const FileChoice& start) {
  FileDialog* dialog = NewFileDialog(ParentOfBoxes(mainWindow_), start, FileDialogsInForce());
  dialog->setAcceptMode(QFileDialog::AcceptSave);
  dialog->setFileMode(QFileDialog::AnyFile);
  dialog->setOption(QFileDialog::DontConfirmOverwrite,
                    !(start.flags & dialog_flag::kOverwritePrompt));
  if (start.flags & dialog_flag::kNoReadOnlyReturn) dialog->RefuseReadOnly();
  if (!start.fileName.empty()) dialog->selectFile(ProposedName(start));
  return Ask(dialog, [&start](const FileDialog& done) { return Chosen(done, start); });
}

std::u16string QtCommonDialog::ChooseFolder(std::u16string_view title,
                                            std::u16string_view initialFolder,
                                            std::u16string_view suggestion) {
  // The desktop's dialog could not offer the suggestion.
  const FileDialogs dialogs = suggestion.empty() ? FileDialogsInForce() : FileDialogs::Qts;
  auto* dialog = new FileDialog(ParentOfBoxes(mainWindow_), ToQt(title), initialFolder, dialogs);
  SuggestFolder(*dialog, FolderInDocuments(ToQt(suggestion)));
  dialog->setFileMode(QFileDialog::Directory);
  dialog->setOption(QFileDialog::ShowDirsOnly);
  return Ask(dialog, [](const FileDialog& done) {
    const QString folder = done.selectedFiles().value(0);
    return PathFromQt(folder.endsWith(u'/') ? folder : folder + u'/');
  });
}

Color QtCommonDialog::ShowColor(Color start) {
  auto* dialog = new QColorDialog(ToQt(start), ParentOfBoxes(mainWindow_));
  dialog->setObjectName(QStringLiteral("colorDialog"));
  dialog->setOption(QColorDialog::DontUseNativeDialog);
  return Ask(dialog, [](const QColorDialog& done) { return FromQt(done.selectedColor()); });
}

FontChoice QtCommonDialog::ShowFont(const FontChoice& start, double minimumSize,
                                    double maximumSize) {
  auto* dialog = new FontDialog(ParentOfBoxes(mainWindow_), start, minimumSize, maximumSize);
  return Ask(dialog, [](const FontDialog& done) { return done.Choice(); });
}

}  // namespace verlume::qt
