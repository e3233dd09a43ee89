#include "platform_qt/controls/toggle_box.h"

#include <QPainter>
#include <QStyle>
#include <algorithm>

namespace verlume::qt {
namespace {

constexpr int kSpaceAround = 4;  // pixels between the caption and the edge
constexpr qreal kCornerRadius = 4;
constexpr qreal kOutline = 0.35;  // opacity
constexpr qreal kHovered = 0.12;

}  // namespace

ToggleBox::ToggleBox(QWidget* parent) : QCheckBox(parent) {
  // A click, perhaps for context help, leaves the focus where the user types.
  setFocusPolicy(Qt::TabFocus);
}

QSize ToggleBox::sizeHint() const {
  const QSize caption = fontMetrics().size(Qt::TextShowMnemonic | Qt::TextSingleLine, text());
  return caption + QSize(4 * kSpaceAround, 2 * kSpaceAround);
}

// A caption that does not fit is cut.
QSize ToggleBox::minimumSizeHint() const {
  return {0, fontMetrics().height() + 2 * kSpaceAround};
}

void ToggleBox::enterEvent(QEnterEvent* event) {
  QCheckBox::enterEvent(event);
  update();
}

void ToggleBox::leaveEvent(QEvent* event) {
  QCheckBox::leaveEvent(event);
  update();
}

// In a large window the button is as wide as its place, but no taller than it needs to be.
QRectF ToggleBox::Face() const {
  const int height = std::min(rect().height(), 2 * fontMetrics().height());
  QRectF face(0, 0, width() - 1, height - 1);
  face.moveCenter(QRectF(rect()).center());
  return face;
}

void ToggleBox::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const QRectF face = Face();
  const QPalette::ColorRole ink = isChecked() ? QPalette::HighlightedText : QPalette::WindowText;
  if (isChecked()) {
    painter.setBrush(palette().highlight());
    painter.setPen(Qt::NoPen);
  } else {
    painter.setOpacity(underMouse() ? kOutline + kHovered : kOutline);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(palette().color(QPalette::WindowText));
  }
  painter.drawRoundedRect(face, kCornerRadius, kCornerRadius);
  painter.setOpacity(1);
  if (hasFocus()) {
    constexpr qreal kRing = 2;
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(
        palette().color(isChecked() ? QPalette::HighlightedText : QPalette::Highlight), kRing));
    painter.drawRoundedRect(face.adjusted(kRing, kRing, -kRing, -kRing), kCornerRadius,
                            kCornerRadius);
  }
  style()->drawItemText(&painter, face.toAlignedRect(), Qt::AlignCenter | Qt::TextShowMnemonic,
                        palette(), isEnabled(), text(), ink);
}

}  // namespace verlume::qt
