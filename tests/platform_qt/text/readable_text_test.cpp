#include "platform_qt/text/readable_text.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QInputMethodEvent>
#include <QMimeData>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>
#include <QTextBlock>
#include <algorithm>
#include <functional>
#include <string_view>

#include "platform_fake/fake_file_system.h"
#include "platform_qt/convert/text.h"
#include "platform_qt/text/colors.h"
#include "platform_qt/text/readable_shade.h"
#include "platform_qt/text/rich_text_box.h"
#include "platform_qt/windows/window_focus.h"
#include "richtext/rtf_reader.h"

namespace verlume::qt {
namespace {

class ReadableTextTest : public testing::Test {
 protected:
  ReadableTextTest() {
    window.resize(400, 200);
    box.widget()->setGeometry(0, 0, 400, 200);
    box.widget()->setCursorWidth(0);
    EXPECT_TRUE(ShowAndWait(window));
  }

  void Write(Color color, std::u16string_view text) {
    box.Select(box.TextLength(), 0);
    SelectionFormat format;
    format.color = color;
    format.fontSize = 11;
    format.bold = true;
    box.SetSelFormat(format);
    box.SetSelText(text);
  }
  // The colour in the line that stands out most from the background.
  Color Ink(int line = 0) { return InkBetween(0, box.widget()->width(), line); }
  Color InkBetween(int left, int right, int line = 0) {
    const QImage picture = box.widget()->viewport()->grab().toImage();
    const QTextBlock block = box.widget()->document()->findBlockByNumber(line);
    const QRect place = box.widget()->cursorRect(QTextCursor(block));
    const QRect area = QRect(QPoint(left, place.top()), QPoint(right, place.bottom()));
    Color most = box.BackColor();
    ForEachPoint(area.intersected(picture.rect()), [&](QPoint point) {
      const Color color = FromQt(picture.pixelColor(point));
      if (Contrast(color, box.BackColor()) > Contrast(most, box.BackColor())) most = color;
    });
    return most;
  }
  static void ForEachPoint(const QRect& area, const std::function<void(QPoint)>& act) {
    for (int y = area.top(); y <= area.bottom(); ++y) {
      for (int x = area.left(); x <= area.right(); ++x) act({x, y});
    }
  }
  // The first block, after it was painted.
  QTextBlock Mended() {
    Ink();
    return box.widget()->document()->firstBlock();
  }
  double Legibility(int line = 0) { return Contrast(Ink(line), box.BackColor()); }

