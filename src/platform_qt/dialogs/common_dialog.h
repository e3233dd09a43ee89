// The common dialog dlgControl, implemented by Qt's own file, colour and font dialogs. The
// desktop's dialogs are not used, because their language is the desktop's.
#pragma once

#include <QPointer>
#include <QWidget>

#include "platform/dialogs.h"

namespace verlume::qt {

class QtCommonDialog : public CommonDialog {
 public:
  // `mainWindow` is the parent of dialogs shown while no window of the program is active.
  explicit QtCommonDialog(QWidget* mainWindow) : mainWindow_(mainWindow) {}

  FileChoice ShowOpen(const FileChoice& start) override;
  FileChoice ShowSave(const FileChoice& start) override;
  std::u16string ChooseFolder(std::u16string_view title, std::u16string_view initialFolder,
                              std::u16string_view suggestion) override;
  Color ShowColor(Color start) override;
  FontChoice ShowFont(const FontChoice& start, double minimumSize, double maximumSize) override;

 private:
  QPointer<QWidget> mainWindow_;
};

}  // namespace verlume::qt
