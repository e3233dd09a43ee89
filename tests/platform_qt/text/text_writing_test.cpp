#include "platform_qt/text/text_writing.h"

#include <gtest/gtest.h>

#include <QDeadlineTimer>
#include <QScrollBar>
#include <QTest>
#include <QThread>
#include <atomic>
#include <memory>

#include "platform/run_time_failure.h"
#include "platform_fake/fake_file_system.h"
#include "platform_qt/convert/text.h"
#include "platform_qt/text/rich_text_box.h"
#include "richtext/rtf_reader.h"

namespace verlume::qt {
namespace {

// A disk that is slow until somebody has waited, for ten seconds at most.
class SlowFiles : public fake::FakeFileSystem {
 public:
  void ReplaceText(std::u16string_view path, std::u16string_view text, Readers readers) override {
    const QDeadlineTimer limit(10'000);
    while (isSlow && !limit.hasExpired()) QThread::msleep(1);
    FakeFileSystem::ReplaceText(path, text, readers);
  }

  std::atomic<bool> isSlow = false;
};

class QtTextWritingTest : public testing::Test {
 protected:
  QtTextWritingTest() {
    box.SetLocked(true);
    box.onInsertionStarted = [this] { ++started; };
    box.onInsertionFinished = [this] { ++finished; };
    while (longText.size() < 500'000) longText += u"some words ";
    longRtf = u"{\\rtf1\\ansi " + longText + u"}";
  }

  void Write(std::u16string_view rtf) {
    box.Select(box.TextLength(), 0);
    box.SetSelDocument(richtext::ReadRtf(rtf));
  }
  bool FinishesInserting() {
    return QTest::qWaitFor([this] { return !box.IsInserting(); }, 60'000);
  }

  SlowFiles files;
  QWidget window;
  QtRichTextBox box{&window, files, Lines::Many};
  std::u16string longText;
  std::u16string longRtf;
  int started = 0;
  int finished = 0;
};

TEST_F(QtTextWritingTest, AShortTextIsInsertedAtOnce) {
  Write(u"{\\rtf1 short}");
  EXPECT_FALSE(box.IsInserting());
  EXPECT_EQ(box.Text(), u"short");
  EXPECT_EQ(started, 0);
  EXPECT_EQ(finished, 0);
}

// Each look may need a font to be opened.
TEST_F(QtTextWritingTest, AShortTextOfManyLooksIsInsertedBetweenEvents) {
  std::u16string content;
  std::u16string expected;
  for (int size = 2; size < 140; ++size) {
    content += u"\\fs" + FromQt(QString::number(size)) + u" a";
    expected += u'a';
  }
  Write(u"{\\rtf1 " + content + u"}");
  EXPECT_TRUE(box.IsInserting());
  ASSERT_TRUE(FinishesInserting());
  EXPECT_EQ(box.Text(), expected);
}

TEST_F(QtTextWritingTest, TheStartIsRaisedOncePerInsertion) {
  Write(longRtf);
  Write(longRtf);
  EXPECT_EQ(started, 1);
  ASSERT_TRUE(FinishesInserting());
  EXPECT_EQ(finished, 1);
  Write(longRtf);
  EXPECT_EQ(started, 2);
}

TEST_F(QtTextWritingTest, ALongTextIsInsertedBetweenEvents) {
  Write(longRtf);
  EXPECT_TRUE(box.IsInserting());
  EXPECT_EQ(started, 1);
  EXPECT_LT(box.TextLength(), longText.size());
  int handled = 0;
  QTimer other;
  QObject::connect(&other, &QTimer::timeout, &other, [&] { ++handled; });
  other.start(0);
  ASSERT_TRUE(FinishesInserting());
  EXPECT_GT(handled, 1);
  EXPECT_EQ(finished, 1);
  EXPECT_EQ(box.TextLength(), longText.size());
  EXPECT_TRUE(box.Text() == longText);
}

TEST_F(QtTextWritingTest, TextWrittenMeanwhileFollowsIt) {
  Write(longRtf);
  box.Select(box.TextLength(), 0);
  box.SetSelText(u"\r\nnext ");
  Write(u"{\\rtf1 line}");
  Write(longRtf);
  ASSERT_TRUE(FinishesInserting());
  EXPECT_EQ(finished, 1);
  EXPECT_TRUE(box.Text() == longText + u"\nnext line" + longText);
}

TEST_F(QtTextWritingTest, TheTextsOfOneLineStayInOrder) {
  Write(longRtf);
  Write(u"{\\rtf1 and short}");
  Write(longRtf);
  ASSERT_TRUE(FinishesInserting());
  EXPECT_TRUE(box.Text() == longText + u"and short" + longText);
}

TEST_F(QtTextWritingTest, ManyShortTextsAreInsertedBetweenEventsToo) {
  std::u16string expected;
  for (int i = 0; i < 1'000; ++i) {
    Write(u"{\\rtf1 {\\b short} text\\par}");
    expected += u"short text";
  }
  EXPECT_TRUE(box.IsInserting());
  ASSERT_TRUE(FinishesInserting());
  EXPECT_TRUE(box.Text() == expected);
  Write(u"{\\rtf1 !}");
  EXPECT_FALSE(box.IsInserting()) << "events have been handled since";
}

TEST_F(QtTextWritingTest, ReadingTheTextWaitsForTheRest) {
  Write(longRtf);
  EXPECT_TRUE(box.Text() == longText);
  EXPECT_FALSE(box.IsInserting());
  Write(longRtf);
  box.SaveFile(u"/copy.txt", TextFileFormat::PlainText);
  EXPECT_TRUE(files.ReadText(u"/copy.txt") == longText + longText);
  ASSERT_TRUE(QTest::qWaitFor([this] { return finished > 0; }));
}

TEST_F(QtTextWritingTest, AnotherTextDropsTheRest) {
  Write(longRtf);
  box.SetText(u"other");
  EXPECT_FALSE(box.IsInserting());
  EXPECT_EQ(finished, 1);
  QCoreApplication::processEvents();
  EXPECT_EQ(box.Text(), u"other");
}

TEST_F(QtTextWritingTest, TheRestCanBeDropped) {
  Write(longRtf);
  box.DropInsertions();
  EXPECT_FALSE(box.MoreIsComing());
  EXPECT_EQ(finished, 1);
  const std::u16string shown = box.Text();
  EXPECT_TRUE(longText.starts_with(shown));
  Write(u"{\\rtf1 next}");
  EXPECT_TRUE(box.Text() == shown + u"next");
  const int before = finished;
  box.DropInsertions();
  EXPECT_EQ(finished, before) << "there was nothing to drop";
}

TEST_F(QtTextWritingTest, EventsAreHandledWhileItIsWaitedFor) {
  int handled = 0;
  QTimer other;
  QObject::connect(&other, &QTimer::timeout, &other, [&] {
    ++handled;
    if (handled > 1) files.isSlow = false;
  });
  other.start(0);
  Write(longRtf);
  EXPECT_TRUE(box.Text() == longText);
  EXPECT_GT(handled, 1);
  handled = 0;
  files.isSlow = true;
  box.SaveFile(u"/copy.rtf", TextFileFormat::RichText);
  EXPECT_GT(handled, 1);
  EXPECT_TRUE(richtext::ReadRtf(files.ReadBytes(u"/copy.rtf")).text == longText);
}

// A peer may go on for ever.
TEST_F(QtTextWritingTest, TextThatBeginsMeanwhileIsNotWaitedFor) {
  box.onInsertionFinished = [this] {
    ++finished;
    Write(longRtf);
  };
  Write(longRtf);
  EXPECT_TRUE(box.Text().starts_with(longText));
  EXPECT_EQ(finished, 1);
}

TEST_F(QtTextWritingTest, AFailureToSaveALongTextIsThrown) {
  box.SetText(longText);
  EXPECT_THROW(box.SaveFile(u"/no such folder/copy.rtf", TextFileFormat::RichText), RunTimeFailure);
}

TEST_F(QtTextWritingTest, AnUnlockedBoxInsertsEverythingAtOnce) {
  box.SetLocked(false);
  Write(longRtf);
  EXPECT_FALSE(box.IsInserting());
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
  ASSERT_TRUE(FinishesInserting());
  EXPECT_GT(widget.verticalScrollBar()->value(), 0);
  EXPECT_TRUE(widget.ShowsEnd());
}

TEST_F(QtTextWritingTest, OlderLinesStayInViewWhenTheUserLooksAtThem) {
  window.resize(400, 300);
  box.widget()->resize(400, 200);
  window.show();
  for (int line = 0; line < 100; ++line) Write(u"{\\rtf1 line\\par\\par}");
  Write(longRtf);
  QScrollBar& bar = *box.widget()->verticalScrollBar();
  bar.setValue(20);
  ASSERT_TRUE(FinishesInserting());
  EXPECT_EQ(bar.value(), 20);
}

TEST_F(QtTextWritingTest, ABoxMayBeDeletedWhileATextIsInserted) {
  auto gone = std::make_unique<QtRichTextBox>(&window, files, Lines::Many);
  gone->SetLocked(true);
  gone->SetSelDocument(richtext::ReadRtf(longRtf));
  gone.reset();
  Write(longRtf);
  EXPECT_TRUE(FinishesInserting());
}

}  // namespace
}  // namespace verlume::qt
