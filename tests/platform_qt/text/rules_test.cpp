#include "platform_qt/text/rules.h"

#include <gtest/gtest.h>

#include <QAccessible>
#include <QApplication>
#include <QClipboard>
#include <QHelpEvent>
#include <QScrollBar>
#include <QTest>
#include <QToolTip>

#include "platform_fake/fake_file_system.h"
#include "platform_qt/text/author_margin.h"
#include "platform_qt/text/rich_text_box.h"
#include "platform_qt/text/rich_text_widget.h"
#include "platform_qt/world.h"
#include "shell/text_pair.h"

namespace verlume::qt {
namespace {

class RulesTest : public testing::Test {
 protected:
  RulesTest() {
    window.resize(400, 300);
    pane->setGeometry(0, 0, 400, 300);
    box.SetLocked(true);
    box.SetToolTip(u"Dialogue textbox");
    box.SetAuthorWords(Author::User, u"mine");
    window.show();
  }

  void WriteLine(std::u16string_view text) {
    const RichTextUpdate update(box);
    box.Select(box.TextLength(), 0);
    if (box.TextLength() > 0) box.SetSelText(u"\r\n");
    box.SetSelAuthor(Author::User);
    box.SetSelText(text);
  }
  void AddRule(std::u16string words) {
    box.AddRule([words] { return words; });
  }
  int Top(int block) {
    return pane->cursorRect(QTextCursor(pane->document()->findBlockByNumber(block))).top();
  }
  int Bottom(int block) {
    return pane->cursorRect(QTextCursor(pane->document()->findBlockByNumber(block))).bottom();
  }
  int Height() const { return qRound(RuleHeight(*pane->document())); }
  // Whether anything is painted between two heights.
  bool IsPaintedBetween(int from, int to) {
    const QImage image = pane->viewport()
                             ->grab({0, from, pane->viewport()->width(), to - from})
                             .toImage()
                             .convertToFormat(QImage::Format_RGB32);
    for (int y = 0; y < image.height(); ++y) {
      for (int x = 0; x < image.width(); ++x) {
        if (image.pixelColor(x, y) != pane->palette().color(QPalette::Base)) return true;
      }
    }
    return false;
  }
  QString Description() {
    return QAccessible::queryAccessibleInterface(pane)->text(QAccessible::Description);
  }
  bool EndIsInView() const { return static_cast<RichTextWidget*>(pane)->ShowsEnd(); }

