#include "platform_qt/controls/code_picture.h"

#include <gtest/gtest.h>

namespace verlume::qt {
namespace {

// A pattern that stands in three corners of every code: from its corner, the modules of one row.
bool IsFinderRow(const SquareCode& code, int row, int column) {
  constexpr bool kEdge[] = {true, true, true, true, true, true, true};
  for (int i = 0; i < 7; ++i) {
    if (code.isDark[static_cast<std::size_t>(row * code.side + column + i)] != kEdge[i])
      return false;
  }
  return true;
}

TEST(SquareCodeTest, SixtyDigitsMakeASmallCode) {
  const SquareCode code = EncodeSquareCode(QByteArray(60, '7'));
  ASSERT_EQ(code.side, 25);
  ASSERT_EQ(code.isDark.size(), 25u * 25u);
  EXPECT_TRUE(IsFinderRow(code, 0, 0));
  EXPECT_TRUE(IsFinderRow(code, 0, 18));
  EXPECT_TRUE(IsFinderRow(code, 18, 0));
}

TEST(SquareCodeTest, AnotherTextIsAnotherCode) {
  EXPECT_NE(EncodeSquareCode(QByteArray(60, '7')).isDark,
            EncodeSquareCode(QByteArray(60, '8')).isDark);
}

TEST(SquareCodeTest, WhatNoCodeHoldsIsNone) {
  EXPECT_EQ(EncodeSquareCode({}).side, 0);
  EXPECT_EQ(EncodeSquareCode(QByteArray(10000, 'a')).side, 0);
}

TEST(CodeWidgetTest, IsBlackOnWhiteWithAQuietBorderInADarkThemeToo) {
  CodeWidget widget(nullptr);
  widget.setPalette(QPalette(Qt::white, Qt::black));
  const SquareCode code = EncodeSquareCode(QByteArray(60, '7'));
  widget.SetCode(code);
  widget.resize(widget.sizeHint());
  const QImage image = widget.grab().toImage();
  const int module = image.width() / (code.side + 8);
  ASSERT_EQ(image.width(), module * (code.side + 8));
  for (int row = -4; row < code.side + 4; ++row) {
    for (int column = -4; column < code.side + 4; ++column) {
      const bool isInside = row >= 0 && row < code.side && column >= 0 && column < code.side;
      const bool isDark =
          isInside && code.isDark[static_cast<std::size_t>(row * code.side + column)];
      // In the corner and in the middle of the module.
      for (const int part : {0, module / 2, module - 1}) {
        const QColor pixel =
            image.pixelColor((column + 4) * module + part, (row + 4) * module + part);
        ASSERT_EQ(pixel, isDark ? QColor(Qt::black) : QColor(Qt::white)) << row << ' ' << column;
      }
    }
  }
}

TEST(CodeWidgetTest, WithoutACodeItTakesNoRoom) {
  CodeWidget widget(nullptr);
  QtCodePicture picture(&widget);
  picture.SetCode(u"31415");
  EXPECT_GT(widget.sizeHint().width(), 0);
  EXPECT_EQ(picture.Code(), u"31415");
  picture.SetCode(u"");
  EXPECT_TRUE(widget.sizeHint().isEmpty());
}

}  // namespace
}  // namespace verlume::qt
