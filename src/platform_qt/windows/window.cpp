#include "platform_qt/windows/window.h"

#include <QApplication>
#include <QCloseEvent>
#include <QGuiApplication>
#include <QWindow>

#include "platform_qt/convert/text.h"
#include "platform_qt/dialogs/dialogs.h"

namespace verlume::qt {

QtWindow::QtWindow(QWidget* form) : QObject(form), form_(form) {
  form->installEventFilter(this);
}

// Qt removes a "[*]" from a title, and shows two in a row as one.
void QtWindow::SetTitle(std::u16string_view title) {
  form_->setWindowTitle(ToQt(title).replace(QStringLiteral("[*]"), QStringLiteral("[*][*]")));
}

std::u16string QtWindow::Title() const {
  return FromQt(form_->windowTitle().replace(QStringLiteral("[*][*]"), QStringLiteral("[*]")));
}

void QtWindow::Show() {
  form_->show();
}

void QtWindow::ShowModal() {
  if (form_->isVisible()) return;
  unloaded_ = false;
  KeepToOwnProgram(form_);
  form_->setWindowModality(Qt::ApplicationModal);
  // Forget where the user moved it the last time.
  form_->setAttribute(Qt::WA_Moved, false);
  form_->adjustSize();
  form_->show();
  QEventLoop untilHidden;
  whileModal_ = &untilHidden;
  untilHidden.exec(QEventLoop::DialogExec);
  whileModal_ = nullptr;
  // When the program ends, every event loop ends.
  unloaded_ = true;
  form_->hide();
}

void QtWindow::Unload() {
  // Within a handler of the close box close() does nothing; the close in progress goes on.
  if (Close(UnloadMode::Code)) form_->close();
}

bool QtWindow::Close(UnloadMode mode) {
  if (unloaded_) return true;
  bool cancel = false;
  if (onQueryUnload) onQueryUnload(cancel, mode);
  if (unloaded_) return true;
  if (cancel) return false;
  unloaded_ = true;
  if (onUnload) onUnload();
  return true;
}

bool QtWindow::eventFilter(QObject* watched, QEvent* event) {
  if (watched != form_) return false;
  if (event->type() == QEvent::Hide && !event->spontaneous() && whileModal_) whileModal_->quit();
  if (event->type() != QEvent::Close) return false;
  // A second request while the first one is being answered is the same wish.
  bool closed = unloaded_;
  if (!closed && !asking_) {
    asking_ = true;
    closed = Close(UnloadMode::User);
    asking_ = false;
  }
  event->setAccepted(closed);
  return true;
}

bool QtWindow::IsActive() const {
  return QApplication::activeWindow() != nullptr;
}

void QtWindow::FlagForAttention() {
  // Does nothing while the form or a box over it is active.
  QApplication::alert(form_);
}

bool QtWindow::CanBeTopMost() const {
  // Wayland does not let a program put its window on top.
  return !QGuiApplication::platformName().startsWith(QStringLiteral("wayland"));
}

bool QtWindow::SetTopMost(bool topMost) {
  if (!CanBeTopMost()) return false;
  Qt::WindowFlags flags = form_->windowFlags();
  flags.setFlag(Qt::WindowStaysOnTopHint, topMost);
  // QWidget::setWindowFlag would hide the window and show it again elsewhere.
  form_->overrideWindowFlags(flags);
  if (QWindow* window = form_->windowHandle()) {
    window->setFlag(Qt::WindowStaysOnTopHint, topMost);
  }
  return topMost;
}

QtLayoutControl::QtLayoutControl(QWidget* form) : QObject(form), form_(form) {
  setObjectName(QStringLiteral("freeSizer1"));
  form->installEventFilter(this);
}

bool QtLayoutControl::eventFilter(QObject* watched, QEvent* event) {
  if (raised_) return false;
  // The form is on the screen once its native window is exposed; that window exists after the first
  // Show.
  if (watched == form_ && event->type() == QEvent::Show && form_->windowHandle()) {
    form_->windowHandle()->installEventFilter(this);
  }
  if (watched == form_->windowHandle() && event->type() == QEvent::Expose &&
      form_->windowHandle()->isExposed()) {
    raised_ = true;
    QMetaObject::invokeMethod(
        this,
        [this] {
          if (onPostLayout) onPostLayout();
        },
        Qt::QueuedConnection);
  }
  return false;
}

}  // namespace verlume::qt