  QWidget window;
  fake::FakeFileSystem files;
  QtRichTextBox box{&window, files, Lines::Many};
};

constexpr double kLegible = 4;  // 4.5 where a letter covers a whole pixel

TEST_F(ReadableTextTest, TextInTheColorOfThePaneCanBeRead) {
  for (const Color color : {kWhite, Color(0xFEFEFE), kYellow}) {
    box.SetText(u"");
    Write(color, u"MMM");
    EXPECT_GE(Legibility(), kLegible) << color;
  }
  EXPECT_GT(ToQt(Ink()).saturation(), 200);  // still yellow
}

TEST_F(ReadableTextTest, ReadableTextIsPaintedInItsOwnColor) {
  Write(0xFF0000, u"MMM");
  EXPECT_NEAR(ToQt(Ink()).blue(), 255, 25);
  EXPECT_NEAR(ToQt(Ink()).red(), 0, 25);
}

TEST_F(ReadableTextTest, ADarkBackgroundLeavesNothingUnreadable) {
  box.SetSelText(u"automatic\n");
  Write(kBlack, u"black\n");
  Write(0x800000, u"blue\n");
  for (const Color background : {kBlack, kNight, Color(0x804000), kWhite, Color(0x808080)}) {
    box.SetBackColor(background);
    for (const int line : {0, 1, 2}) EXPECT_GE(Legibility(line), 3) << background << ' ' << line;
  }
}

TEST_F(ReadableTextTest, TextKeepsItsColorWhereverItGoes) {
  Write(kWhite, u"white");
  EXPECT_GE(Legibility(), kLegible);
  box.Select(0, 5);
  EXPECT_EQ(box.SelFormat().color, kWhite);
  box.widget()->copy();
  EXPECT_NE(QApplication::clipboard()->mimeData()->data("text/rtf").indexOf("\\red255"), -1);
  const richtext::Document saved = richtext::ReadRtf(box.Rtf());
  EXPECT_EQ(saved.runs.at(0).format.color, kWhite);
  box.SetRtf(u"{\\rtf1 automatic}");
  box.SetBackColor(kNight);
  EXPECT_GE(Legibility(), kLegible);
  box.Select(8, 0);
  EXPECT_EQ(box.SelFormat().color, 0);
  EXPECT_EQ(richtext::ReadRtf(box.Rtf()).runs.at(0).format.color, kAutomaticColor);
}

TEST_F(ReadableTextTest, TypingAndErasingKeepTheTextReadable) {
  Write(kWhite, u"middle");
  Ink();
  box.Select(0, 0);
  QTest::keyClicks(box.widget(), "start");
  EXPECT_GE(Legibility(), kLegible);
  Write(0xFF0000, u" blue");
  Ink();
  box.Select(0, 11);
  QTest::keyClick(box.widget(), Qt::Key_Delete);
  EXPECT_EQ(box.Text(), u" blue");
  EXPECT_NEAR(ToQt(Ink()).blue(), 255, 25);
}

TEST_F(ReadableTextTest, SelectedTextCanBeReadOnEveryBackground) {
  Write(kWhite, u"MMM");
  box.Select(0, 3);
  for (const Color background : {kWhite, kBlack, Color(0xB06630), kYellow}) {
    box.SetBackColor(background);
    const QPalette palette = box.widget()->palette();
    const Color highlight = FromQt(palette.color(QPalette::Highlight));
    EXPECT_GE(Contrast(highlight, background), 3);
    EXPECT_GE(Contrast(FromQt(palette.color(QPalette::HighlightedText)), highlight), 3);
    EXPECT_GE(Contrast(FromQt(palette.color(QPalette::PlaceholderText)), background), 2.5);
  }
}

TEST_F(ReadableTextTest, TextIsReadableWhileSomeIsComposedInIt) {
  for (const std::u16string_view before : {u"", u"MMMM"}) {
    for (std::size_t caret = 0; caret <= before.size(); caret += 2) {
      box.SetText(u"");
      Write(kWhite, before);
      box.Select(caret, 0);
      QInputMethodEvent composing(QStringLiteral("████"), {});
      QCoreApplication::sendEvent(box.widget(), &composing);
      const QTextLine line = Mended().layout()->lineAt(0);
      for (int place = 0; place < line.textLength(); ++place) {
        const int left = static_cast<int>(line.cursorToX(place));
        const int right = static_cast<int>(line.cursorToX(place + 1));
        EXPECT_GE(Contrast(InkBetween(left, right), kWhite), kLegible) << caret << ' ' << place;
      }
      EXPECT_EQ(box.Text(), before);
      QInputMethodEvent end;
      QCoreApplication::sendEvent(box.widget(), &end);
    }
  }
}

TEST_F(ReadableTextTest, TheLookOfComposedTextIsKept) {
  Write(kBlack, u"MMM");
  QTextCharFormat marked;
  marked.setForeground(Qt::white);
  marked.setBackground(Qt::blue);
  QInputMethodEvent composing(
      QStringLiteral("████"),
      {QInputMethodEvent::Attribute(QInputMethodEvent::TextFormat, 0, 4, marked)});
  QCoreApplication::sendEvent(box.widget(), &composing);
  box.SetBackColor(kNight);
  const auto formats = Mended().layout()->formats();
  EXPECT_TRUE(std::any_of(formats.begin(), formats.end(), [](const auto& range) {
    return range.format.background().color() == QColor(Qt::blue) &&
           range.format.foreground().color() == QColor(Qt::white) && range.length == 4;
  }));
  EXPECT_EQ(Ink(), kWhite);
}

TEST_F(ReadableTextTest, LinesAreMendedWhenTheyComeIntoViewAndNoneMoves) {
  for (int line = 0; line < 200; ++line) Write(kWhite, u"a line of some words\n");
  QScrollBar* scroll = box.widget()->verticalScrollBar();
  scroll->setValue(0);
  EXPECT_GE(Legibility(0), kLegible);
  const int most = scroll->maximum();
  scroll->setValue(most / 2);
  EXPECT_GE(Legibility(most / 2), kLegible);
  box.SetBackColor(kNight);
  EXPECT_EQ(FromQt(ToQt(Ink(most / 2))), kWhite);
  EXPECT_EQ(scroll->maximum(), most);
  EXPECT_EQ(scroll->value(), most / 2);
  const QTextBlock far = box.widget()->document()->findBlockByNumber(50);
  EXPECT_TRUE(far.layout()->formats().isEmpty());
}

TEST_F(ReadableTextTest, WhatIsReadableAlreadyIsNotLaidOutAgain) {
  Write(kWhite, u"white\nwhite\n");
  Write(0xFF0000, u"blue\n");
  const QTextBlock first = Mended();
  MakeReadable(first, 200, kWhite);
  EXPECT_EQ(first.layout()->lineCount(), 1);
  MakeReadable(first, 200, kYellow);
  EXPECT_EQ(first.layout()->lineCount(), 0);
}

TEST_F(ReadableTextTest, AMendedTextRaisesNoEvents) {
  Write(kWhite, u"white");
  int events = 0;
  box.onChange = box.onSelChange = [&events] { ++events; };
  QSignalSpy changes(box.widget()->document(), &QTextDocument::contentsChanged);
  EXPECT_GE(Legibility(), kLegible);
  EXPECT_EQ(events, 0);
  EXPECT_TRUE(changes.isEmpty());
}

TEST_F(ReadableTextTest, ADarkThemeLeavesThePaneReadable) {
  box.SetBackColor(kWhite);
  Write(kWhite, u"white");
  const QPalette before = QApplication::palette();
  QPalette dark(QColor(0x30, 0x30, 0x30));
  QApplication::setPalette(dark);
  QCoreApplication::processEvents();
  EXPECT_EQ(box.BackColor(), kWhite) << "a colour that was set stays";
  EXPECT_GE(Legibility(), kLegible);
  QApplication::setPalette(before);
}

}  // namespace
}  // namespace verlume::qt
