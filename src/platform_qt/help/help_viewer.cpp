#include "platform_qt/help/help_viewer.h"

#include "platform_qt/convert/text.h"

namespace verlume::qt {

void QtHelpViewer::SetHelpFile(std::u16string_view path, bool isGreek) {
  book_ = HelpBook::Load(ToQt(path), isGreek);
  contextHelp_.Apply();
  if (window_) window_->BookChanged();
}

void QtHelpViewer::ShowContents() {
  if (!window_) {
    window_ = new HelpForm(book_);
    window_->setWindowIcon(mainWindow_->windowIcon());
  }
  // Otherwise it would open hidden below a window that is always on top.
  const bool topMost = mainWindow_->windowFlags().testFlag(Qt::WindowStaysOnTopHint);
  if (!window_->isVisible()) window_->setWindowFlag(Qt::WindowStaysOnTopHint, topMost);
  window_->setWindowState(window_->windowState() & ~Qt::WindowMinimized);
  window_->show();
  window_->raise();
  window_->activateWindow();
}

}  // namespace verlume::qt
