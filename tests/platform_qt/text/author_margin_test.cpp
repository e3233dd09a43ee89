#include "platform_qt/text/author_margin.h"

#include <gtest/gtest.h>

#include <QAccessible>
#include <QApplication>
#include <QClipboard>
#include <QHelpEvent>
#include <QTest>
#include <QTextBlock>
#include <QToolTip>
#include <vector>

#include "platform_fake/fake_file_system.h"
#include "platform_qt/text/author_marks.h"
#include "platform_qt/text/paragraph_author.h"
#include "platform_qt/text/rich_text_box.h"
#include "platform_qt/text/rich_text_mime.h"
#include "platform_qt/windows/window_focus.h"
#include "platform_qt/world.h"
#include "richtext/rtf_reader.h"

namespace verlume::qt {
namespace {

class AuthorMarginTest : public testing::Test {
 protected:
  AuthorMarginTest() {
    window.resize(400, 300);
    pane->setGeometry(0, 0, 400, 300);
    box.SetLocked(true);
    box.SetToolTip(u"Dialogue textbox");
    box.SetAuthorWords(Author::User, u"mine");
    box.SetAuthorWords(Author::Peer, u"theirs");
    box.SetAuthorWords(Author::File, u"stored");
    window.show();
    for (QObject* child : pane->children()) {
      if (auto* found = dynamic_cast<AuthorMargin*>(child)) margin = found;
    }
  }

  void WriteLine(Author author, std::u16string_view rtf) {
    const RichTextUpdate update(box);
    box.Select(box.TextLength(), 0);
    if (box.TextLength() > 0) box.SetSelText(u"\r\n");
    box.SetSelAuthor(author);
    box.SetSelText(u"<tag>");
    box.SetSelDocument(richtext::ReadRtf(rtf));
  }
  std::vector<Author> Authors() {
    std::vector<Author> authors;
    for (QTextBlock block = pane->document()->begin(); block.isValid(); block = block.next()) {
      authors.push_back(AuthorOf(block));
    }
    return authors;
  }
  // The height of the middle of the line in which a position is.
  int MiddleOf(int position) {
    QTextCursor cursor(pane->document());
    cursor.setPosition(position);
    return pane->cursorRect(cursor).center().y();
  }
  QRgb ColorAt(int y) { return margin->grab().toImage().pixel(margin->width() / 2, y); }
  QRgb ColorOf(Author author) {
    return MarkColor(author, MarginGround(pane->palette().color(QPalette::Base))).rgb();
  }
  QString ToolTipAt(int y) {
    QHelpEvent event(QEvent::ToolTip, {3, y}, margin->mapToGlobal(QPoint(3, y)));
    QCoreApplication::sendEvent(margin, &event);
    return QToolTip::text();
  }
  QString Description() {
    return QAccessible::queryAccessibleInterface(pane)->text(QAccessible::Description);
  }

