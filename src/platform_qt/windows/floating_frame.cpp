#include "platform_qt/windows/floating_frame.h"

#include <QEvent>
#include <QLayout>
#include <QPainter>

namespace verlume::qt {
namespace {

// With a little space around its caption.
class RoomyButton : public QPushButton {
 public:
  using QPushButton::QPushButton;
  QSize sizeHint() const override { return QPushButton::sizeHint() + QSize(16, 0); }
  QSize minimumSizeHint() const override { return sizeHint(); }
};

}  // namespace

FloatingFrame::FloatingFrame(QWidget* area, const char* name) : QGroupBox(area) {
  setObjectName(QLatin1String(name));
  hide();
}

void FloatingFrame::Follow(QWidget* pane) {
  pane_ = pane;
  pane->installEventFilter(this);
}

void FloatingFrame::SetWanted(bool wanted) {
  if (wanted == isWanted_) return;
  isWanted_ = wanted;
  Place();
}

bool FloatingFrame::event(QEvent* event) {
  const bool handled = QGroupBox::event(event);
  if (event->type() == QEvent::LayoutRequest) Place();
  return handled;
}

bool FloatingFrame::eventFilter(QObject* watched, QEvent* event) {
  const bool moved = event->type() == QEvent::Resize || event->type() == QEvent::Move;
  if (watched == pane_ && moved) Place();
  return false;
}

void FloatingFrame::Place() {
  if (!pane_) return;
  ensurePolished();
  // A layout within the layout forgets what it held before only now.
  layout()->activate();
  const QRect place = isWanted_ ? PlaceAt(pane_->geometry()) : QRect();
  if (!place.isEmpty()) {
    setGeometry(place);
    raise();
    if (above_ && above_->isVisible()) stackUnder(above_);
  }
  setVisible(!place.isEmpty());
}

// A quiet edge, in the colours of the desktop.
void FloatingFrame::paintEvent(QPaintEvent*) {
  constexpr qreal kRadius = 6;
  constexpr qreal kEdgeOpacity = 0.25;
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  QColor edge = palette().color(QPalette::WindowText);
  edge.setAlphaF(kEdgeOpacity);
  painter.setPen(edge);
  painter.setBrush(palette().color(QPalette::Window));
  painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), kRadius, kRadius);
}

bool QtFloatingPanel::HasFocus() const {
  const QWidget* focus = frame_->window()->focusWidget();
  return frame_->isVisibleTo(frame_->window()) && focus && frame_->isAncestorOf(focus);
}

QPushButton* NewFloatingButton(QWidget* parent, const char* name) {
  auto* button = new RoomyButton(parent);
  button->setObjectName(QLatin1String(name));
  button->setFocusPolicy(Qt::TabFocus);
  return button;
}

}  // namespace verlume::qt
