// A letter with all that a word processor has and a dialogue has not, written by LibreOffice as
// RTF, is loaded into the dialogue pane: its words are there, and nothing that is no text.
#include <gtest/gtest.h>

#include "libreoffice/conversation.h"
#include "libreoffice/libreoffice.h"

namespace verlume::libreoffice {
namespace {

class Letter : public testing::Test {
 protected:
  Letter() {
    LibreOffice libreOffice;
    Conversation conversation;
    conversation.Load(libreOffice.Convert(QStringLiteral(VERLUME_LETTER), QStringLiteral("rtf")));
    shown_ = conversation.Shown();
  }

  // The look of the piece that holds these words.
  Look LookOf(const QString& words) const {
    for (const Line& line : shown_) {
      for (const Piece& piece : line) {
        if (piece.text.contains(words)) return piece.look;
      }
    }
    ADD_FAILURE() << "not shown in one look: " << words.toStdString();
    return {};
  }

  StyledText shown_;
};

TEST_F(Letter, ShowsItsWordsAndNothingElse) {
  const QStringList expected = {
      QStringLiteral("A heading"),
      QStringLiteral("English, ελληνικά: Ώρα καλή, struck and two  blanks."),
      QStringLiteral("Before the note, behind it."), QStringLiteral("See the linked words here."),
      QStringLiteral("First item"), QStringLiteral("Second item"),
      QStringLiteral("top left\ttop right\t"), QStringLiteral("κάτω\tbottom\t"),
      QStringLiteral("A picture: ."),
      // The pane has no way to hide them, and loses no text.
      QStringLiteral("The hidden words on this page: 1."),
      QStringLiteral("A new line,\ttabbed; € 日本 😀."), QStringLiteral("The end")};
  EXPECT_EQ(PlainText(shown_).toStdString(), expected.join(u'\n').toStdString());
}

TEST_F(Letter, KeepsTheLooksOfItsWords) {
  EXPECT_EQ(LookOf("A heading"), (Look{"Arial", 20, "#003366", true}));
  EXPECT_EQ(LookOf("English, "), (Look{"Arial", 11, "#000000"}));
  EXPECT_EQ(LookOf("ελληνικά: Ώρα καλή"), (Look{"Courier New", 9.5, "#cc0000", false, true}));
  EXPECT_EQ(LookOf("struck"), (Look{"Arial", 11, "#000000", false, false, true, true}));
  EXPECT_EQ(LookOf("the linked words"), (Look{"Arial", 11, "#000080", false, false, true}));
  EXPECT_EQ(LookOf("top left"), (Look{"Arial", 11, "#000000"}));
  EXPECT_EQ(LookOf("The end"), (Look{"Arial", 11, "#000000"}));
}

}  // namespace
}  // namespace verlume::libreoffice
