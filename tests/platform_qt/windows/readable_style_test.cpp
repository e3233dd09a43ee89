#include "platform_qt/windows/readable_style.h"

#include <gtest/gtest.h>

#include <QCheckBox>
#include <QFrame>
#include <QLineEdit>
#include <QPainter>
#include <QStyleFactory>
#include <QStyleOption>
#include <algorithm>
#include <cmath>
#include <memory>

namespace verlume::qt {
namespace {

QPalette PaletteOf(const QColor& ground, const QColor& letters) {
  QPalette palette(ground);
  palette.setColor(QPalette::Base, ground);
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
    palette.setColor(role, letters);
  }
  return palette;
}

// The contrast needed to see where a control is.
constexpr double kEnough = 3.0;

double Luminance(const QColor& color) {
  const auto linear = [](double part) {
    return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
         0.0722 * linear(color.blueF());
}

double Contrast(const QColor& one, const QColor& other) {
  const double a = Luminance(one) + 0.05;
  const double b = Luminance(other) + 0.05;
  return std::max(a, b) / std::min(a, b);
}

// The best contrast of the picture's middle row with the background, starting at its left edge.
double OutlineContrast(QWidget& widget, QStyle& style, const QColor& ground) {
  widget.setStyle(&style);
  widget.setPalette(PaletteOf(ground, Qt::white));
  widget.resize(60, 24);
  const QImage picture = widget.grab().toImage();
  double best = 1;
  for (int x = 0; x < 8; ++x) {
    best = std::max(best, Contrast(picture.pixelColor(x, picture.height() / 2), ground));
  }
  return best;
}

TEST(ReadableStyleTest, OutlinesAreSeenOnADarkGround) {
  ReadableStyle style(QStringLiteral("fusion"));
  const QColor ground(0x2D, 0x2D, 0x2D);
  QCheckBox box;
  EXPECT_GE(OutlineContrast(box, style, ground), kEnough);
  QFrame frame;
  frame.setFrameShape(QFrame::StyledPanel);
  EXPECT_GE(OutlineContrast(frame, style, ground), kEnough);
  QLineEdit field;
  EXPECT_GE(OutlineContrast(field, style, ground), kEnough);
}

QImage PictureOf(QStyle& style, const QPalette& palette) {
  QImage picture(20, 20, QImage::Format_ARGB32);
  picture.fill(palette.color(QPalette::Window));
  QPainter painter(&picture);
  QStyleOptionButton option;
  option.rect = QRect(2, 2, 14, 14);
  option.palette = palette;
  option.state = QStyle::State_Enabled | QStyle::State_On;
  style.drawPrimitive(QStyle::PE_IndicatorCheckBox, &option, &painter);
  return picture;
}

TEST(ReadableStyleTest, LightGroundsAreDrawnAsEver) {
  const QPalette light = PaletteOf(QColor(0xEF, 0xEF, 0xEF), Qt::black);
  const std::unique_ptr<QStyle> fusion(QStyleFactory::create(QStringLiteral("fusion")));
  ReadableStyle style(QStringLiteral("fusion"));
  EXPECT_EQ(PictureOf(style, light), PictureOf(*fusion, light));
}

TEST(ReadableStyleTest, OtherStylesAreDrawnAsEver) {
  const QPalette dark = PaletteOf(QColor(0x2D, 0x2D, 0x2D), Qt::white);
  const std::unique_ptr<QStyle> windows(QStyleFactory::create(QStringLiteral("windows")));
  ReadableStyle style(QStringLiteral("windows"));
  EXPECT_EQ(PictureOf(style, dark), PictureOf(*windows, dark));
}

}  // namespace
}  // namespace verlume::qt
