#include "platform_qt/dialogs/focus_refusal.h"

#include <QEvent>
#include <QWindow>

namespace verlume::qt {

FocusRefusal::FocusRefusal(QWidget* box) : QObject(box), box_(box) {
  box->installEventFilter(this);
}

bool FocusRefusal::eventFilter(QObject* watched, QEvent* event) {
  // The native window exists now; creating it earlier, by winId(), would give native windows to
  // the widgets of the window below, too.
  if (watched == box_ && event->type() == QEvent::Show) {
    box_->windowHandle()->setFlag(Qt::WindowDoesNotAcceptFocus);
    box_->windowHandle()->installEventFilter(this);
  }
  if (watched == box_->windowHandle() && event->type() == QEvent::Expose &&
      box_->windowHandle()->isExposed()) {
    box_->windowHandle()->setFlag(Qt::WindowDoesNotAcceptFocus, false);
    deleteLater();
  }
  return false;
}

}  // namespace verlume::qt
