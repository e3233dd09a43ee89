#include "platform_qt/dialogs/focus_refusal.h"

#include <QEvent>
#include <QWindow>

namespace verlume::qt {

FocusRefusal::FocusRefusal(QWidget* box) : QObject(box), box_(box) {
  box->winId();  // creates the native window
  box->windowHandle()->setFlag(Qt::WindowDoesNotAcceptFocus);
  box->windowHandle()->installEventFilter(this);
}

bool FocusRefusal::eventFilter(QObject*, QEvent* event) {
  if (event->type() == QEvent::Expose && box_->windowHandle()->isExposed()) {
    box_->windowHandle()->setFlag(Qt::WindowDoesNotAcceptFocus, false);
    deleteLater();
  }
  return false;
}

}  // namespace verlume::qt