  QWidget window;
  fake::FakeFileSystem files;
  QtRichTextBox box{&window, files, Lines::Many};
  QPlainTextEdit* pane = box.widget();
};

TEST_F(RulesTest, HaveRoomBetweenTheLines) {
  WriteLine(u"one");
  WriteLine(u"two");
  const int usual = Top(1) - Top(0);
  AddRule(u"Connected");
  AddRule(u"Disconnected");
  WriteLine(u"three");
  EXPECT_EQ(Top(1) - Top(0), usual);
  EXPECT_NEAR(Top(2) - Top(1), usual + 2 * Height(), 2);
  EXPECT_TRUE(IsPaintedBetween(Bottom(1) + 1, Bottom(1) + Height()));
  EXPECT_TRUE(IsPaintedBetween(Top(2) - Height(), Top(2) - 1));
}

TEST_F(RulesTest, StandAboveTheFirstLineOfAnEmptyPane) {
  const int usual = Top(0);
  AddRule(u"Connected");
  EXPECT_NEAR(Top(0), usual + Height(), 1);
  EXPECT_TRUE(IsPaintedBetween(usual, Top(0) - 1));
  WriteLine(u"one");
  EXPECT_NEAR(Top(0), usual + Height(), 1);
  pane->resize(300, 250);  // laid out anew
  EXPECT_NEAR(Top(0), usual + Height(), 1);
}

TEST_F(RulesTest, AreNoText) {
  WriteLine(u"one");
  const std::u16string rtf = box.Rtf();
  int changes = 0;
  box.onChange = box.onSelChange = [&] { ++changes; };
  AddRule(u"Disconnected");
  EXPECT_EQ(changes, 0);
  EXPECT_EQ(box.Text(), u"one");
  EXPECT_EQ(box.Rtf(), rtf);
  pane->selectAll();
  pane->copy();
  EXPECT_EQ(QApplication::clipboard()->text(), "one");
}

TEST_F(RulesTest, AClickOnOneIsAClickOnTheLineBeside) {
  WriteLine(u"one");
  AddRule(u"Disconnected");
  WriteLine(u"two");
  QTest::mouseClick(pane->viewport(), Qt::LeftButton, {}, {350, Bottom(0) + Height() / 2});
  EXPECT_EQ(box.SelStart(), 3u);
}

TEST_F(RulesTest, TheEndStaysInView) {
  for (int i = 0; i < 40; ++i) WriteLine(u"line");
  ASSERT_TRUE(EndIsInView());
  AddRule(u"Disconnected");
  EXPECT_TRUE(EndIsInView());
  EXPECT_LE(Bottom(39) + Height(), pane->viewport()->height());
  WriteLine(u"last");
  EXPECT_TRUE(EndIsInView());
  pane->verticalScrollBar()->setValue(3);
  AddRule(u"Connected");
  EXPECT_EQ(pane->verticalScrollBar()->value(), 3);
}

TEST_F(RulesTest, LeaveWithTheTextBesideThem) {
  AddRule(u"Connected");
  WriteLine(u"one");
  box.SetText(u"");
  WriteLine(u"one");
  EXPECT_EQ(WordsOfRules(pane->document()->firstBlock()), "");
}

TEST_F(RulesTest, StayWhenOlderLinesLeave) {
  box.SetMostParagraphs(160);
  WriteLine(u"line");
  AddRule(u"first");
  for (int i = 0; i < 140; ++i) {
    WriteLine(u"line");
    AddRule(DecimalText(i + 1));
  }
  std::size_t removed = 0;
  box.onLinesRemoved = [&](std::size_t, std::size_t length) { removed += length; };
  for (int i = 0; i < 30; ++i) WriteLine(u"line");
  ASSERT_TRUE(WaitFor([&] { return removed > 0; }));
  const auto lines = static_cast<int>(removed / 5);
  for (int i = 0; i < 140 - lines; ++i) {
    const QTextBlock block = pane->document()->findBlockByNumber(i);
    ASSERT_EQ(WordsOfRules(block), ToQt(DecimalText(i + lines)) + '.') << i;
  }
}

TEST_F(RulesTest, AreReadOutWithTheLineBeside) {
  AddRule(u"Connected");
  WriteLine(u"one");
  AddRule(u"Disconnected");
  EXPECT_EQ(Description(), "mine Connected. Disconnected.");
  WriteLine(u"two");
  EXPECT_EQ(Description(), "mine");
}

TEST_F(RulesTest, FollowTheirWords) {
  std::u16string words = u"Connected";
  box.AddRule([&words] { return words; });
  ASSERT_EQ(Description(), "Connected.");
  words = u"Συνδεθήκατε";
  box.RefreshSigns();
  EXPECT_EQ(Description(), ToQt(u"Συνδεθήκατε."));
}

TEST_F(RulesTest, TheMarginSaysThemInItsToolTip) {
  WriteLine(u"one");
  AddRule(u"Disconnected");
  WriteLine(u"two");
  AuthorMargin* margin = nullptr;
  for (QObject* child : pane->children()) {
    if (auto* found = dynamic_cast<AuthorMargin*>(child)) margin = found;
  }
  ASSERT_NE(margin, nullptr);
  const auto toolTipAt = [&](int y) {
    QHelpEvent event(QEvent::ToolTip, {3, y}, margin->mapToGlobal(QPoint(3, y)));
    QCoreApplication::sendEvent(margin, &event);
    return QToolTip::text();
  };
  EXPECT_TRUE(toolTipAt(Bottom(0) + Height() / 2).contains("Disconnected"));
  EXPECT_TRUE(toolTipAt(Bottom(0) - 3).contains("mine"));
  EXPECT_TRUE(toolTipAt(Top(1) + 3).contains("mine"));
}

}  // namespace
}  // namespace verlume::qt
