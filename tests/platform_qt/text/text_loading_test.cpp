#include "platform_qt/text/text_loading.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QScrollBar>
#include <QTest>
#include <algorithm>
#include <memory>

#include "platform_fake/fake_file_system.h"
#include "platform_qt/text/rich_text_box.h"

namespace verlume::qt {
namespace {

using testing::IsEmpty;

class QtTextLoadingTest : public testing::Test {
 protected:
  QtTextLoadingTest() {
    box.SetLocked(true);
    box.onLoadProgress = [this](int percent) { told.push_back(percent); };
    while (longText.size() < 500'000) longText += u"A line of a dialogue.\n";
    files.ReplaceText(u"/long.txt", longText);
    files.ReplaceText(u"/short.txt", u"short");
  }

  void Load(std::u16string_view path) { box.LoadFile(path, TextFileFormat::PlainText); }
  bool HandlesEventsUntilLoaded() {
    return QTest::qWaitFor([this] { return !told.empty() && told.back() == 100; });
  }

  fake::FakeFileSystem files;
  QWidget window;
  QtRichTextBox box{&window, files, Lines::Many};
  std::u16string longText;
  std::vector<int> told;
};

TEST_F(QtTextLoadingTest, ALongFileIsInsertedBetweenEvents) {
  Load(u"/long.txt");
  EXPECT_GT(box.TextLength(), 0u);
  EXPECT_LT(box.TextLength(), longText.size());
  int handled = 0;
  QTimer other;
  QObject::connect(&other, &QTimer::timeout, &other, [&] { ++handled; });
  other.start(0);
  ASSERT_TRUE(HandlesEventsUntilLoaded());
  EXPECT_GT(handled, 1);
  EXPECT_EQ(box.TextLength(), longText.size());
  EXPECT_TRUE(box.Text() == longText);
  EXPECT_EQ(box.SelStart(), 0u);
}

TEST_F(QtTextLoadingTest, TheProgressRisesToAHundredAndIsReportedOnce) {
  Load(u"/long.txt");
  ASSERT_TRUE(HandlesEventsUntilLoaded());
  EXPECT_GT(told.size(), 2u);
  EXPECT_TRUE(std::is_sorted(told.begin(), told.end()));
  EXPECT_EQ(std::adjacent_find(told.begin(), told.end()), told.end());
  const std::size_t tellings = told.size();
  box.SetText(u"other");
  EXPECT_EQ(told.size(), tellings);
}

TEST_F(QtTextLoadingTest, AShortFileIsInsertedAtOnceWithoutProgress) {
  Load(u"/short.txt");
  EXPECT_EQ(box.TextLength(), 5u);
  QCoreApplication::processEvents();
  EXPECT_THAT(told, IsEmpty());
}

TEST_F(QtTextLoadingTest, ReadingTheTextWaitsForTheRest) {
  Load(u"/long.txt");
  EXPECT_TRUE(box.Text() == longText);
  EXPECT_EQ(told.back(), 100);
  const std::size_t before = told.size();
  QCoreApplication::processEvents();
  EXPECT_EQ(told.size(), before);
}

TEST_F(QtTextLoadingTest, SavingTheTextWaitsForTheRest) {
  Load(u"/long.txt");
  box.SaveFile(u"/copy.txt", TextFileFormat::PlainText);
  EXPECT_TRUE(files.ReadText(u"/copy.txt") == longText);
}

TEST_F(QtTextLoadingTest, AnotherTextDropsTheRest) {
  Load(u"/long.txt");
  box.SetText(u"other");
  EXPECT_EQ(told.back(), 100);
  QCoreApplication::processEvents();
  EXPECT_EQ(box.Text(), u"other");
}

TEST_F(QtTextLoadingTest, AnotherFileDropsTheRest) {
  Load(u"/long.txt");
  Load(u"/short.txt");
  EXPECT_EQ(told.back(), 100);
  QCoreApplication::processEvents();
  EXPECT_EQ(box.Text(), u"short");
}

TEST_F(QtTextLoadingTest, AFileThatCannotBeReadDropsNothing) {
  Load(u"/long.txt");
  EXPECT_THROW(Load(u"/none.txt"), RunTimeFailure);
  EXPECT_TRUE(box.Text() == longText);
}

TEST_F(QtTextLoadingTest, TextWrittenMeanwhileFollowsTheFile) {
  Load(u"/long.txt");
  box.Select(box.TextLength(), 0);
  box.SetSelText(u"\r\n");
  box.SetSelText(u"a line that arrived");
  ASSERT_TRUE(HandlesEventsUntilLoaded());
  EXPECT_TRUE(box.Text() == longText + u"\na line that arrived");
}

TEST_F(QtTextLoadingTest, TextWrittenMeanwhileStaysInView) {
  window.resize(400, 300);
  box.widget()->resize(400, 200);
  window.show();
  Load(u"/long.txt");
  const QScrollBar& bar = *box.widget()->verticalScrollBar();
  EXPECT_EQ(bar.value(), 0);
  box.Select(box.TextLength(), 0);
  box.SetSelText(u"a line that arrived");
  box.Select(box.TextLength(), 0);
  ASSERT_GT(bar.value(), 0);
  ASSERT_TRUE(HandlesEventsUntilLoaded());
  EXPECT_EQ(bar.value(), bar.maximum());
}

TEST_F(QtTextLoadingTest, ALongMacroIsInsertedPieceByPieceToo) {
  files.ReplaceText(u"/long.rtf", u"{\\rtf1 " + std::u16string(500'000, u'x') + u"}");
  QtRichTextBox single(&window, files, Lines::Single);
  single.SetLocked(true);
  single.LoadFile(u"/long.rtf", TextFileFormat::RichText);
  EXPECT_LT(single.TextLength(), 500'000u);
  ASSERT_TRUE(QTest::qWaitFor([&] { return single.TextLength() == 500'000; }));
  EXPECT_TRUE(single.Text() == std::u16string(500'000, u'x'));
}

TEST_F(QtTextLoadingTest, ATextThatTheUserCanChangeIsComplete) {
  Load(u"/long.txt");
  ASSERT_LT(box.TextLength(), longText.size());
  box.SetLocked(false);
  EXPECT_EQ(box.TextLength(), longText.size());
  Load(u"/long.txt");
  EXPECT_EQ(box.TextLength(), longText.size());
}

TEST_F(QtTextLoadingTest, ABoxMayBeDeletedWhileAFileIsInserted) {
  auto gone = std::make_unique<QtRichTextBox>(&window, files, Lines::Many);
  gone->SetLocked(true);
  gone->LoadFile(u"/long.txt", TextFileFormat::PlainText);
  gone.reset();
  Load(u"/long.txt");
  EXPECT_TRUE(HandlesEventsUntilLoaded());
}

}  // namespace
}  // namespace verlume::qt
