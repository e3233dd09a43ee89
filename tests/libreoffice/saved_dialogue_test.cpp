// A dialogue of many looks, saved by the program's own menu entry, goes through LibreOffice.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <iostream>
#include <set>

#include "libreoffice/conversation.h"
#include "libreoffice/flat_document.h"
#include "libreoffice/libreoffice.h"

namespace verlume::libreoffice {
namespace {

constexpr std::u16string_view kPeersHead =
    uR"({\rtf1\ansi\ansicpg1253\deff0{\fonttbl{\f0\fnil\fcharset161 Verdana;})"
    uR"({\f1\fnil\fcharset0 Courier New;}{\f2\fnil\fcharset161 Times New Roman;}})"
    uR"({\colortbl ;\red0\green128\blue0;\red255\green255\blue255;\red18\green52\blue86;})"
    uR"(\viewkind4\uc1\pard)";

std::u16string FromPeer(std::u16string_view body) {
  return std::u16string(kPeersHead).append(body).append(u"\\par\r\n}");
}

class SavedDialogue : public testing::Test {
 protected:
  SavedDialogue() {
    TypeLines();
    TypeOddCharacters();
    ReceiveLines();
    shown_ = conversation_.Shown();
  }

  void TypeLines() {
    conversation_.Choose({u"Arial", false, false, false, false, 0, 8});
    conversation_.Type(QStringLiteral("Good morning, "));
    conversation_.Choose({u"Times New Roman", true, false, false, false, 0x0000FF, 9.5});
    conversation_.Type(QStringLiteral("Καλημέρα"));
    conversation_.Choose({u"Times New Roman", false, true, false, false, 0xFF0000, 9.5});
    conversation_.Type(QStringLiteral(" ΐΰϊϋ Ώ«»"));
    conversation_.Choose({u"DejaVu Sans Mono", false, false, true, false, 0x563412, 10});
    conversation_.Type(QStringLiteral("under"));
    conversation_.Choose({u"DejaVu Sans Mono", false, false, false, true, 0x563412, 10.5});
    conversation_.Type(QStringLiteral("struck"));
    conversation_.Choose({u"Tahoma", true, true, true, true, 0x00FFFF, 11});
    conversation_.Type(QStringLiteral("all of them"));
    conversation_.PressEnter();
    conversation_.Choose({u"Liberation Serif", true, false, true, false, 0xFFFFFF, 9});
    conversation_.Type(QStringLiteral("/ME waves"));
    conversation_.PressEnter();
  }

  void TypeOddCharacters() {
    conversation_.Choose({u"Arial", false, true, false, false, 0x808080, 10});
    conversation_.Type(QStringLiteral("€ 日本 😀 ἀρχή Ж é ß \u2019quoted\u201D \u2013 \u2026"));
    conversation_.PressEnter();
    conversation_.Type(QStringLiteral("{braces} \\backslashes\\par \\'e1 }{ ; no\u00A0break"));
    conversation_.PressEnter();
    conversation_.Type(QStringLiteral("  blanks:  two,   three, last  "));
    conversation_.PressEnter();
    conversation_.Choose({u"Georgia", false, false, false, false, 0x008000, 10});
    conversation_.Type(QStringLiteral(
        "no\u2011break soft\u00ADhyphen \u2003wide\u200Bnarrow\u2009<a> &amp; \"q\""));
    conversation_.PressEnter();
  }

  void ReceiveLines() {
    conversation_.Receive(
        FromPeer(uR"(\cf1\f0\fs17 tab\tab tab\tab\tab\cf3\b bold\par)"
                 uR"(\par behind an empty line\b0\i\f1\fs22  caf\'e9)"));
    conversation_.Receive(
        FromPeer(uR"(\f2\fs19\ul\'c3\'e5\'e9\'dc\ulnone\strike\cf2  \u8364?)"
                 uR"( \u26085?\u26412? \u-10179?\u-8704?\'a0\~ \{\}\\)"));
    conversation_.ReceiveAction(FromPeer(uR"(\cf3\f0\fs16 Bob\line nods\i\b  twice)"));
    std::u16string longLine(20'000, u'x');
    for (std::size_t i = 0; i < longLine.size(); i += 5) longLine[i] = u' ';
    conversation_.Receive(FromPeer(u"\\f2\\fs18" + longLine + std::u16string(5'000, u'y')));
    conversation_.Receive(u"no rich text at all");
  }

  static void ExpectSame(const StyledText& text, const StyledText& expected) {
    ASSERT_EQ(text.size(), expected.size()) << "lines";
    for (std::size_t line = 0; line < text.size(); ++line) {
      EXPECT_EQ(text[line], expected[line]) << "line " << line;
    }
    std::cout << "compared: " << text.size() << " lines, " << PieceCount(text) << " runs, "
              << PlainText(text).size() << " characters\n";
  }

  Conversation conversation_;
  LibreOffice libreOffice_;
  StyledText shown_;
};

TEST_F(SavedDialogue, HoldsEveryLook) {
  std::set<double> sizes;
  std::set<QString> fonts;
  std::set<QString> colors;
  for (const Line& line : shown_) {
    for (const Piece& piece : line) {
      sizes.insert(piece.look.size);
      fonts.insert(piece.look.font);
      colors.insert(piece.look.color);
    }
  }
  EXPECT_THAT(sizes, testing::ElementsAre(7, 8, 8.5, 9, 9.5, 10, 10.5, 11, 12));
  EXPECT_EQ(fonts.size(), 8u);
  EXPECT_EQ(colors.size(), 8u);
  EXPECT_THAT(shown_, testing::Contains(testing::IsEmpty())) << "a line without text";
}

TEST_F(SavedDialogue, OpensThereWithEveryTextAndLook) {
  const QString opened = libreOffice_.Convert(conversation_.Save(), QStringLiteral("fodt"));
  ExpectSame(ReadFlatDocument(opened), shown_);
}

TEST_F(SavedDialogue, ComesBackFromThereWithEveryTextAndLook) {
  const QString written = libreOffice_.Convert(conversation_.Save(), QStringLiteral("rtf"));
  conversation_.Load(written);
  ExpectSame(conversation_.Shown(), shown_);
}

}  // namespace
}  // namespace verlume::libreoffice
