// The common dialog dlgControl, implemented by Qt's own file, colour and font dialogs. For files
// the desktop's own dialog is used where it has one and it is in the program's language.
#pragma once

#include <QPointer>
#include <QWidget>
#include <functional>
#include <utility>

#include "platform/dialogs.h"
#include "platform_qt/dialogs/common_dialog_files.h"

namespace verlume::qt {

class QtCommonDialog : public CommonDialog {
 public:
  // `mainWindow` is the parent of dialogs shown while no window of the program is active.
  // `desktopSpeaks` tells whether the desktop's dialogs are in the language in force; without it
  // they are never used.
  explicit QtCommonDialog(QWidget* mainWindow, std::function<bool()> desktopSpeaks = {})
      : mainWindow_(mainWindow), desktopSpeaks_(std::move(desktopSpeaks)) {}

  FileChoice ShowOpen(const FileChoice& start) override;
  FileChoice ShowSave(const FileChoice& start) override;
  std::u16string ChooseFolder(std::u16string_view title, std::u16string_view initialFolder,
                              std::u16string_view suggestion) override;
  Color ShowColor(Color start) override;
  FontChoice ShowFont(const FontChoice& start, double minimumSize, double maximumSize) override;

 private:
  FileDialogs FileDialogsInForce() const;

  QPointer<QWidget> mainWindow_;
  std::function<bool()> desktopSpeaks_;
};

}  // namespace verlume::qt
