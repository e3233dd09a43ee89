#include "platform_qt/windows/readable_style.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QCheckBox>
#include <QFrame>
#include <QLineEdit>
#include <QPainter>
#include <QPlainTextEdit>
#include <QStyleFactory>
#include <QStyleOption>
#include <QToolTip>
#include <algorithm>
#include <cmath>
#include <memory>

#include "platform_qt/convert/text.h"
#include "platform_qt/text/readable_shade.h"

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

TEST(ReadableStyleTest, APaneShowsThatItHasTheFocus) {
  ReadableStyle style(QStringLiteral("fusion"));
  for (const QColor& ground : {QColor(0xEF, 0xEF, 0xEF), QColor(0x2D, 0x2D, 0x2D)}) {
    QPalette palette = PaletteOf(ground, ground.lightness() > 128 ? Qt::black : Qt::white);
    // A colour that would not be seen.
    palette.setColor(QPalette::Highlight, ground.lighter(110));
    QPlainTextEdit pane;
    QStyleOptionFrame option;
    option.initFrom(&pane);
    option.rect = QRect(0, 0, 20, 20);
    option.palette = palette;
    const auto outline = [&](QStyle::State state) {
      option.state = state;
      QImage picture(20, 20, QImage::Format_ARGB32);
      picture.fill(ground);
      QPainter painter(&picture);
      style.drawPrimitive(QStyle::PE_Frame, &option, &painter, &pane);
      return picture.pixelColor(0, 10);
    };
    const QColor focused = outline(QStyle::State_Enabled | QStyle::State_HasFocus);
    EXPECT_GE(Contrast(focused, ground), kEnough);
    EXPECT_NE(focused, outline(QStyle::State_Enabled));
  }
}

TEST(ReadableStyleTest, AButtonShowsThatItHasTheFocus) {
  ReadableStyle style(QStringLiteral("fusion"));
  const QColor ground(0x2D, 0x2D, 0x2D);
  QStyleOptionButton option;
  option.rect = QRect(0, 0, 40, 20);
  option.palette = PaletteOf(ground, Qt::white);
  option.palette.setColor(QPalette::Highlight, ground);
  option.state = QStyle::State_Enabled | QStyle::State_HasFocus;
  QImage picture(40, 20, QImage::Format_ARGB32);
  picture.fill(ground);
  QPainter painter(&picture);
  style.drawPrimitive(QStyle::PE_PanelButtonCommand, &option, &painter, nullptr);
  for (const int x : {0, 1}) EXPECT_GE(Contrast(picture.pixelColor(x, 10), ground), kEnough);
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

TEST(ReadableStyleTest, ASelectionKeepsItsColoursWithoutTheFocus) {
  QPalette palette;
  palette.setColor(QPalette::Active, QPalette::Highlight, Qt::blue);
  palette.setColor(QPalette::Inactive, QPalette::Highlight, QColor(0xf5, 0xf5, 0xf5));
  palette.setColor(QPalette::Active, QPalette::HighlightedText, Qt::white);
  palette.setColor(QPalette::Inactive, QPalette::HighlightedText, Qt::black);
  ReadableStyle().polish(palette);
  for (const auto group : {QPalette::Active, QPalette::Inactive}) {
    EXPECT_EQ(palette.color(group, QPalette::Highlight), Qt::blue);
    EXPECT_EQ(palette.color(group, QPalette::HighlightedText), Qt::white);
  }
}

TEST(ReadableStyleTest, ToolTipsCanBeRead) {
  QPalette colours;
  colours.setColor(QPalette::ToolTipBase, Qt::white);
  colours.setColor(QPalette::ToolTipText, QColor(0xA6, 0xA6, 0xA6));
  const QPalette readable = ReadableToolTips(colours);
  const Color shade = FromQt(readable.color(QPalette::Inactive, QPalette::ToolTipText));
  EXPECT_GE(Contrast(shade, FromQt(Qt::white)), 4.4);
  EXPECT_EQ(ReadableToolTips(readable), readable);
}

TEST(ReadableStyleTest, AToolTipIsMadeReadableWhateverItsStyle) {
  QToolTip::showText({10, 10}, "Connected");
  const QWidgetList windows = QApplication::topLevelWidgets();
  const auto tip = std::find_if(windows.begin(), windows.end(),
                                [](const QWidget* each) { return each->inherits("QTipLabel"); });
  ASSERT_NE(tip, windows.end());
  QPalette colours;
  colours.setColor(QPalette::ToolTipBase, Qt::white);
  colours.setColor(QPalette::ToolTipText, QColor(0xA6, 0xA6, 0xA6));
  (*tip)->setPalette(colours);
  ReadableStyle().polish(*tip);
  const QPalette readable = (*tip)->palette();
  EXPECT_GE(Contrast(FromQt(readable.color(QPalette::ToolTipText)),
                     FromQt(readable.color(QPalette::ToolTipBase))),
            kLegibleContrast);
  QToolTip::hideText();
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
