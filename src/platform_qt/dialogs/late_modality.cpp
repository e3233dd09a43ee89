#include "platform_qt/dialogs/late_modality.h"

#include <QGuiApplication>
#include <chrono>

namespace verlume::qt {
namespace {

constexpr std::chrono::seconds kLongest{1};
// Keys that were pressed before may still be waiting when the box is told of its keyboard.
constexpr std::chrono::milliseconds kLatecomers{100};

}  // namespace

LateModality::LateModality(QWidget* box) : QObject(box), box_(box) {
  if (QGuiApplication::applicationState() != Qt::ApplicationActive) return;
  box->setWindowModality(Qt::WindowModal);
  box->installEventFilter(this);
  limit_.setSingleShot(true);
  limit_.callOnTimeout(this, [this] { BlockOthers(); });
  limit_.start(kLongest);
}

bool LateModality::eventFilter(QObject*, QEvent* event) {
  if (!IsPending()) return false;
  // A box that is modal for the window below it, and has none, blocks no window. Its native window
  // exists now; creating it earlier, by winId(), would give native windows to other widgets too.
  if (event->type() == QEvent::Show) {
    below_ = box_->windowHandle()->transientParent();
    box_->windowHandle()->setTransientParent(nullptr);
  }
  if (event->type() == QEvent::WindowActivate) limit_.start(kLatecomers);
  return false;
}

void LateModality::BlockOthers() {
  limit_.stop();
  box_->windowHandle()->setModality(Qt::ApplicationModal);
  box_->windowHandle()->setTransientParent(below_);
  // Qt finds out anew whether a window is blocked when the window gets its parent.
  for (QWindow* window : QGuiApplication::topLevelWindows()) {
    window->setTransientParent(window->transientParent());
  }
}

}  // namespace verlume::qt
