#include "platform_qt/text/text_reading.h"

#include <gtest/gtest.h>

#include <QTest>

#include "platform_fake/fake_file_system.h"
#include "platform_qt/text/rich_text_box.h"

namespace verlume::qt {
namespace {

class QtTextReadingTest : public testing::Test {
 protected:
  QtTextReadingTest() { box.SetLocked(true); }

  void Read() {
    box.ReadInTurns([this](std::size_t position, std::u16string_view piece, bool isLast) {
      if (position == 0) text.clear();
      EXPECT_EQ(position, text.size());
      text += piece;
      isDone = isLast;
      ++pieces;
    });
  }

  fake::FakeFileSystem files;
  QWidget window;
  QtRichTextBox box{&window, files, Lines::Many};
  std::u16string text;
  bool isDone = false;
  int pieces = 0;
};

TEST_F(QtTextReadingTest, AShortTextIsReadAtOnce) {
  Read();
  EXPECT_TRUE(isDone);
  EXPECT_EQ(pieces, 1);
  box.SetText(u"a\nb");
  Read();
  EXPECT_TRUE(isDone);
  EXPECT_EQ(text, u"a\nb");
}

TEST_F(QtTextReadingTest, ALongTextIsReadBetweenEventsWithoutItsSeams) {
  std::u16string longText;
  while (longText.size() < 20'000'000) longText += std::u16string(9'000, u'x') + u"\n";
  box.SetText(longText);
  Read();
  EXPECT_FALSE(isDone);
  ASSERT_TRUE(QTest::qWaitFor([this] { return isDone; }, 60'000));
  EXPECT_TRUE(text == longText);
}

TEST_F(QtTextReadingTest, ItBeginsAnewWhenTheTextIsReplaced) {
  box.SetText(std::u16string(20'000'000, u'x'));
  Read();
  ASSERT_FALSE(isDone);
  box.SetText(u"other");
  ASSERT_TRUE(QTest::qWaitFor([this] { return isDone; }));
  EXPECT_EQ(text, u"other");
}

TEST_F(QtTextReadingTest, AnotherReadingEndsTheOneBefore) {
  box.SetText(std::u16string(20'000'000, u'x'));
  int read = 0;
  box.ReadInTurns([&](std::size_t, std::u16string_view, bool) { ++read; });
  const int before = read;
  Read();
  ASSERT_TRUE(QTest::qWaitFor([this] { return isDone; }, 60'000));
  EXPECT_EQ(read, before);
}

}  // namespace
}  // namespace verlume::qt
