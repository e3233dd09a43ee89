#include "shell/text_style.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/dialogs.h"
#include "platform/rich_text_box.h"

namespace verlume {
namespace {

// Neighbouring members differ, so that a mix-up is noticed.
const TextStyle kFancy = {.Name = u"Georgia",
                          .Bold = true,
                          .Italic = false,
                          .Strikethrough = true,
                          .Underline = false,
                          .Color = 255,
                          .Size = 9.5};
const TextStyle kItalic = {
    .Name = u"Arial", .Italic = true, .Underline = true, .Color = 1, .Size = 10};

TEST(TextStyleTest, AFormatHasEveryMemberOfTheStyle) {
  const SelectionFormat format = FormatOf(kFancy);
  EXPECT_EQ(format.fontName, u"Georgia");
  EXPECT_EQ(format.bold, true);
  EXPECT_EQ(format.italic, false);
  EXPECT_EQ(format.strikethrough, true);
  EXPECT_EQ(format.underline, false);
  EXPECT_EQ(format.color, 255);
  EXPECT_EQ(format.fontSize, 9.5);
}

TEST(TextStyleTest, AFormatReadsBackAsTheStyle) {
  EXPECT_EQ(StyleOf(FormatOf(kFancy), kItalic), kFancy);
  EXPECT_EQ(StyleOf(FormatOf(kItalic), kFancy), kItalic);
}

TEST(TextStyleTest, AnUndeterminedFormatKeepsFontSizeAndColourAndTurnsTheFlagsOff) {
  const TextStyle plain = {.Name = u"Georgia", .Color = 255, .Size = 9.5};
  EXPECT_EQ(StyleOf(SelectionFormat{}, kFancy), plain);
}

TEST(TextStyleTest, AFontChoiceHasEveryMemberOfTheStyle) {
  const FontChoice choice = FontChoiceOf(kFancy);
  EXPECT_EQ(choice.name, u"Georgia");
  EXPECT_TRUE(choice.bold && choice.strikethrough);
  EXPECT_FALSE(choice.italic || choice.underline);
  EXPECT_EQ(choice.color, 255);
  EXPECT_EQ(choice.size, 9.5);
}

TEST(TextStyleTest, AFontChoiceReadsBackAsTheStyle) {
  EXPECT_EQ(StyleOf(FontChoiceOf(kFancy)), kFancy);
  EXPECT_EQ(StyleOf(FontChoiceOf(kItalic)), kItalic);
}

}  // namespace
}  // namespace verlume
