#include "platform_qt/windows/pane_hint.h"

#include <QEvent>
#include <QPainter>
#include <algorithm>

namespace verlume::qt {
namespace {

constexpr int kSpace = 4;  // around the text, in pixels
constexpr qreal kEdgeOpacity = 0.5;

}  // namespace

PaneHint::PaneHint(QWidget* area) : ElidedLabel(area) {
  setObjectName(QStringLiteral("lblHint"));
  setContentsMargins(kSpace, kSpace, kSpace, kSpace);
  setAutoFillBackground(true);
  setBackgroundRole(QPalette::ToolTipBase);
  setForegroundRole(QPalette::ToolTipText);
  hide();
}

void PaneHint::FloatBeside(QWidget* pane) {
  pane_ = pane;
  pane->installEventFilter(this);
}

void PaneHint::Say(const QString& said) {
  if (!pane_ || said == text()) return;
  if (text().isEmpty()) description_ = pane_->accessibleDescription();
  setText(said);
  pane_->setAccessibleDescription(said.isEmpty() ? description_ : said);
  setVisible(!said.isEmpty());
  raise();
  Place();
}

void PaneHint::paintEvent(QPaintEvent* event) {
  ElidedLabel::paintEvent(event);
  QPainter painter(this);
  painter.setPen(palette().color(foregroundRole()));
  painter.setOpacity(kEdgeOpacity);
  painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

bool PaneHint::eventFilter(QObject* watched, QEvent* event) {
  const bool moved = event->type() == QEvent::Resize || event->type() == QEvent::Move;
  if (watched == pane_ && moved) Place();
  return false;
}

void PaneHint::Place() {
  if (!pane_ || isHidden()) return;
  const QRect pane = pane_->geometry();
  const int width = fontMetrics().horizontalAdvance(text()) + 1 + 2 * kSpace;
  const int height = fontMetrics().height() + 2 * kSpace;
  const int below = pane.bottom() + 1;
  const bool fits = below + height <= parentWidget()->height();
  setGeometry(pane.left(), fits ? below : pane.top() - height, std::min(width, pane.width()),
              height);
}

}  // namespace verlume::qt
