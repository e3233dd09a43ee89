#include "platform_qt/windows/new_lines_button.h"

#include <QEvent>
#include <QShortcut>
#include <QVBoxLayout>
#include <algorithm>

namespace verlume::qt {

NewLinesFrame::NewLinesFrame(QWidget* area) : QFrame(area), button_(new QPushButton(this)) {
  setObjectName(QStringLiteral("fraNewLines"));
  setAutoFillBackground(true);
  button_->setObjectName(QStringLiteral("cmdNewLines"));
  button_->setFocusPolicy(Qt::TabFocus);
  auto* inside = new QVBoxLayout(this);
  inside->setContentsMargins(0, 0, 0, 0);
  inside->addWidget(button_);
  // Where the keys do not move a caret; the command pane has its own.
  auto* down = new QShortcut(QKeySequence(Qt::CTRL | Qt::Key_End), this);
  connect(down, &QShortcut::activated, button_, [this] { button_->click(); });
  hide();
}

void NewLinesFrame::PlaceOver(QPlainTextEdit* pane) {
  pane_ = pane;
  text_ = pane->viewport();
  pane_->installEventFilter(this);
  text_->installEventFilter(this);
}

bool NewLinesFrame::event(QEvent* event) {
  const bool handled = QFrame::event(event);
  if (event->type() == QEvent::LayoutRequest) Place();
  return handled;
}

void NewLinesFrame::showEvent(QShowEvent* event) {
  QFrame::showEvent(event);
  raise();
  Place();
}

bool NewLinesFrame::eventFilter(QObject* watched, QEvent* event) {
  // The pane hears of its new size before its text has it.
  const bool isMoved = watched == pane_ && event->type() == QEvent::Move;
  const bool isResized = watched == text_ && event->type() == QEvent::Resize;
  if (isMoved || isResized) Place();
  return false;
}

void NewLinesFrame::Place() {
  if (!text_ || isHidden()) return;
  constexpr int kSpace = 4;  // pixels, to the edge of the pane
  QRect text = text_->geometry();
  text.moveTopLeft(pane_->mapToParent(text.topLeft()));
  const int width = std::min(sizeHint().width(), text.width());
  const int height = sizeHint().height();
  setGeometry(text.center().x() - width / 2, text.bottom() + 1 - height - kSpace, width, height);
}

}  // namespace verlume::qt
