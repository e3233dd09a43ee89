#include "platform_qt/text/author_marks.h"

#include <QPainterPath>
#include <QPolygonF>
#include <algorithm>
#include <array>

#include "platform_qt/convert/text.h"
#include "platform_qt/text/readable_shade.h"

namespace verlume::qt {
namespace {

// The first that has enough contrast is taken. The dark tones are so dark and the light ones so
// light that on every ground one of the two has it.
using Tones = std::array<QColor, 3>;

Tones TonesOf(Author author) {
  switch (author) {
    case Author::User:  // blue
    case Author::UserNotSent:
    case Author::UserNotDelivered:
      return {QColor(0x1F, 0x5F, 0xD0), QColor(0x00, 0x2F, 0x87), QColor(0xD2, 0xE8, 0xFF)};
    case Author::File:  // grey
      return {QColor(0x6A, 0x6A, 0x6A), QColor(0x33, 0x33, 0x33), QColor(0xE6, 0xE6, 0xE6)};
    default:  // orange
      return {QColor(0xC0, 0x4A, 0x00), QColor(0x5C, 0x1F, 0x00), QColor(0xFF, 0xDF, 0xB0)};
  }
}

double ContrastOf(const QColor& one, const QColor& other) {
  return Contrast(FromQt(one), FromQt(other));
}

QColor Mixed(const QColor& one, const QColor& other, float partOfOther) {
  const auto mix = [partOfOther](float a, float b) { return a + (b - a) * partOfOther; };
  return QColor::fromRgbF(mix(one.redF(), other.redF()), mix(one.greenF(), other.greenF()),
                          mix(one.blueF(), other.blueF()));
}

void DrawBar(QPainter& painter, const QRectF& place) {
  constexpr qreal kBarWidth = 4;
  painter.drawRect(
      QRectF(place.center().x() - kBarWidth / 2, place.top(), kBarWidth, place.height()));
}

void DrawArrowhead(QPainter& painter, const QRectF& place) {
  const qreal half = std::min<qreal>(place.height() / 2 - 1, 5);
  const QPointF middle = place.center();
  painter.drawPolygon(QPolygonF({{place.left(), middle.y() - half},
                                 {place.right(), middle.y()},
                                 {place.left(), middle.y() + half}}));
}

void DrawDots(QPainter& painter, const QRectF& place) {
  constexpr qreal kRadius = 1.5;
  for (const qreal part : {0.25, 0.75}) {
    painter.drawEllipse(QPointF(place.center().x(), place.top() + part * place.height()), kRadius,
                        kRadius);
  }
}

}  // namespace

QColor MarginGround(const QColor& pane) {
  constexpr float kPart = 0.1F;
  const bool isLight = ContrastOf(pane, Qt::black) > ContrastOf(pane, Qt::white);
  return Mixed(pane, isLight ? Qt::black : Qt::white, kPart);
}

QColor MarkColor(Author author, const QColor& ground) {
  const Tones tones = TonesOf(author);
  return *std::find_if(tones.begin(), std::prev(tones.end()), [&](const QColor& tone) {
    return ContrastOf(tone, ground) >= kLegibleContrast;
  });
}

bool IsHollow(Author author) {
  return author == Author::UserNotSent || author == Author::UserNotDelivered;
}

void DrawHollowMark(QPainter& painter, const QRectF& place) {
  constexpr qreal kOutline = 1.5;
  constexpr qreal kBarWidth = 6;
  const QRectF bar(place.center().x() - kBarWidth / 2, place.top() + 1, kBarWidth,
                   place.height() - 2);
  QPainterPath outline;
  outline.addRect(bar);
  outline.addRect(bar.adjusted(kOutline, kOutline, -kOutline, -kOutline));
  painter.drawPath(outline);  // filled between the two
}

void DrawMark(QPainter& painter, Author author, const QRectF& place) {
  switch (author) {
    case Author::None:
      return;
    case Author::User:
      return DrawBar(painter, place);
    case Author::UserNotSent:
    case Author::UserNotDelivered:
      return DrawHollowMark(painter, place);
    case Author::File:
      return DrawDots(painter, place);
    default:
      return DrawArrowhead(painter, place);
  }
}

}  // namespace verlume::qt
