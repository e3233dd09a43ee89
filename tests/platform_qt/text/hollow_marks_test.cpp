// The marks of what did not go out.
#include <gtest/gtest.h>

#include <QHelpEvent>
#include <QImage>
#include <QTextBlock>
#include <QToolTip>

#include "platform_fake/fake_file_system.h"
#include "platform_qt/text/author_margin.h"
#include "platform_qt/text/author_marks.h"
#include "platform_qt/text/rich_text_box.h"

namespace verlume::qt {
namespace {

class HollowMarksTest : public testing::Test {
 protected:
  HollowMarksTest() {
    window.resize(400, 300);
    pane->setGeometry(0, 0, 400, 300);
    box.SetLocked(true);
    box.SetAuthorWords(Author::User, u"mine");
    box.SetAuthorWords(Author::UserNotSent, u"mine, not sent");
    box.SetAuthorWords(Author::UserNotDelivered, u"mine, perhaps not delivered");
    window.show();
    for (QObject* child : pane->children()) {
      if (auto* found = dynamic_cast<AuthorMargin*>(child)) margin = found;
    }
  }

  static QImage Drawn(Author author) {
    QImage image(kMarkWidth, kHeight, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(Qt::black);
    DrawMark(painter, author, QRectF(0, 0, kMarkWidth, kHeight));
    return image;
  }
  void WriteLine(Author author, std::u16string_view text) {
    const RichTextUpdate update(box);
    box.Select(box.TextLength(), 0);
    if (box.TextLength() > 0) box.SetSelText(u"\r\n");
    box.SetSelAuthor(author);
    box.SetSelText(text);
  }
  QRect LineOf(int position) {
    QTextCursor cursor(pane->document());
    cursor.setPosition(position);
    return pane->cursorRect(cursor);
  }
  QRgb ColorAt(int y) { return margin->grab().toImage().pixel(margin->width() / 2, y); }
  QRgb Ground() const { return MarginGround(pane->palette().color(QPalette::Base)).rgb(); }
  QString ToolTipAt(int y) {
    QHelpEvent event(QEvent::ToolTip, {3, y}, margin->mapToGlobal(QPoint(3, y)));
    QCoreApplication::sendEvent(margin, &event);
    return QToolTip::text();
  }

  static constexpr int kHeight = 16;

  fake::FakeFileSystem files;
  QWidget window;
  QtRichTextBox box{&window, files, Lines::Many};
  QPlainTextEdit* pane = box.widget();
  AuthorMargin* margin = nullptr;
};

TEST_F(HollowMarksTest, AreEmptyInTheMiddle) {
  for (const Author author : {Author::UserNotSent, Author::UserNotDelivered}) {
    const QImage mark = Drawn(author);
    EXPECT_NE(mark, Drawn(Author::User));
    EXPECT_EQ(mark.pixelColor(kMarkWidth / 2, kHeight / 2), QColor(Qt::white));
    EXPECT_EQ(mark.pixelColor(1, kHeight / 2), QColor(Qt::black));
    EXPECT_EQ(mark.pixelColor(kMarkWidth - 2, kHeight / 2), QColor(Qt::black));
    EXPECT_EQ(mark.pixelColor(kMarkWidth / 2, 1), QColor(Qt::black));
    EXPECT_EQ(mark.pixelColor(kMarkWidth / 2, kHeight - 2), QColor(Qt::black));
  }
  EXPECT_EQ(Drawn(Author::User).pixelColor(kMarkWidth / 2, kHeight / 2), QColor(Qt::black));
}

TEST_F(HollowMarksTest, OneOutlineGoesAroundAllLinesOfAParagraph) {
  std::u16string words = u"two";
  for (int i = 0; i < 60; ++i) words += u" and on";
  WriteLine(Author::User, u"one");
  WriteLine(Author::UserNotSent, words);
  ASSERT_GT(pane->document()->lastBlock().lineCount(), 3);
  EXPECT_NE(ColorAt(LineOf(0).center().y()), Ground());
  const int top = LineOf(pane->document()->lastBlock().position()).center().y();
  const int bottom = LineOf(pane->document()->characterCount() - 1).center().y();
  for (int y = top; y <= bottom; ++y) EXPECT_EQ(ColorAt(y), Ground()) << y;
}

TEST_F(HollowMarksTest, AToolTipSaysWhatBecameOfIt) {
  WriteLine(Author::User, u"one");
  WriteLine(Author::UserNotSent, u"two");
  WriteLine(Author::UserNotDelivered, u"three");
  EXPECT_EQ(ToolTipAt(LineOf(0).center().y()), "mine");
  EXPECT_EQ(ToolTipAt(LineOf(4).center().y()), "mine, not sent");
  EXPECT_EQ(ToolTipAt(LineOf(8).center().y()), "mine, perhaps not delivered");
}

TEST_F(HollowMarksTest, AMarkBecomesHollowInPlace) {
  WriteLine(Author::User, u"one");
  WriteLine(Author::User, u"two");
  const int first = LineOf(0).center().y();
  const int second = LineOf(4).center().y();
  EXPECT_NE(ColorAt(second), Ground());
  box.ChangeAuthor(Author::User, Author::UserNotDelivered, 0, 1);
  EXPECT_EQ(ColorAt(second), Ground());
  EXPECT_NE(ColorAt(first), Ground());
}

}  // namespace
}  // namespace verlume::qt
