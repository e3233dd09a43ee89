#include "platform_qt/text/text_limit.h"

#include <gtest/gtest.h>

#include <QScrollBar>
#include <QTest>
#include <vector>

#include "platform_fake/fake_file_system.h"
#include "platform_qt/text/paragraph_author.h"
#include "platform_qt/text/rich_text_box.h"
#include "richtext/rtf_reader.h"

namespace verlume::qt {
namespace {

class QtTextLimitTest : public testing::Test {
 protected:
  QtTextLimitTest() {
    window.resize(400, 300);
    box.widget()->resize(400, 200);
    window.show();
    box.SetLocked(true);
    box.SetMostParagraphs(kMost);
    box.onNearlyFull = [this] { ++timesNearlyFull; };
    box.onLinesRemoved = [this](std::size_t position, std::size_t length) {
      EXPECT_EQ(position, stays);
      removed += length;
    };
  }

  static std::u16string LineText(int number) {
    const std::string text = "<" + std::to_string(number) + ">";
    return {text.begin(), text.end()};
  }
  void WriteLine(std::u16string_view text) {
    const RichTextUpdate update(box);
    box.Select(box.TextLength(), 0);
    if (box.TextLength() > 0) box.SetSelText(u"\r\n");
    box.SetSelText(text);
  }
  void WriteLines(int count) {
    for (int i = 0; i < count; ++i) WriteLine(LineText(++last));
  }
  int Lines() const { return box.widget()->document()->blockCount(); }
  bool HasTrimmed() {
    return QTest::qWaitFor([this] { return removed > 0 && Lines() <= kMost; });
  }
  // Handles the events that are due, and those that these bring about.
  static void HandleEvents() {
    bool isOver = false;
    QTimer::singleShot(50, [&] { isOver = true; });
    EXPECT_TRUE(QTest::qWaitFor([&] { return isOver; }));
  }
  static constexpr int kMost = 1'600;

  fake::FakeFileSystem files;
  QWidget window;
  QtRichTextBox box{&window, files, Lines::Many};
  int last = 0;
  int timesNearlyFull = 0;
  std::size_t removed = 0;
  std::size_t stays = 0;
};

TEST_F(QtTextLimitTest, TheOldestLinesLeaveAndTheNewestStay) {
  WriteLines(kMost + 1);
  ASSERT_TRUE(HasTrimmed());
  HandleEvents();
  const std::u16string text = box.Text();
  EXPECT_EQ(text.substr(text.rfind(u'\n') + 1), LineText(last));
  EXPECT_TRUE(text.starts_with(LineText(last - Lines() + 1) + u"\n"));
  EXPECT_GE(Lines(), kMost - kMost / 16 - 64);
}

TEST_F(QtTextLimitTest, ItIsToldOnceBeforeLinesLeave) {
  WriteLines(kMost * 8 / 10);
  HandleEvents();
  EXPECT_EQ(timesNearlyFull, 0);
  WriteLines(kMost / 10);
  ASSERT_TRUE(QTest::qWaitFor([this] { return timesNearlyFull > 0; }));
  EXPECT_EQ(removed, 0u);
  WriteLines(kMost);
  ASSERT_TRUE(HasTrimmed());
  EXPECT_EQ(timesNearlyFull, 1);
  box.SetText(u"");
  WriteLines(kMost);
  EXPECT_TRUE(QTest::qWaitFor([this] { return timesNearlyFull == 2; }));
}

TEST_F(QtTextLimitTest, WithoutALimitEverythingStays) {
  box.SetMostParagraphs(0);
  WriteLines(2 * kMost);
  HandleEvents();
  EXPECT_EQ(Lines(), 2 * kMost);
}

TEST_F(QtTextLimitTest, LongLinesCountAsSeveralAndLeaveAsAWhole) {
  const std::u16string longLine(100'000, u'x');
  for (int i = 0; i < 40; ++i) WriteLine(longLine);
  ASSERT_TRUE(QTest::qWaitFor([this] { return box.TextLength() < 1'600u * 512; }));
  const std::u16string text = box.Text();
  EXPECT_EQ(text.size() % (longLine.size() + 1), longLine.size());
}

TEST_F(QtTextLimitTest, TheLastLineStaysHoweverLongItIs) {
  const std::u16string longLine(2'000'000, u'x');
  WriteLine(longLine);
  HandleEvents();
  EXPECT_EQ(box.TextLength(), longLine.size());
}

TEST_F(QtTextLimitTest, WhatTheUserLoadsStaysAndIsNotCounted) {
  std::u16string loaded;
  for (int i = 0; i < 3 * kMost; ++i) loaded += u"A line of an older dialogue.\n";
  files.ReplaceText(u"/old.txt", loaded);
  box.LoadFile(u"/old.txt", TextFileFormat::PlainText);
  ASSERT_TRUE(QTest::qWaitFor([this] { return !box.MoreIsComing(); }));
  HandleEvents();
  EXPECT_EQ(box.TextLength(), loaded.size());
  EXPECT_EQ(timesNearlyFull, 0);
  stays = loaded.size() + 1;
  WriteLines(kMost + 2);
  ASSERT_TRUE(QTest::qWaitFor([this] { return removed > 0; }));
  HandleEvents();
  const std::u16string text = box.Text();
  EXPECT_TRUE(text.starts_with(loaded + u"\n<"));
  EXPECT_EQ(text.find(LineText(1) + u"\n"), text.npos);
  EXPECT_TRUE(text.ends_with(LineText(last)));
}

TEST_F(QtTextLimitTest, EveryLineThatStaysKeepsItsAuthor) {
  const auto authorOf = [](int number) { return number % 7 < 3 ? Author::User : Author::Peer; };
  for (int number = 1; number <= kMost + 1; ++number) {
    WriteLines(1);
    box.SetSelAuthor(authorOf(number));
  }
  ASSERT_TRUE(HasTrimmed());
  HandleEvents();
  int number = last - Lines() + 1;
  std::vector<int> wrong;
  for (QTextBlock block = box.widget()->document()->begin(); block.isValid();
       block = block.next()) {
    if (AuthorOf(block) != authorOf(number)) wrong.push_back(number);
    ++number;
  }
  EXPECT_EQ(wrong, std::vector<int>{});
}

TEST_F(QtTextLimitTest, WhatTheUserLooksAtStaysInItsPlace) {
  WriteLines(kMost + 1);
  auto& bar = *box.widget()->verticalScrollBar();
  bar.setValue(1'000);
  const auto atTop = [this] { return box.widget()->cursorForPosition({2, 2}).block().text(); };
  const QString before = atTop();
  ASSERT_EQ(before, "<1001>");
  ASSERT_TRUE(HasTrimmed());
  HandleEvents();
  EXPECT_EQ(atTop(), before);
  EXPECT_LT(bar.value(), 1'000);
}

TEST_F(QtTextLimitTest, NoLineLeavesWhileTheTextIsRead) {
  WriteLines(kMost);
  std::u16string read;
  bool isDone = false;
  box.ReadInTurns([&](std::size_t position, std::u16string_view piece, bool isLast) {
    EXPECT_EQ(position, read.size());
    read += piece;
    isDone = isLast;
  });
  WriteLines(10);
  ASSERT_TRUE(QTest::qWaitFor([&] { return isDone; }));
  EXPECT_TRUE(read.starts_with(LineText(1) + u"\n"));
  EXPECT_TRUE(HasTrimmed());
}

}  // namespace
}  // namespace verlume::qt
