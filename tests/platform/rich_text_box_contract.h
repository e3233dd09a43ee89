// What every rich-text box keeps, whatever it is made with. A platform brings
//   std::unique_ptr<RichTextBox> MakeBox(bool singleLine);  // empty, not locked
//   void Type(RichTextBox&, std::u16string_view keys);      // as the user; u'\r' is Enter
//   fake::FakeFileSystem files;                             // what the boxes load and save
#pragma once

#include <gtest/gtest.h>

#include <memory>

#include "platform/rich_text_box.h"
#include "platform/run_time_failure.h"
#include "platform_fake/fake_file_system.h"
#include "richtext/rtf_reader.h"

namespace verlume {

template <class Platform>
class RichTextBoxContract : public testing::Test {
 protected:
  Platform platform;
  std::unique_ptr<RichTextBox> many = platform.MakeBox(false);
  std::unique_ptr<RichTextBox> single = platform.MakeBox(true);
};

inline SelectionFormat Bold(bool value) {
  SelectionFormat format;
  format.bold = value;
  return format;
}

inline SelectionFormat Fancy() {
  return {.fontName = u"Tahoma",
          .fontSize = 9.5,
          .color = 0x0000FF,
          .bold = true,
          .italic = true,
          .underline = true,
          .strikethrough = true};
}

inline void ExpectFormat(const SelectionFormat& actual, const SelectionFormat& expected) {
  EXPECT_EQ(actual.fontName, expected.fontName);
  EXPECT_EQ(actual.fontSize, expected.fontSize);
  EXPECT_EQ(actual.color, expected.color);
  EXPECT_EQ(actual.bold, expected.bold);
  EXPECT_EQ(actual.italic, expected.italic);
  EXPECT_EQ(actual.underline, expected.underline);
  EXPECT_EQ(actual.strikethrough, expected.strikethrough);
}

// The format of the characters in a range, without a trace in the box but the selection.
inline SelectionFormat FormatOf(RichTextBox& box, std::size_t start, std::size_t length) {
  box.Select(start, length);
  return box.SelFormat();
}

inline constexpr std::u16string_view kBoldRtf =
    u"{\\rtf1\\ansi\\ansicpg1253\\deff0{\\fonttbl{\\f0\\fcharset161 Tahoma;}}"
    u"{\\colortbl ;\\red255\\green0\\blue0;}\\f0\\fs18\\cf1\\b one\\b0  two}";

}  // namespace verlume

#include "platform/rich_text_box_author_contract.h"
#include "platform/rich_text_box_format_contract.h"
#include "platform/rich_text_box_text_contract.h"

namespace verlume {
// Instantiates every part of the contract for one platform.
#define VERLUME_RICH_TEXT_BOX_CONTRACT(name, Platform)               \
  INSTANTIATE_TYPED_TEST_SUITE_P(name, RichTextBoxText, Platform);   \
  INSTANTIATE_TYPED_TEST_SUITE_P(name, RichTextBoxFormat, Platform); \
  INSTANTIATE_TYPED_TEST_SUITE_P(name, RichTextBoxAuthor, Platform)
}  // namespace verlume
