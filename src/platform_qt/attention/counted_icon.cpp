#include "platform_qt/attention/counted_icon.h"

#include <QFont>
#include <QPainter>

namespace verlume::qt {
namespace {

// The badge has its own colours, for it stands on any task bar.
constexpr QRgb kGround = 0xFFC62828;
constexpr QRgb kInk = 0xFFFFFFFF;

constexpr int kMost = 99;

// Of the icon's side.
constexpr qreal kBadgeHeight = 0.56;
constexpr qreal kDigitHeight = 0.78;  // of the badge

QString Digits(int count) {
  return count > kMost ? QStringLiteral("%1+").arg(kMost) : QString::number(count);
}

void DrawBadge(QPainter& painter, int side, const QString& digits) {
  const qreal height = kBadgeHeight * side;
  QFont font;
  font.setBold(true);
  font.setPixelSize(qMax(1, qRound(kDigitHeight * height)));
  painter.setFont(font);
  const qreal wanted = painter.fontMetrics().horizontalAdvance(digits) + height / 3;
  const qreal width = qBound(height, wanted, qreal(side));
  const QRectF badge(side - width, side - height, width, height);
  painter.setPen(Qt::NoPen);
  painter.setBrush(QColor::fromRgba(kGround));
  painter.drawRoundedRect(badge, height / 2, height / 2);
  painter.setPen(QColor::fromRgba(kInk));
  // What is too wide for the icon is drawn narrower.
  painter.translate(badge.center());
  if (wanted > width) painter.scale(width / wanted, 1);
  painter.drawText(QRectF(-wanted / 2, -height / 2, wanted, height), Qt::AlignCenter, digits);
}

}  // namespace

QIcon CountedIcon(const QIcon& icon, int count) {
  if (count <= 0) return icon;
  QIcon counted;
  for (const QSize& size : icon.availableSizes()) {
    QPixmap picture = icon.pixmap(size, 1.0);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    DrawBadge(painter, size.height(), Digits(count));
    painter.end();
    counted.addPixmap(picture);
  }
  return counted;
}

}  // namespace verlume::qt
