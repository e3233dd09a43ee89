#include "platform_qt/text/open_direction.h"

#include <gtest/gtest.h>

#include <QTextBlock>
#include <QTextDocument>
#include <QWidget>

#include "platform_fake/fake_file_system.h"
#include "platform_qt/convert/text.h"
#include "platform_qt/text/rich_text_box.h"
#include "platform_qt/world.h"
#include "richtext/rtf_reader.h"

namespace verlume::qt {
namespace {

TEST(OpenDirection, WhatIsNotEndedIsOpen) {
  for (const char16_t* text :
       {u"a\u202Eb", u"a\u202Ab", u"a\u2067b", u"\u2068", u"\u202E\u202E\u202C", u"\u202E\u2069",
        u"\u2067\u202C", u"\u202E\u2067\u202C\u2069"}) {
    EXPECT_TRUE(LeavesDirectionOpen(text)) << QString::fromUtf16(text).toStdString();
  }
}

TEST(OpenDirection, WhatIsEndedOrBeginsNothingIsNot) {
  for (const char16_t* text :
       {u"", u"abc", u"\u05D0", u"a\u200Fb", u"a\u202Eb\u202C", u"\u2067a\u2069", u"\u202C\u2069",
        u"\u2067\u202Ea\u2069", u"\u202E\u202A\u202C\u202C"}) {
    EXPECT_FALSE(LeavesDirectionOpen(text)) << QString::fromUtf16(text).toStdString();
  }
}

class OpenDirectionInABoxTest : public testing::Test {
 protected:
  OpenDirectionInABoxTest() {
    box.widget()->resize(600, 400);
    box.SetLocked(true);
  }
  void Write(const std::u16string& text) {
    box.SetSelDocument(richtext::ReadRtf(u"{\\rtf1\\uc1 " + text + u"}"));
    ASSERT_TRUE(WaitFor([this] { return !box.IsInserting(); }));
  }
  int Blocks() { return box.widget()->document()->blockCount(); }

  QWidget window;
  fake::FakeFileSystem files;
  QtRichTextBox box{&window, files, Lines::Many};
};

TEST_F(OpenDirectionInABoxTest, ATextIsNotTurnedByTheOneInFront) {
  Write(u"abc\\u8238?def");
  Write(u"ghi");
  EXPECT_EQ(Blocks(), 2);
  EXPECT_EQ(box.Text(), u"abc\u202Edefghi") << "no character is added";
  EXPECT_EQ(box.widget()->document()->lastBlock().text(), "ghi");
}

TEST_F(OpenDirectionInABoxTest, ATextThatEndsItsDirectionsIsGoneOnWith) {
  Write(u"abc\\u8238?def\\u8236?");
  Write(u"ghi");
  EXPECT_EQ(Blocks(), 1);
}

TEST_F(OpenDirectionInABoxTest, NorAreTextsThatComeInTurns) {
  const std::u16string words(9'000, u'x');
  Write(words + u"\\u8238?");
  const int before = Blocks();
  box.SetSelDocument(richtext::ReadRtf(u"{\\rtf1 " + words + u"\\u8238?}"));
  box.SetSelDocument(richtext::ReadRtf(u"{\\rtf1 last}"));
  ASSERT_TRUE(box.IsInserting());
  ASSERT_TRUE(WaitFor([this] { return !box.IsInserting(); }));
  EXPECT_EQ(box.widget()->document()->lastBlock().text(), "last");
  EXPECT_EQ(Blocks(), before + 4) << "two seams for its length, and two for the directions";
  EXPECT_EQ(box.Text(), words + u"\u202E" + words + u"\u202Elast");
}

}  // namespace
}  // namespace verlume::qt
