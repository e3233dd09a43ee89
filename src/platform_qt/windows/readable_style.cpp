#include "platform_qt/windows/readable_style.h"

#include <QStyleOption>

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

}  // namespace

void ReadableStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option,
                                  QPainter* painter, const QWidget* widget) const {
  const bool isFusion = baseStyle()->name() == QLatin1String("fusion");
  if (isFusion && HasOutlineOfWindow(element) && IsDark(option->palette)) {
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

}  // namespace verlume::qt
