// The current help file, the context help made from it, and the help window while it is open.
#pragma once

#include <QPointer>

#include "platform/system.h"
#include "platform_qt/help/help_book.h"
#include "platform_qt/help/help_context.h"
#include "platform_qt/help/help_window.h"

namespace verlume::qt {

// Needs a QApplication.
class QtHelpViewer : public HelpViewer {
 public:
  // The help window has the icon of `mainWindow`, and is always on top if that is.
  explicit QtHelpViewer(QWidget* mainWindow) : mainWindow_(mainWindow) {}
  ~QtHelpViewer() override { delete window_; }

  void SetHelpFile(std::u16string_view path, bool isGreek) override;
  void ShowContents() override;

 private:
  QPointer<QWidget> mainWindow_;
  HelpBook book_;
  QtContextHelp contextHelp_{book_};
  QPointer<HelpForm> window_;  // null while it is closed
};

}  // namespace verlume::qt
