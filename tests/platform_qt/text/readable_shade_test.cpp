#include "platform_qt/text/readable_shade.h"

#include <gtest/gtest.h>

#include <vector>

#include "platform_qt/convert/text.h"
#include "platform_qt/text/colors.h"

namespace verlume::qt {
namespace {

TEST(ReadableShadeTest, ContrastIsThatOfWcag) {
  EXPECT_DOUBLE_EQ(Contrast(kBlack, kWhite), 21);
  EXPECT_DOUBLE_EQ(Contrast(kWhite, kBlack), 21);
  EXPECT_DOUBLE_EQ(Contrast(kYellow, kYellow), 1);
  EXPECT_NEAR(Contrast(0x777777, kWhite), 4.48, 0.005);
  EXPECT_NEAR(Contrast(0x0000FF, kWhite), 4.00, 0.005);  // red
  EXPECT_NEAR(Contrast(0xFF0000, kWhite), 8.59, 0.005);  // blue
}

TEST(ReadableShadeTest, ReadableColorsStay) {
  EXPECT_EQ(ReadableShade(kBlack, kWhite), kBlack);
  EXPECT_EQ(ReadableShade(kWhite, kBlack), kWhite);
  EXPECT_EQ(ReadableShade(0x949494, kWhite), 0x949494);  // 3.03
}

TEST(ReadableShadeTest, OtherColorsBecomeJustDarkOrLightEnough) {
  EXPECT_EQ(ReadableShade(0x959595, kWhite), 0x767676);  // 2.99
  EXPECT_EQ(ReadableShade(kWhite, kWhite), 0x767676);
  EXPECT_EQ(ReadableShade(0xFEFEFE, kWhite), 0x767676);
  EXPECT_EQ(ReadableShade(0x010101, kBlack), 0x757575);
}

TEST(ReadableShadeTest, BlackBecomesWhiteOnADarkBackground) {
  EXPECT_EQ(ReadableShade(kBlack, kBlack), kWhite);
  EXPECT_EQ(ReadableShade(kBlack, kNight), kWhite);
  EXPECT_EQ(ReadableShade(kBlack, 0x808080), kBlack);
}

TEST(ReadableShadeTest, TheHueStays) {
  for (const QColor& color : {QColor(Qt::yellow), QColor(0x7F, 0xFF, 0xD4), QColor(Qt::cyan)}) {
    const Color shade = ReadableShade(FromQt(color), kWhite);
    EXPECT_NE(shade, FromQt(color));
    EXPECT_NEAR(ToQt(shade).hue(), color.hue(), 2);
  }
  EXPECT_NEAR(ToQt(ReadableShade(0x800000, kBlack)).hue(), QColor(Qt::blue).hue(), 2);
}

TEST(ReadableShadeTest, EveryColorCanBeReadOnEveryBackground) {
  std::vector<Color> colors;
  for (Color blue = 0; blue < 256; blue += 51) {
    for (Color green = 0; green < 256; green += 51) {
      for (Color red = 0; red < 256; red += 51) colors.push_back(blue << 16 | green << 8 | red);
    }
  }
  for (const Color background : colors) {
    for (const Color color : colors) {
      const Color shade = ReadableShade(color, background);
      ASSERT_GE(Contrast(shade, background), shade == color ? 3 : 4.5)
          << color << ' ' << background;
    }
  }
}

}  // namespace
}  // namespace verlume::qt
