#include "platform_qt/controls/swatch_label.h"

#include <QPainter>
#include <algorithm>

namespace verlume::qt {
namespace {

// Of the two, the one that stands out more from the ground.
QColor InkOn(const QColor& ground) {
  constexpr qreal kMiddle = 0.5;
  const qreal light = 0.3 * ground.redF() + 0.59 * ground.greenF() + 0.11 * ground.blueF();
  return light > kMiddle ? Qt::black : Qt::white;
}

}  // namespace

void SwatchLabel::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const int height = std::min(rect().height(), 2 * fontMetrics().height());
  QRectF face(0, 0, width() - 1, height - 1);
  face.moveCenter(QRectF(rect()).center());
  const QColor fill = palette().color(backgroundRole());
  constexpr qreal kCornerRadius = 4;
  painter.setBrush(fill);
  painter.setPen(palette().color(QPalette::WindowText));
  painter.drawRoundedRect(face, kCornerRadius, kCornerRadius);
  QFont strong = font();
  strong.setBold(true);
  painter.setFont(strong);
  painter.setPen(InkOn(fill));
  painter.drawText(face, Qt::AlignCenter, QStringLiteral("A"));
}

}  // namespace verlume::qt
