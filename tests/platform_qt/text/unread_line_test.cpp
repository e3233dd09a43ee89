// The thin line above what nobody has seen yet.
#include <gtest/gtest.h>

#include <QAccessible>
#include <QTextBlock>
#include <vector>

#include "platform_fake/fake_file_system.h"
#include "platform_qt/text/rich_text_box.h"
#include "platform_qt/world.h"

namespace verlume::qt {
namespace {

class UnreadLineTest : public testing::Test {
 protected:
  UnreadLineTest() {
    window.resize(400, 300);
    pane->setGeometry(0, 0, 400, 300);
    box.SetLocked(true);
    box.SetAuthorWords(Author::Peer, u"theirs");
    window.show();
    WriteLines(3);
  }

  void WriteLines(int count) {
    for (int i = 0; i < count; ++i) {
      const RichTextUpdate update(box);
      box.Select(box.TextLength(), 0);
      if (box.TextLength() > 0) box.SetSelText(u"\r\n");
      box.SetSelAuthor(Author::Peer);
      box.SetSelText(u"line");
    }
  }
  void Mark(std::size_t position) {
    box.MarkUnread(position, [] { return std::u16string(u"Not read yet."); });
  }
  int TopOf(const QTextBlock& block) const { return pane->cursorRect(QTextCursor(block)).top(); }
  // The heights at which the line is painted, right of the text.
  std::vector<int> Painted() const {
    const QRgb color = pane->palette().color(QPalette::Highlight).rgb();
    const QImage picture = pane->viewport()->grab().toImage();
    std::vector<int> rows;
    for (int y = 0; y < picture.height(); ++y) {
      if (picture.pixel(picture.width() - 10, y) == color) rows.push_back(y);
    }
    return rows;
  }
  void ExpectAbove(const QTextBlock& block) const {
    const std::vector<int> rows = Painted();
    ASSERT_EQ(rows.size(), 2u);
    EXPECT_NEAR(rows.front(), TopOf(block), 1);
  }
  QString Description() const {
    return QAccessible::queryAccessibleInterface(pane)->text(QAccessible::Description);
  }
  static constexpr std::size_t kThird = 10;  // where the third line begins

  fake::FakeFileSystem files;
  QWidget window;
  QtRichTextBox box{&window, files, Lines::Many};
  QPlainTextEdit* pane = box.widget();
};

TEST_F(UnreadLineTest, StandsAboveItsParagraphUntilItIsTakenAway) {
  EXPECT_TRUE(Painted().empty());
  Mark(kThird);
  ExpectAbove(pane->document()->findBlockByNumber(2));
  box.MarkUnread(std::nullopt, {});
  EXPECT_TRUE(Painted().empty());
}

TEST_F(UnreadLineTest, ThereIsOneAtMost) {
  Mark(kThird);
  Mark(5);
  ExpectAbove(pane->document()->findBlockByNumber(1));
}

TEST_F(UnreadLineTest, IsNoText) {
  const std::u16string rtf = box.Rtf();
  int changes = 0;
  box.onChange = box.onSelChange = [&] { ++changes; };
  Mark(kThird);
  EXPECT_EQ(box.Text(), u"line\nline\nline");
  EXPECT_EQ(box.Rtf(), rtf);
  EXPECT_EQ(changes, 0);
}

TEST_F(UnreadLineTest, StaysWhereItIsWhenMoreComes) {
  Mark(kThird);
  WriteLines(2);
  ExpectAbove(pane->document()->findBlockByNumber(2));
}

TEST_F(UnreadLineTest, StaysAboveItsParagraphWhenOlderLinesLeave) {
  std::size_t removed = 0;
  box.onLinesRemoved = [&](std::size_t, std::size_t length) { removed += length; };
  box.SetMostParagraphs(100);
  WriteLines(96);
  const std::size_t last = box.TextLength() - 4;
  Mark(last);
  WriteLines(3);
  ASSERT_TRUE(WaitFor([&] { return removed > 0; }));
  const QTextBlock marked = pane->document()->findBlock(static_cast<int>(last - removed));
  ExpectAbove(marked);
}

TEST_F(UnreadLineTest, LeavesWithAllText) {
  Mark(kThird);
  box.SetText(u"line\nline\nline");
  EXPECT_TRUE(Painted().empty());
}

TEST_F(UnreadLineTest, IsReadOutInItsParagraph) {
  Mark(kThird);
  EXPECT_EQ(Description(), "Not read yet. theirs");
  box.Select(0, 0);
  EXPECT_EQ(Description(), "theirs");
}

}  // namespace
}  // namespace verlume::qt
