#include "platform_qt/text/rich_text_box.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QElapsedTimer>
#include <QInputMethodEvent>
#include <QMimeData>
#include <QScrollBar>
#include <QTest>
#include <QTextBlock>
#include <utility>

#include "platform_fake/fake_file_system.h"
#include "platform_qt/windows/window_focus.h"
#include "richtext/rtf_reader.h"

namespace verlume::qt {
namespace {

class QtRichTextBoxTest : public testing::Test {
 protected:
  QtRichTextBoxTest() {
    window.resize(400, 300);
    single.widget()->setGeometry(0, 0, 400, 60);
    many.widget()->setGeometry(0, 60, 400, 200);
    window.show();
  }

  void Press(QtRichTextBox& box, int key, Qt::KeyboardModifiers held = Qt::NoModifier,
             const QString& text = {}) {
    QKeyEvent press(QEvent::KeyPress, key, held, text);
    QCoreApplication::sendEvent(box.widget(), &press);
  }
  void Commit(QtRichTextBox& box, const QString& text) {
    QInputMethodEvent event;
    event.setCommitString(text);
    QCoreApplication::sendEvent(box.widget(), &event);
  }
  // What copying would put on the clipboard.
  void Paste(QtRichTextBox& box, QMimeData* content) {
    QApplication::clipboard()->setMimeData(content);
    box.widget()->paste();
  }
  static QMimeData* PlainText(const QString& text) {
    auto* content = new QMimeData;
    content->setText(text);
    return content;
  }

  static bool ShowsCaret(QtRichTextBox& box) {
    return box.widget()->viewport()->rect().contains(box.widget()->cursorRect().center());
  }

