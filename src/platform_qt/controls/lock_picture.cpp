#include "platform_qt/controls/lock_picture.h"

#include <QPainterPath>

namespace verlume::qt {
namespace {

// All measures are parts of the square's side.
constexpr QRectF kBody(0.16, 0.44, 0.68, 0.52);
constexpr qreal kBodyCorner = 0.09;
constexpr qreal kShackleWidth = 0.11;
constexpr QRectF kShackle(0.28, 0.08, 0.44, 0.56);
constexpr qreal kOpenTurn = 0.3;  // how far an open shackle stands to the side
constexpr qreal kMarkWidth = 0.1;

QColor InkFor(LockPicture picture, const QPalette& palette) {
  const QColor text = palette.color(QPalette::WindowText);
  if (picture != LockPicture::Warning && picture != LockPicture::Doubtful) return text;
  const bool isDark = palette.color(QPalette::Window).lightnessF() < 0.5;
  return isDark ? QColor(0xFF, 0xA0, 0x7A) : QColor(0xB3, 0x3A, 0x00);
}

QPainterPath Shackle(bool isOpen) {
  const QRectF arc = isOpen ? kShackle.translated(kOpenTurn, 0) : kShackle;
  QPainterPath path(QPointF(arc.left(), isOpen ? kBody.top() : arc.center().y()));
  path.lineTo(arc.left(), arc.top() + arc.width() / 2);
  path.arcTo(QRectF(arc.topLeft(), QSizeF(arc.width(), arc.width())), 180, -180);
  path.lineTo(arc.right(), isOpen ? arc.top() + arc.width() * 0.7 : arc.center().y());
  if (!isOpen) path.moveTo(arc.left(), arc.center().y());
  return path;
}

// What is left out of the body.
void PaintMark(QPainter& painter, LockPicture picture) {
  const QPointF middle = kBody.center();
  switch (picture) {
    case LockPicture::Verified:
      painter.drawPolyline(QPolygonF{middle + QPointF(-0.19, 0.0), middle + QPointF(-0.05, 0.14),
                                     middle + QPointF(0.2, -0.14)});
      return;
    case LockPicture::Warning:
    case LockPicture::Doubtful:
      painter.drawLine(middle + QPointF(0, -0.16), middle + QPointF(0, 0.02));
      painter.drawPoint(middle + QPointF(0, 0.17));
      return;
    case LockPicture::Becoming:
      for (const qreal across : {-0.19, 0.0, 0.19}) painter.drawPoint(middle + QPointF(across, 0));
      return;
    case LockPicture::Closed:
    case LockPicture::Open:
      return;
  }
}

}  // namespace

void PaintLock(QPainter& painter, const QRectF& square, LockPicture picture,
               const QPalette& palette) {
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.translate(square.topLeft());
  painter.scale(square.width(), square.height());
  const bool isOpen = picture == LockPicture::Open || picture == LockPicture::Warning;
  if (isOpen) painter.translate(-0.12, 0);
  const QColor ink = InkFor(picture, palette);
  painter.setPen(QPen(ink, kShackleWidth, Qt::SolidLine, Qt::FlatCap));
  painter.setBrush(Qt::NoBrush);
  painter.drawPath(Shackle(isOpen));
  painter.setPen(Qt::NoPen);
  painter.setBrush(ink);
  painter.drawRoundedRect(kBody, kBodyCorner, kBodyCorner);
  painter.setPen(QPen(palette.color(QPalette::Window), kMarkWidth, Qt::SolidLine, Qt::RoundCap,
                      Qt::RoundJoin));
  painter.setBrush(Qt::NoBrush);
  PaintMark(painter, picture);
  painter.restore();
}

}  // namespace verlume::qt