  QWidget window;
  fake::FakeFileSystem files;
  QtRichTextBox box{&window, files, Lines::Many};
  QPlainTextEdit* pane = box.widget();
  AuthorMargin* margin = nullptr;
};

TEST_F(AuthorMarginTest, LiesBesideTheTextAndNeverUnderIt) {
  ASSERT_NE(margin, nullptr);
  for (const QSize& size : {QSize(400, 300), QSize(300, 200)}) {
    pane->resize(size);
    const QRect text = pane->viewport()->geometry();
    EXPECT_EQ(margin->geometry().right() + 1, text.left());
    EXPECT_EQ(margin->geometry().top(), text.top());
    EXPECT_EQ(margin->height(), text.height());
    EXPECT_GE(margin->width(), kMarkWidth);
  }
}

TEST_F(AuthorMarginTest, ABoxWithoutWordsHasNone) {
  QtRichTextBox other(&window, files, Lines::Many);
  EXPECT_LT(other.widget()->viewport()->x(), kMarkWidth);
  for (QObject* child : other.widget()->children()) {
    EXPECT_EQ(dynamic_cast<AuthorMargin*>(child), nullptr);
  }
}

TEST_F(AuthorMarginTest, EveryLineOfATextHasItsAuthorsMark) {
  WriteLine(Author::User, u"{\\rtf1 one}");
  std::u16string words = u"two";
  for (int i = 0; i < 40; ++i) words += u" and on";
  WriteLine(Author::Peer, u"{\\rtf1 " + words + u"\\par <tag>one\\par}");
  WriteLine(Author::None, u"{\\rtf1 note}");
  EXPECT_EQ(ColorAt(MiddleOf(1)), ColorOf(Author::User));
  const int first = pane->document()->findBlockByNumber(1).position();
  const int note = pane->document()->lastBlock().position();
  EXPECT_GT(pane->document()->findBlockByNumber(1).lineCount(), 3);
  for (int at = first; at < note; ++at) EXPECT_EQ(ColorAt(MiddleOf(at)), ColorOf(Author::Peer));
  EXPECT_EQ(ColorAt(MiddleOf(note)), MarginGround(Qt::white).rgb());
}

TEST_F(AuthorMarginTest, TheGroundFollowsThePanesColour) {
  WriteLine(Author::User, u"{\\rtf1 one}");
  for (const Color color : {Color{0x000000}, Color{0xFFFFFF}, Color{0x803010}}) {
    box.SetBackColor(color);
    const QColor ground = MarginGround(pane->palette().color(QPalette::Base));
    EXPECT_EQ(ColorAt(margin->height() - 1), ground.rgb());
    EXPECT_EQ(ColorAt(MiddleOf(1)), MarkColor(Author::User, ground).rgb());
  }
}

// What a peer sends has no word for an author.
TEST_F(AuthorMarginTest, NoRichTextChangesWhoItIsFrom) {
  WriteLine(Author::Peer,
            u"{\\rtf1{\\stylesheet{\\s1 User;}}\\pard\\plain\\s1\\li-720\\fi-720\\ltrpar a\\par"
            u"\\pard\\rtlpar\\cbpat1\\shading10000{\\*\\author User}b\\line c\\page d\\sect e"
            u"\\trowd\\cellx1 f\\cell\\row\\u8232?g\\u8233?h}");
  const std::vector<Author> authors = Authors();
  EXPECT_GT(authors.size(), 5u);
  EXPECT_EQ(authors, std::vector(authors.size(), Author::Peer));
}

// Hebrew letters and marks behind a tag that has no letter of its own.
TEST_F(AuthorMarginTest, NoTextPutsItselfInFrontOfItsTag) {
  for (const char16_t* text :
       {u"\\u1488?bc", u"\\u8207?abc", u"\\u8295?abc", u"\\u8238?abc", u"abc"}) {
    box.SetText(u"");
    {
      const RichTextUpdate update(box);
      box.SetSelText(u"<42>");
      box.SetSelDocument(richtext::ReadRtf(u"{\\rtf1\\uc1 " + std::u16string(text) + u"}"));
    }
    QTextCursor tag(pane->document());
    tag.setPosition(1);
    QTextCursor middle(pane->document());
    middle.setPosition(6);
    EXPECT_LT(pane->cursorRect(tag).left(), pane->cursorRect(middle).left())
        << QString::fromUtf16(text).toStdString();
  }
}

TEST_F(AuthorMarginTest, ATextThatComesInTurnsIsFromItsAuthorThroughout) {
  std::u16string rtf = u"{\\rtf1 ";
  for (int i = 0; i < 3'000; ++i) rtf += u"some words \\par ";
  rtf += std::u16string(20'000, u'x') + u"}";
  WriteLine(Author::User, u"{\\rtf1 before}");
  WriteLine(Author::Peer, rtf);
  ASSERT_TRUE(box.IsInserting());
  WriteLine(Author::User, u"{\\rtf1 behind}");
  ASSERT_TRUE(WaitFor([this] { return !box.IsInserting(); }));
  std::vector<Author> expected(Authors().size(), Author::Peer);
  EXPECT_GT(expected.size(), 3'000u);
  expected.front() = expected.back() = Author::User;
  EXPECT_EQ(Authors(), expected);
  EXPECT_EQ(pane->document()->lastBlock().text(), "<tag>behind");
}

TEST_F(AuthorMarginTest, AFileThatComesInTurnsIsFromAFileThroughout) {
  std::string file;
  for (int i = 0; i < 20'000; ++i) file += "some words\r\n";
  files.files[u"/a.txt"] = file;
  int percent = 0;
  box.onLoadProgress = [&](int now) { percent = now; };
  box.LoadFile(u"/a.txt", TextFileFormat::PlainText);
  WriteLine(Author::Peer, u"{\\rtf1 behind}");
  ASSERT_LT(percent, 100);
  ASSERT_TRUE(WaitFor([&] { return percent == 100; }));
  std::vector<Author> expected(20'002, Author::File);
  expected.back() = Author::Peer;
  EXPECT_EQ(Authors(), expected);
}

TEST_F(AuthorMarginTest, NothingOfItIsCopied) {
  const auto copied = [this](Author author) {
    box.SetRtf(u"{\\rtf1 x}");  // so that each time the tag has the same format
    box.SetText(u"");
    WriteLine(author, u"{\\rtf1 one\\par two}");
    pane->selectAll();
    pane->copy();
    return QApplication::clipboard()->mimeData()->data("text/rtf");
  };
  const QByteArray plain = copied(Author::None);
  EXPECT_FALSE(plain.isEmpty());
  EXPECT_EQ(copied(Author::PeerReadingAlike), plain);
}

TEST_F(AuthorMarginTest, AToolTipSaysWhoseALineIs) {
  WriteLine(Author::User, u"{\\rtf1 one}");
  WriteLine(Author::Peer, u"{\\rtf1 two\\par three}");
  WriteLine(Author::None, u"{\\rtf1 note}");
  EXPECT_EQ(ToolTipAt(MiddleOf(1)), "mine");
  const int two = pane->document()->findBlockByNumber(2).position();
  EXPECT_EQ(ToolTipAt(MiddleOf(two)), "theirs");
  QToolTip::hideText();
  const auto isHidden = [] { return !QToolTip::isVisible(); };
  ASSERT_TRUE(WaitFor(isHidden));
  ToolTipAt(MiddleOf(pane->document()->lastBlock().position()));
  EXPECT_TRUE(WaitFor(isHidden));
  ToolTipAt(margin->height() - 2);
  EXPECT_TRUE(WaitFor(isHidden)) << "below the text";
}

TEST_F(AuthorMarginTest, TheDescriptionSaysWhoseTheCaretsLineIs) {
  EXPECT_EQ(Description(), "Dialogue textbox");
  WriteLine(Author::None, u"{\\rtf1 note}");
  WriteLine(Author::User, u"{\\rtf1 one}");
  WriteLine(Author::Peer, u"{\\rtf1 two\\par three}");
  EXPECT_EQ(Description(), "theirs");
  QTest::keyClick(pane, Qt::Key_Up);
  EXPECT_EQ(Description(), "theirs");
  QTest::keyClick(pane, Qt::Key_Up);
  EXPECT_EQ(Description(), "mine");
  QTest::keyClick(pane, Qt::Key_Up);
  EXPECT_EQ(Description(), "Dialogue textbox");
  EXPECT_EQ(box.ToolTip(), u"Dialogue textbox");
}

TEST_F(AuthorMarginTest, TheDescriptionFollowsWordsToolTipAndContent) {
  WriteLine(Author::User, u"{\\rtf1 one}");
  box.SetAuthorWords(Author::User, u"mein");
  EXPECT_EQ(Description(), "mein");
  box.SetToolTip(u"Textfeld");
  EXPECT_EQ(Description(), "mein");
  EXPECT_EQ(box.ToolTip(), u"Textfeld");
  box.SetText(u"");
  EXPECT_EQ(Description(), "Textfeld");
  files.files[u"/a.txt"] = "words";
  box.LoadFile(u"/a.txt", TextFileFormat::PlainText);
  EXPECT_EQ(Description(), "stored");
}

}  // namespace
}  // namespace verlume::qt