  QWidget window;
  fake::FakeFileSystem files;
  QtRichTextBox single{&window, files, Lines::Single};
  QtRichTextBox many{&window, files, Lines::Many};
};

TEST_F(QtRichTextBoxTest, KeysPassOverTheSeamsOfALongSingleLine) {
  std::u16string text(5'000, u'x');
  text[4'095] = u'<';
  text[4'096] = u'>';
  single.SetText(text);
  ASSERT_EQ(single.widget()->document()->blockCount(), 2);
  single.Select(4'095, 0);
  Press(single, Qt::Key_Right);
  EXPECT_EQ(single.SelStart(), 4'096u);
  Press(single, Qt::Key_Right);
  EXPECT_EQ(single.SelStart(), 4'097u);
  Press(single, Qt::Key_Left);
  EXPECT_EQ(single.SelStart(), 4'096u);
  Press(single, Qt::Key_Left);
  EXPECT_EQ(single.SelStart(), 4'095u);
  single.Select(4'096, 0);
  Press(single, Qt::Key_Delete);
  EXPECT_EQ(single.TextLength(), 4'999u);
  EXPECT_EQ(single.Text()[4'096], u'x');
  single.SetText(text);
  single.Select(4'097, 0);
  Press(single, Qt::Key_Backspace);
  EXPECT_EQ(single.TextLength(), 4'999u);
  Press(single, Qt::Key_Backspace);
  EXPECT_EQ(single.TextLength(), 4'998u);
  EXPECT_EQ(single.Text()[4'095], u'x');
}

TEST_F(QtRichTextBoxTest, KeysWithAKeyCodeReportIt) {
  std::vector<std::pair<int, int>> seen;
  single.onKeyDown = [&](int& code, int shift) {
    seen.emplace_back(code, shift);
    code = 0;
  };
  Press(single, Qt::Key_Tab, Qt::NoModifier, "\t");
  Press(single, Qt::Key_Escape, Qt::NoModifier, "\x1b");
  Press(single, Qt::Key_PageUp, Qt::ShiftModifier);
  Press(single, Qt::Key_PageDown, Qt::ControlModifier | Qt::AltModifier);
  Press(single, Qt::Key_Home);
  EXPECT_EQ(seen, (std::vector<std::pair<int, int>>{{9, 0}, {27, 0}, {33, 1}, {34, 6}, {-1, 0}}));
  EXPECT_EQ(single.Text(), u"");
}

TEST_F(QtRichTextBoxTest, ControlKeysReportTheirCharacterCodes) {
  std::vector<int> seen;
  single.onKeyPress = [&](int& code) { seen.push_back(std::exchange(code, 0)); };
  Press(single, Qt::Key_Return, Qt::NoModifier, "\r");
  Press(single, Qt::Key_Return, Qt::ShiftModifier, "\r");
  Press(single, Qt::Key_Enter, Qt::KeypadModifier, "\r");
  Press(single, Qt::Key_Return, Qt::ControlModifier, "\r");
  Press(single, Qt::Key_A, Qt::ControlModifier, "\x01");
  Press(single, Qt::Key_Z, Qt::ControlModifier, "\x1a");
  Press(single, 0x0391, Qt::NoModifier, QString(QChar(0x03B1)));
  EXPECT_EQ(seen, (std::vector<int>{13, 13, 13, 10, 1, 26, 0x03B1}));
  EXPECT_EQ(single.Text(), u"");
}

TEST_F(QtRichTextBoxTest, ShiftEnterInsertsTheSameLineBreakAsEnter) {
  Press(many, Qt::Key_Return, Qt::NoModifier, "\r");
  Press(many, Qt::Key_Return, Qt::ShiftModifier, "\r");
  EXPECT_EQ(many.Text(), u"\n\n");
  EXPECT_EQ(many.widget()->document()->blockCount(), 3);
}

TEST_F(QtRichTextBoxTest, ShortcutsWorkUnlessSwallowed) {
  single.SetText(u"abc");
  Press(single, Qt::Key_A, Qt::ControlModifier, "\x01");
  EXPECT_EQ(single.SelLength(), 3u);
  Press(single, Qt::Key_X, Qt::ControlModifier, "\x18");
  EXPECT_EQ(single.Text(), u"");
  Press(single, Qt::Key_V, Qt::ControlModifier, "\x16");
  EXPECT_EQ(single.Text(), u"abc");
  single.onKeyPress = [](int& code) { code = 0; };
  Press(single, Qt::Key_A, Qt::ControlModifier, "\x01");
  EXPECT_EQ(single.SelLength(), 0u);
}

TEST_F(QtRichTextBoxTest, ShiftTabMovesTheFocusBack) {
  window.activateWindow();
  many.SetFocus();
  QWidget* const before = window.focusWidget();
  Press(many, Qt::Key_Backtab, Qt::ShiftModifier);
  EXPECT_NE(window.focusWidget(), before);
  EXPECT_EQ(many.Text(), u"");
}

TEST_F(QtRichTextBoxTest, ALockedBoxScrollsByPage) {
  for (int line = 0; line < 100; ++line) many.SetSelText(u"line\n");
  many.SetLocked(true);
  many.Select(many.TextLength(), 0);
  const int end = many.widget()->verticalScrollBar()->value();
  EXPECT_TRUE(ShowsCaret(many));
  Press(many, Qt::Key_PageUp);
  Press(many, Qt::Key_PageUp);
  EXPECT_LT(many.widget()->verticalScrollBar()->value(), end);
}

TEST_F(QtRichTextBoxTest, InputMethodsCommitInTheInsertionFormat) {
  SelectionFormat bold;
  bold.bold = true;
  single.SetText(u"a");
  single.Select(1, 0);
  single.SetSelFormat(bold);
  std::vector<int> seen;
  single.onKeyPress = [&](int& code) { seen.push_back(code); };
  Commit(single, QString(QChar(0x03AC)));
  EXPECT_EQ(single.Text(), u"a\u03AC");
  EXPECT_EQ(seen, (std::vector<int>{0x03AC}));
  single.Select(1, 1);
  EXPECT_EQ(single.SelFormat().bold, true);
}

TEST_F(QtRichTextBoxTest, InputMethodsInsertNoLineBreakIntoASingleLine) {
  Commit(single, "a\nb");
  EXPECT_EQ(single.Text(), u"a b");
}

TEST_F(QtRichTextBoxTest, CopyOffersRtfAndPlainTextOnly) {
  many.SetRtf(u"{\\rtf1 a\\b b\\par c}");
  many.Select(1, 3);
  many.widget()->copy();
  const QMimeData* content = QApplication::clipboard()->mimeData();
  EXPECT_EQ(content->text(), "b\nc");
  EXPECT_FALSE(content->hasHtml());
  for (const char* type : {"text/rtf", "application/rtf"}) {
    ASSERT_TRUE(content->hasFormat(type));
    EXPECT_TRUE(content->data(type).startsWith("{\\rtf1"));
    EXPECT_TRUE(content->data(type).contains("\\b"));
    EXPECT_TRUE(content->data(type).contains("\\dntblnsbdb")) << "word processors read it";
  }
}

TEST_F(QtRichTextBoxTest, PastePrefersRtf) {
  QMimeData* content = PlainText("plain");
  content->setData("application/rtf", "{\\rtf1 rich\\b bold}");
  content->setHtml("<i>html</i>");
  Paste(single, content);
  EXPECT_EQ(single.Text(), u"richbold");
  single.Select(4, 4);
  EXPECT_EQ(single.SelFormat().bold, true);
}

TEST_F(QtRichTextBoxTest, PastedPlainTextTakesTheInsertionFormat) {
  SelectionFormat red;
  red.color = 0x0000FF;
  single.SetSelFormat(red);
  Paste(single, PlainText("one\r\ntwo<b>"));
  EXPECT_EQ(single.Text(), u"one two<b>");
  single.Select(0, 10);
  EXPECT_EQ(single.SelFormat().color, 0x0000FF);
  Paste(many, PlainText("one\r\ntwo"));
  EXPECT_EQ(many.Text(), u"one\ntwo");
}

TEST_F(QtRichTextBoxTest, HtmlAloneIsNotPasted) {
  auto* content = new QMimeData;
  content->setData("text/html", "<b>no</b>");
  Paste(single, content);
  EXPECT_EQ(single.Text(), u"");
}

TEST_F(QtRichTextBoxTest, PastingIntoASingleLineIsBounded) {
  Paste(single, PlainText(QString(1'000'000, u'x')));
  EXPECT_EQ(single.TextLength(), 64u * 1024);
}

TEST_F(QtRichTextBoxTest, PastingIntoALockedBoxDoesNothing) {
  many.SetLocked(true);
  Paste(many, PlainText("no"));
  EXPECT_EQ(many.Text(), u"");
}

TEST_F(QtRichTextBoxTest, LongWordsWrapAtAnyWidth) {
  many.SetText(std::u16string(500, u'W'));
  many.widget()->resize(80, 200);
  QApplication::processEvents();
  EXPECT_FALSE(many.widget()->horizontalScrollBar()->isVisible());
  EXPECT_EQ(many.widget()->horizontalScrollBar()->maximum(), 0);
  EXPECT_GT(many.widget()->document()->firstBlock().lineCount(), 10);
}

TEST_F(QtRichTextBoxTest, EveryWayTheUserChangesTheTextRaisesOnChange) {
  std::vector<std::u16string> told;
  single.SetText(u"abc");
  single.onChange = [&] { told.push_back(single.Text()); };
  Press(single, Qt::Key_Delete);
  Press(single, Qt::Key_Z, Qt::ControlModifier);
  Commit(single, "x");
  Paste(single, PlainText("y"));
  single.widget()->selectAll();
  single.widget()->cut();
  EXPECT_EQ(told, (std::vector<std::u16string>{u"bc", u"abc", u"axbc", u"axybc", u""}));
}

TEST_F(QtRichTextBoxTest, KeysThatChangeNothingDoNotRaiseOnChange) {
  int told = 0;
  single.SetText(u"abc");
  single.onChange = [&] { ++told; };
  Press(single, Qt::Key_Right);
  Press(single, Qt::Key_A, Qt::ControlModifier);
  Press(single, Qt::Key_Shift, Qt::ShiftModifier);
  EXPECT_EQ(told, 0);
}

TEST_F(QtRichTextBoxTest, LosingTheFocusRaisesOnLostFocus) {
  int lost = 0;
  window.activateWindow();
  ASSERT_TRUE(WaitForFocus(window));
  single.onLostFocus = [&] { ++lost; };
  single.SetFocus();
  EXPECT_EQ(lost, 0);
  many.SetFocus();
  EXPECT_EQ(lost, 1);
}

TEST_F(QtRichTextBoxTest, OnlyAnUnlockedSingleLineHasUndo) {
  single.SetText(u"set");
  EXPECT_FALSE(single.widget()->document()->isUndoAvailable());
  Press(single, Qt::Key_A, Qt::NoModifier, "a");
  EXPECT_EQ(single.Text(), u"aset");
  Press(single, Qt::Key_Z, Qt::ControlModifier, "\x1a");
  EXPECT_EQ(single.Text(), u"set");
  EXPECT_FALSE(many.widget()->isUndoRedoEnabled());
  single.SetLocked(true);
  EXPECT_FALSE(single.widget()->isUndoRedoEnabled());
}

TEST_F(QtRichTextBoxTest, ABoxThatTheUserEmptiesKeepsItsFormat) {
  single.SetRtf(u"{\\rtf1\\b a}");
  single.Select(1, 0);
  Press(single, Qt::Key_Backspace, Qt::NoModifier, "\b");
  EXPECT_EQ(single.Text(), u"");
  EXPECT_EQ(single.SelFormat().bold, true);
}

TEST_F(QtRichTextBoxTest, AClickInPlaceKeepsTheInsertionFormat) {
  SelectionFormat bold;
  bold.bold = true;
  for (const std::u16string_view text : {u"", u"a"}) {
    single.SetText(text);
    single.Select(text.size(), 0);
    single.SetSelFormat(bold);
    QTest::mouseClick(single.widget()->viewport(), Qt::LeftButton, {}, QPoint(300, 10));
    EXPECT_EQ(single.SelFormat().bold, true);
  }
}

TEST_F(QtRichTextBoxTest, ACaretKeyThatMovesNothingKeepsTheInsertionFormat) {
  SelectionFormat bold;
  bold.bold = true;
  for (const Qt::Key key : {Qt::Key_End, Qt::Key_Right, Qt::Key_Down}) {
    single.SetText(u"a");
    single.Select(1, 0);
    single.SetSelFormat(bold);
    Press(single, key);
    EXPECT_EQ(single.SelFormat().bold, true) << key;
    single.SetSelText(u"b");
    single.Select(1, 1);
    EXPECT_EQ(single.SelFormat().bold, true) << key;
  }
}

TEST_F(QtRichTextBoxTest, MovingTheCaretRaisesOnSelChangeOnce) {
  single.SetRtf(u"{\\rtf1 a\\b b}");
  std::vector<std::optional<bool>> seen;
  single.onSelChange = [&] { seen.push_back(single.SelFormat().bold); };
  Press(single, Qt::Key_Right);
  Press(single, Qt::Key_Right);
  EXPECT_EQ(seen, (std::vector<std::optional<bool>>{false, true}));
}

TEST_F(QtRichTextBoxTest, ABoxMayBeDeletedByItsOwnKeyHandler) {
  auto doomed = std::make_unique<QtRichTextBox>(&window, files, Lines::Single);
  QWidget* widget = doomed->widget();
  doomed->onKeyPress = [&](int&) { delete std::exchange(widget, nullptr); };
  QKeyEvent press(QEvent::KeyPress, Qt::Key_A, Qt::NoModifier, "a");
  QCoreApplication::sendEvent(widget, &press);
  EXPECT_EQ(widget, nullptr);
}

TEST_F(QtRichTextBoxTest, MouseButtonsAreReportedOnce) {
  std::vector<MouseButton> seen;
  many.onMouseDown = [&](MouseButton button) { seen.push_back(button); };
  many.onMouseUp = [&](MouseButton button) { seen.push_back(button); };
  QTest::mouseClick(many.widget()->viewport(), Qt::LeftButton);
  EXPECT_EQ(seen, (std::vector<MouseButton>{MouseButton::Left, MouseButton::Left}));
}

TEST_F(QtRichTextBoxTest, WithoutAColourOfItsOwnItHasTheThemes) {
  const QPalette before = QApplication::palette();
  QPalette dark = before;
  dark.setColor(QPalette::Base, Qt::black);
  dark.setColor(QPalette::Text, Qt::white);
  QApplication::setPalette(dark);
  // Windows that exist already are told of the new theme later.
  QWidget darkWindow;
  QtRichTextBox box(&darkWindow, files, Lines::Many);
  EXPECT_EQ(box.BackColor(), 0);
  EXPECT_EQ(box.widget()->palette().color(QPalette::Text), QColor(Qt::white));
  box.SetBackColor(0xFFFFFF);
  EXPECT_EQ(box.BackColor(), 0xFFFFFF);
  EXPECT_EQ(box.widget()->palette().color(QPalette::Text), QColor(Qt::black));
  QApplication::setPalette(before);
}

TEST_F(QtRichTextBoxTest, AWrittenLineIsScrolledIntoViewFromAnywhere) {
  many.SetLocked(true);
  for (int line = 0; line < 200; ++line) many.SetSelText(u"line\n");
  many.Select(0, 4);
  EXPECT_EQ(many.widget()->verticalScrollBar()->value(), 0);
  many.Select(many.TextLength(), 0);
  many.SetSelDocument(richtext::ReadRtf(u"{\\rtf1 last}"));
  many.Select(many.TextLength(), 0);
  EXPECT_TRUE(ShowsCaret(many));
  many.widget()->resize(200, 100);
  EXPECT_TRUE(ShowsCaret(many));
}

TEST_F(QtRichTextBoxTest, AHundredThousandLinesAreResizedQuickly) {
  std::u16string text;
  for (int line = 0; line < 100'000; ++line) text += u"a line of a long conversation\n";
  many.SetText(text);
  QElapsedTimer clock;
  clock.start();
  many.widget()->resize(200, 200);
  QApplication::processEvents();
  // Laying out every line would take many seconds in this build.
  EXPECT_LT(clock.elapsed(), 3'000);
  EXPECT_EQ(many.widget()->document()->blockCount(), 100'001);
}

TEST_F(QtRichTextBoxTest, AnUpdateIsOneChangeOfTheDocument) {
  int changes = 0;
  QObject::connect(many.widget()->document(), &QTextDocument::contentsChange, [&] { ++changes; });
  {
    const RichTextUpdate update(many);
    many.SetSelText(u"[stamp]");
    SelectionFormat small;
    small.fontSize = 8;
    many.SetSelFormat(small);
    many.SetSelText(u"<tag>");
    many.SetSelDocument(richtext::ReadRtf(u"{\\rtf1\\b bold\\b0  and not}"));
    EXPECT_EQ(changes, 0);
  }
  EXPECT_EQ(changes, 1);
  EXPECT_EQ(many.Text(), u"[stamp]<tag>bold and not");
}

TEST_F(QtRichTextBoxTest, AnUpdateScrollsItsEndIntoView) {
  {
    const RichTextUpdate update(many);
    for (int line = 0; line < 100; ++line) many.SetSelText(u"line\n");
    many.Select(many.TextLength(), 0);
  }
  EXPECT_TRUE(ShowsCaret(many));
  EXPECT_GT(many.widget()->verticalScrollBar()->value(), 0);
}

TEST_F(QtRichTextBoxTest, AnUpdateThatNeedsSeamsKeepsItsPositions) {
  const std::u16string word(5'000, u'w');
  {
    const RichTextUpdate update(many);
    many.SetSelText(word);
    many.Select(many.TextLength(), 0);
    many.SetSelText(word);
    many.Select(many.TextLength(), 0);
    many.SetSelText(u"end");
  }
  EXPECT_TRUE(many.Text() == word + word + u"end");
  EXPECT_EQ(many.TextLength(), many.Text().size());
  EXPECT_EQ(many.SelStart(), many.TextLength());
}

}  // namespace
}  // namespace verlume::qt
