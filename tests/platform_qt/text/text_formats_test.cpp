#include "platform_qt/text/text_formats.h"

#include <gtest/gtest.h>

#include "platform_qt/text/text_format.h"

namespace verlume::qt {
namespace {

const std::vector<richtext::Font> kFonts = {{u"Arial", 161}, {u"Tahoma", 161}};

TEST(QtTextFormats, AFormatIsTheSameWheneverItIsAskedFor) {
  TextFormats formats;
  const richtext::CharFormat format{.font = 1, .halfPoints = 30, .color = 255, .italic = true};
  EXPECT_EQ(formats.Of(format, kFonts), ToQt(format, kFonts));
  EXPECT_EQ(&formats.Of(format, kFonts), &formats.Of(format, kFonts));
  EXPECT_NE(&formats.Of(format, kFonts), &formats.Of(format, {{u"Arial", 161}, {u"Times", 161}}));
}

TEST(QtTextFormats, NewFormatsBeyondTheMostKeepTheirStyleOnly) {
  TextFormats formats(2);
  const richtext::CharFormat red{.color = 255, .bold = true};
  const richtext::CharFormat blue{.color = 0xFF0000, .bold = true};
  const richtext::CharFormat green{.font = 1, .halfPoints = 90, .color = 0xFF00, .bold = true};
  EXPECT_EQ(formats.Of(red, kFonts), ToQt(red, kFonts));
  EXPECT_EQ(formats.Of(blue, kFonts), ToQt(blue, kFonts));
  const QTextCharFormat& shown = formats.Of(green, kFonts);
  EXPECT_EQ(FromQt(shown).fontName, kDefaultFontName);
  EXPECT_EQ(FromQt(shown).fontSize, kDefaultFontSize);
  EXPECT_EQ(FromQt(shown).color, 0);
  EXPECT_EQ(FromQt(shown).bold, true);
  EXPECT_EQ(FromQt(shown).italic, false);
  EXPECT_EQ(formats.Of(red, kFonts), ToQt(red, kFonts));
  formats.Clear();
  EXPECT_EQ(formats.Of(green, kFonts), ToQt(green, kFonts));
}

TEST(QtTextFormats, FontsBeyondTheMostAreShownInTheDefaultFont) {
  TextFormats formats(100, 2);
  const richtext::CharFormat great{.halfPoints = 90, .color = 255};
  const richtext::CharFormat italic{.halfPoints = 90, .color = 255, .italic = true};
  const richtext::CharFormat small{.font = 1, .halfPoints = 9, .color = 0xFF00, .bold = true};
  EXPECT_EQ(formats.Of(great, kFonts), ToQt(great, kFonts));
  EXPECT_EQ(formats.Of(italic, kFonts), ToQt(italic, kFonts));
  const QTextCharFormat& shown = formats.Of(small, kFonts);
  EXPECT_EQ(FromQt(shown).fontName, kDefaultFontName);
  EXPECT_EQ(FromQt(shown).fontSize, kDefaultFontSize);
  EXPECT_EQ(FromQt(shown).color, 0xFF00);
  EXPECT_EQ(FromQt(shown).bold, true);
  const richtext::CharFormat blue{.halfPoints = 90, .color = 0xFF0000, .underline = true};
  EXPECT_EQ(formats.Of(blue, kFonts), ToQt(blue, kFonts)) << "in a font that is shown already";
  formats.Clear();
  EXPECT_EQ(formats.Of(small, kFonts), ToQt(small, kFonts));
}

// Fonts that are not there are shown as one that is, whatever their names.
TEST(QtTextFormats, NamesOfMissingFontsAreNoFontsOfTheirOwn) {
  TextFormats formats(100, 1);
  for (const char16_t* name : {u"No such font 1", u"No such font 2", u"No such font 3"}) {
    EXPECT_EQ(FromQt(formats.Of({}, {{name, 161}})).fontName, name);
  }
}

}  // namespace
}  // namespace verlume::qt
