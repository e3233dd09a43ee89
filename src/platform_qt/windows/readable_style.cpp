#include "platform_qt/windows/readable_style.h"

#include <QAbstractScrollArea>
#include <QPainter>
#include <QStyleOption>

#include "platform_qt/convert/text.h"
#include "platform_qt/text/readable_shade.h"

namespace verlume::qt {
namespace {

// The share of the text colour in an outline.
constexpr qreal kLetters = 0.45;
// The factor in percent by which Fusion darkens the background (QColor::darker).
constexpr int kFusionDarker = 140;

QColor Mixed(const QColor& one, const QColor& other, qreal partOfOther) {
  const auto mix = [partOfOther](float a, float b) { return a + (b - a) * float(partOfOther); };
  return QColor::fromRgbF(mix(one.redF(), other.redF()), mix(one.greenF(), other.greenF()),
                          mix(one.blueF(), other.blueF()));
}

bool IsDark(const QPalette& palette) {
  return palette.color(QPalette::Window).lightness() <
         palette.color(QPalette::WindowText).lightness();
}

// In pixels: one line could be overlooked.
constexpr int kFocusFrame = 2;
constexpr int kButtonRadius = 2;  // as Fusion draws them

// Elements of which only the outline is drawn in the window's colour.
bool HasOutlineOfWindow(QStyle::PrimitiveElement element) {
  switch (element) {
    case QStyle::PE_Frame:
    case QStyle::PE_FrameLineEdit:
    case QStyle::PE_PanelLineEdit:
    case QStyle::PE_PanelButtonCommand:
    case QStyle::PE_IndicatorCheckBox:
    case QStyle::PE_IndicatorRadioButton:
      return true;
    default:
      return false;
  }
}

template <class Option>
Option WithVisibleOutline(Option option) {
  const QColor ground = option.palette.color(QPalette::Window);
  const QColor outline = Mixed(ground, option.palette.color(QPalette::WindowText), kLetters);
  option.palette.setColor(QPalette::Window, outline.lighter(kFusionDarker));
  return option;
}

bool Scrolls(const QWidget* widget) {
  return qobject_cast<const QAbstractScrollArea*>(widget) != nullptr;
}

void DrawFocusFrame(QPainter& painter, const QStyleOption& option, int radius) {
  const QPalette& palette = option.palette;
  const Color ground = FromQt(palette.color(QPalette::Window));
  painter.save();
  painter.setBrush(Qt::NoBrush);
  painter.setPen(ToQt(ReadableShade(FromQt(palette.color(QPalette::Highlight)), ground)));
  for (int line = 0; line < kFocusFrame; ++line) {
    const QRect place = option.rect.adjusted(line, line, -1 - line, -1 - line);
    painter.drawRoundedRect(place, radius, radius);
  }
  painter.restore();
}

}  // namespace

void ReadableStyle::polish(QPalette& palette) {
  QProxyStyle::polish(palette);
  for (const auto role : {QPalette::Highlight, QPalette::HighlightedText}) {
    palette.setBrush(QPalette::Inactive, role, palette.brush(QPalette::Active, role));
  }
}

// Windows' style has just given the tool tip the theme's colour.
void ReadableStyle::polish(QWidget* widget) {
  QProxyStyle::polish(widget);
  if (widget->inherits("QTipLabel")) widget->setPalette(ReadableToolTips(widget->palette()));
}

void ReadableStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option,
                                  QPainter* painter, const QWidget* widget) const {
  if (baseStyle()->name() != QLatin1String("fusion")) {
    return QProxyStyle::drawPrimitive(element, option, painter, widget);
  }
  const bool hasFocus = option->state & State_HasFocus;
  if (hasFocus && element == PE_Frame && Scrolls(widget)) {
    return DrawFocusFrame(*painter, *option, 0);
  }
  DrawWithVisibleOutline(element, option, painter, widget);
  if (hasFocus && element == PE_PanelButtonCommand) {
    DrawFocusFrame(*painter, *option, kButtonRadius);
  }
}

void ReadableStyle::DrawWithVisibleOutline(PrimitiveElement element, const QStyleOption* option,
                                           QPainter* painter, const QWidget* widget) const {
  if (HasOutlineOfWindow(element) && IsDark(option->palette)) {
    if (const auto* button = qstyleoption_cast<const QStyleOptionButton*>(option)) {
      const auto readable = WithVisibleOutline(*button);
      return QProxyStyle::drawPrimitive(element, &readable, painter, widget);
    }
    if (const auto* frame = qstyleoption_cast<const QStyleOptionFrame*>(option)) {
      const auto readable = WithVisibleOutline(*frame);
      return QProxyStyle::drawPrimitive(element, &readable, painter, widget);
    }
  }
  QProxyStyle::drawPrimitive(element, option, painter, widget);
}

int ReadableStyle::pixelMetric(PixelMetric metric, const QStyleOption* option,
                               const QWidget* widget) const {
  const bool isFusion = baseStyle()->name() == QLatin1String("fusion");
  if (isFusion && metric == PM_DefaultFrameWidth && Scrolls(widget)) return kFocusFrame;
  return QProxyStyle::pixelMetric(metric, option, widget);
}

QPalette ReadableToolTips(QPalette colours) {
  for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
    const Color text = FromQt(colours.color(group, QPalette::ToolTipText));
    const Color ground = FromQt(colours.color(group, QPalette::ToolTipBase));
    colours.setColor(group, QPalette::ToolTipText, ToQt(ReadableShade(text, ground)));
  }
  return colours;
}

}  // namespace verlume::qt
