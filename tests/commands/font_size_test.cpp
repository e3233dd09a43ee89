#include "commands/text_format.h"

#include <gmock/gmock.h>

#include "commands/text_format_fixture.h"

namespace verlume {
namespace {

using testing::IsEmpty;
using testing::SizeIs;

class FontSize : public fake::TextFormatSide {
 protected:
  // Whether the size of a command line is taken.
  bool Takes(std::u16string_view line) {
    state.Font.Size = 10;
    fake.dialogs.messages.clear();
    textFormat.SetFontSize(line);
    EXPECT_THAT(fake.dialogs.messages, SizeIs(state.Font.Size == 10 ? 1 : 0));
    return fake.dialogs.messages.empty();
  }
};

TEST_F(FontSize, ANumberFromEightToElevenIsTaken) {
  EXPECT_TRUE(Takes(u"/SIZE 11"));
  EXPECT_EQ(state.Font.Size, 11);
  EXPECT_EQ(pane.SelFormat().fontSize, 11);
  EXPECT_EQ(Setting(u"FontLocal", u"Size"), u"11");
  EXPECT_TRUE(Takes(u"/SIZE 8"));
  EXPECT_EQ(state.Font.Size, 8);
}

TEST_F(FontSize, AFractionIsTakenWithEitherDecimalMark) {
  EXPECT_TRUE(Takes(u"/SIZE 9.5"));
  EXPECT_EQ(state.Font.Size, 9.5);
  EXPECT_EQ(Setting(u"FontLocal", u"Size"), u"9.5");
  EXPECT_TRUE(Takes(u"/SIZE 8,5"));
  EXPECT_EQ(state.Font.Size, 8.5);
}

TEST_F(FontSize, ASizeIsOfWholeOrHalfPointsAsRichTextCarriesIt) {
  EXPECT_TRUE(Takes(u"/SIZE 9"));
  EXPECT_EQ(state.Font.Size, 9);
  EXPECT_TRUE(Takes(u"/SIZE 9,50"));
  EXPECT_EQ(state.Font.Size, 9.5);
}

TEST_F(FontSize, AnythingElseIsRefusedWithTheRange) {
  for (const std::u16string_view size :
       {u"7",   u"12",  u"7.9",    u"11.1", u"9.2",
        u"9.3", u"9,7", u"10.999", u"big",  u"9 pt",
        u"9x",  u"1e1", u"0x9",    u"-9",   u"9.5.1",
        u".",   u",",   u"nan",    u"inf",  u"99999999999999999999"}) {
    EXPECT_FALSE(Takes(u"/SIZE " + std::u16string(size))) << testing::PrintToString(size);
    EXPECT_EQ(state.Font.Size, 10);
  }
  EXPECT_EQ(fake.dialogs.messages[0].text, u"The font size must be between 8 and 11 inclusive.");
  EXPECT_EQ(fake.dialogs.messages[0].title, u"Font size definition");
  EXPECT_EQ(fake.dialogs.messages[0].icon, MessageIcon::Information);
  state.IsGreek = true;
  EXPECT_FALSE(Takes(u"/SIZE 12"));
  EXPECT_EQ(fake.dialogs.messages[0].text,
            u"Το μέγεθος της γραμματοσειράς πρέπει να είναι μεταξύ του 8 και του 11.");
  EXPECT_EQ(fake.dialogs.messages[0].title, u"Ορισμός μεγέθους γραμματοσειράς");
}

TEST_F(FontSize, WithoutAnArgumentTheUserIsAsked) {
  state.Font.Size = 9.5;
  fake.dialogs.typed = {u" 11 "};
  textFormat.SetFontSize(u"/SIZE");
  ASSERT_THAT(fake.dialogs.asked, SizeIs(1));
  EXPECT_EQ(fake.dialogs.asked[0].prompt,
            u"Type the font size.\r\n\r\nYou may type a number between 8 and 11 inclusive.");
  EXPECT_EQ(fake.dialogs.asked[0].title, u"Font size definition");
  EXPECT_EQ(fake.dialogs.asked[0].defaultText, u"9.5");
  EXPECT_EQ(state.Font.Size, 11);
}

TEST_F(FontSize, TheQuestionSpeaksGreek) {
  state.IsGreek = true;
  fake.dialogs.typed = {u"12"};
  textFormat.mnuFormatFontSize_Click();
  ASSERT_THAT(fake.dialogs.asked, SizeIs(1));
  EXPECT_EQ(fake.dialogs.asked[0].prompt,
            u"Πληκτρολογήστε το μέγεθος που θέλετε να έχει η γραμματοσειρά.\r\n\r\n"
            u"Μπορείτε να πληκτρολογήσετε έναν αριθμό από το 8 μέχρι και το 11.");
  EXPECT_EQ(fake.dialogs.asked[0].title, u"Ορισμός μεγέθους γραμματοσειράς");
  EXPECT_EQ(state.Font.Size, 10);
}

TEST_F(FontSize, NoAnswerChangesNothing) {
  ForgetSettingsFile();
  pane.Type(u"typed");
  fake.dialogs.typed = {u""};
  textFormat.mnuFormatFontSize_Click();
  EXPECT_EQ(state.Font.Size, 10);
  EXPECT_EQ(pane.Text(), u"typed");
  EXPECT_FALSE(SettingsWritten());
  EXPECT_THAT(fake.dialogs.messages, IsEmpty());
  EXPECT_EQ(pane.timesFocused, 1);
}

TEST_F(FontSize, TheMenuEntryForgetsTheLastCommandLine) {
  state.CommandLine = u"/SIZE 11";
  state.OutgoingText = u"x";
  fake.dialogs.typed = {u"9"};
  textFormat.mnuFormatFontSize_Click();
  EXPECT_EQ(state.Font.Size, 9);
  EXPECT_EQ(state.CommandLine, u"/SIZE");
  EXPECT_EQ(state.OutgoingText, u"");
}

TEST_F(FontSize, ATakenSizeEmptiesTheCommandPaneAndStaysInForce) {
  pane.Type(u"/size 11");
  EXPECT_TRUE(Takes(u"/SIZE 11"));
  EXPECT_EQ(pane.Text(), u"");
  EXPECT_EQ(pane.SelFormat().fontSize, 11);
  EXPECT_EQ(state.Font.Size, 11);
}

TEST_F(FontSize, ARefusedSizeLeavesTheCommandPane) {
  pane.Type(u"typed");
  EXPECT_FALSE(Takes(u"/SIZE 12"));
  EXPECT_EQ(pane.Text(), u"typed");
}

}  // namespace
}  // namespace verlume
