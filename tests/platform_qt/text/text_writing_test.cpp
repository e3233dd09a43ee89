#include "platform_qt/text/text_writing.h"

#include <gtest/gtest.h>

#include <QScrollBar>
#include <QTest>
#include <memory>

#include "platform_fake/fake_file_system.h"
#include "platform_qt/text/rich_text_box.h"
#include "richtext/rtf_reader.h"

namespace verlume::qt {
namespace {

class QtTextWritingTest : public testing::Test {
 protected:
  QtTextWritingTest() {
    box.SetLocked(true);
    box.onTakingIn = [this] { ++takingIn; };
    box.onTakenIn = [this] { ++takenIn; };
    while (longText.size() < 500'000) longText += u"some words ";
    longRtf = u"{\\rtf1\\ansi " + longText + u"}";
  }

  void Write(std::u16string_view rtf) {
    box.Select(box.TextLength(), 0);
    box.SetSelDocument(richtext::ReadRtf(rtf));
  }
  bool HandlesEventsUntilTakenIn() {
    return QTest::qWaitFor([this] { return !box.IsTakingIn(); }, 60'000);
  }

  fake::FakeFileSystem files;
  QWidget window;
  QtRichTextBox box{&window, files, Lines::Many};
  std::u16string longText;
  std::u16string longRtf;
  int takingIn = 0;
  int takenIn = 0;
};

TEST_F(QtTextWritingTest, AShortTextIsInAtOnce) {
  Write(u"{\\rtf1 short}");
  EXPECT_FALSE(box.IsTakingIn());
  EXPECT_EQ(box.Text(), u"short");
  EXPECT_EQ(takingIn, 0);
  EXPECT_EQ(takenIn, 0);
}

TEST_F(QtTextWritingTest, TheBeginningIsRaisedOncePerTakingIn) {
  Write(longRtf);
  Write(longRtf);
  EXPECT_EQ(takingIn, 1);
  ASSERT_TRUE(HandlesEventsUntilTakenIn());
  EXPECT_EQ(takenIn, 1);
  Write(longRtf);
  EXPECT_EQ(takingIn, 2);
}

TEST_F(QtTextWritingTest, ALongTextComesInWhileEventsAreHandled) {
  Write(longRtf);
  EXPECT_TRUE(box.IsTakingIn());
  EXPECT_EQ(takingIn, 1);
  EXPECT_LT(box.TextLength(), longText.size());
  int handled = 0;
  QTimer other;
  QObject::connect(&other, &QTimer::timeout, &other, [&] { ++handled; });
  other.start(0);
  ASSERT_TRUE(HandlesEventsUntilTakenIn());
  EXPECT_GT(handled, 1);
  EXPECT_EQ(takenIn, 1);
  EXPECT_EQ(box.TextLength(), longText.size());
  EXPECT_TRUE(box.Text() == longText);
}

TEST_F(QtTextWritingTest, WhatIsWrittenMeanwhileFollowsIt) {
  Write(longRtf);
  box.Select(box.TextLength(), 0);
  box.SetSelText(u"\r\nnext ");
  Write(u"{\\rtf1 line}");
  Write(longRtf);
  ASSERT_TRUE(HandlesEventsUntilTakenIn());
  EXPECT_EQ(takenIn, 1);
  EXPECT_TRUE(box.Text() == longText + u"\nnext line" + longText);
}

TEST_F(QtTextWritingTest, TextsOfOneLineFollowEachOther) {
  Write(longRtf);
  Write(u"{\\rtf1 and short}");
  Write(longRtf);
  ASSERT_TRUE(HandlesEventsUntilTakenIn());
  EXPECT_TRUE(box.Text() == longText + u"and short" + longText);
}

TEST_F(QtTextWritingTest, ManyShortTextsComeInByAndByToo) {
  std::u16string expected;
  for (int i = 0; i < 1'000; ++i) {
    Write(u"{\\rtf1 {\\b short} text\\par}");
    expected += u"short text";
  }
  EXPECT_TRUE(box.IsTakingIn());
  ASSERT_TRUE(HandlesEventsUntilTakenIn());
  EXPECT_TRUE(box.Text() == expected);
  Write(u"{\\rtf1 !}");
  EXPECT_FALSE(box.IsTakingIn()) << "events have been handled since";
}

TEST_F(QtTextWritingTest, WhoReadsTheTextWaitsForTheRest) {
  Write(longRtf);
  EXPECT_TRUE(box.Text() == longText);
  EXPECT_FALSE(box.IsTakingIn());
  Write(longRtf);
  box.SaveFile(u"/copy.txt", TextFileFormat::PlainText);
  EXPECT_TRUE(files.ReadText(u"/copy.txt") == longText + longText);
  ASSERT_TRUE(QTest::qWaitFor([this] { return takenIn > 0; }));
}

TEST_F(QtTextWritingTest, AnotherTextAbandonsTheRest) {
  Write(longRtf);
  box.SetText(u"other");
  EXPECT_FALSE(box.IsTakingIn());
  EXPECT_EQ(takenIn, 1);
  QCoreApplication::processEvents();
  EXPECT_EQ(box.Text(), u"other");
}

TEST_F(QtTextWritingTest, ABoxThatTheUserChangesTakesAllAtOnce) {
  box.SetLocked(false);
  Write(longRtf);
  EXPECT_FALSE(box.IsTakingIn());
  EXPECT_EQ(box.TextLength(), longText.size());
}

TEST_F(QtTextWritingTest, TheEndStaysInView) {
  window.resize(400, 300);
  box.widget()->resize(400, 200);
  window.show();
  auto& widget = dynamic_cast<RichTextWidget&>(*box.widget());
  Write(longRtf);
  box.Select(box.TextLength(), 0);
  ASSERT_TRUE(widget.ShowsEnd());
  ASSERT_TRUE(HandlesEventsUntilTakenIn());
  EXPECT_GT(widget.verticalScrollBar()->value(), 0);
  EXPECT_TRUE(widget.ShowsEnd());
}

TEST_F(QtTextWritingTest, WhoLooksAtOlderLinesGoesOnDoingSo) {
  window.resize(400, 300);
  box.widget()->resize(400, 200);
  window.show();
  for (int line = 0; line < 100; ++line) Write(u"{\\rtf1 line\\par\\par}");
  Write(longRtf);
  QScrollBar& bar = *box.widget()->verticalScrollBar();
  bar.setValue(20);
  ASSERT_TRUE(HandlesEventsUntilTakenIn());
  EXPECT_EQ(bar.value(), 20);
}

TEST_F(QtTextWritingTest, ABoxMayGoWhileItsTextComesIn) {
  auto gone = std::make_unique<QtRichTextBox>(&window, files, Lines::Many);
  gone->SetLocked(true);
  gone->SetSelDocument(richtext::ReadRtf(longRtf));
  gone.reset();
  Write(longRtf);
  EXPECT_TRUE(HandlesEventsUntilTakenIn());
}

}  // namespace
}  // namespace verlume::qt
