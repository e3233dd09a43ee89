#include "commands/text_format.h"

#include <gmock/gmock.h>

#include "commands/typing_side.h"

namespace verlume {
namespace {

using testing::IsEmpty;
using testing::SizeIs;

class TextFormatTest : public fake::TypingSide {
 protected:
  TextFormatTest() {
    textFormat.ApplyCommandStyle();
    pane.timesFocused = 0;
  }

  std::u16string Setting(std::u16string_view section, std::u16string_view key) const {
    return settings.ReadSetting(section, key, u"NULL", 1024);
  }

  // A line whose first five characters are plain and whose next five are bold.
  void ShowPlainThenBold() {
    pane.SetText(u"plain");
    pane.Select(5, 0);
    SelectionFormat bold;
    bold.bold = true;
    pane.SetSelFormat(bold);
    pane.SetSelText(u"bold!");
  }

  // Makes every write of a file visible: there is no file until the next one.
  void ForgetSettingsFile() { fake.files.files.erase(state.IniFile); }
  bool SettingsWritten() const { return fake.files.files.contains(state.IniFile); }

  void ExpectBoldEverywhere(bool isBold) {
    EXPECT_EQ(state.Font.Bold, isBold);
    EXPECT_EQ(window.chkBold.value, isBold ? 1 : 0);
    EXPECT_EQ(window.mnuFormatFontBold.checked, isBold);
  }

  fake::FakeRichTextBox& pane = window.rtbCommands;
};

TEST_F(TextFormatTest, TheStyleAppliesToWhatIsTypedNext) {
  state.Font.Name = u"Tahoma";
  state.Font.Size = 9;
  state.Font.Color = 255;
  state.Font.Bold = state.Font.Italic = state.Font.Underline = state.Font.Strikethrough = true;
  textFormat.ApplyCommandStyle();
  pane.Type(u"x");
  pane.Select(0, 1);
  const SelectionFormat format = pane.SelFormat();
  EXPECT_EQ(format.fontName, u"Tahoma");
  EXPECT_EQ(format.fontSize, 9);
  EXPECT_EQ(format.color, 255);
  EXPECT_EQ(format.bold, true);
  EXPECT_EQ(format.italic, true);
  EXPECT_EQ(format.underline, true);
  EXPECT_EQ(format.strikethrough, true);
}

TEST_F(TextFormatTest, WhatWasTypedKeepsItsStyleAndTheCaretGoesToTheEnd) {
  pane.Type(u"plain");
  pane.Select(0, 2);
  window.chkBold.SetValue(1);
  EXPECT_EQ(pane.SelStart(), 5u);
  EXPECT_EQ(pane.SelLength(), 0u);
  pane.Type(u"bold");
  pane.Select(0, 5);
  EXPECT_EQ(pane.SelFormat().bold, false);
  pane.Select(5, 4);
  EXPECT_EQ(pane.SelFormat().bold, true);
}

TEST_F(TextFormatTest, ApplyingWritesTheSevenKeys) {
  state.Font.Name = u"Tahoma";
  state.Font.Size = 10.5;
  state.Font.Color = 65535;
  state.Font.Italic = true;
  textFormat.ApplyCommandStyle();
  EXPECT_EQ(Setting(u"FontLocal", u"Name"), u"Tahoma");
  EXPECT_EQ(Setting(u"FontLocal", u"Bold"), u"False");
  EXPECT_EQ(Setting(u"FontLocal", u"Italic"), u"True");
  EXPECT_EQ(Setting(u"FontLocal", u"Strikethrough"), u"False");
  EXPECT_EQ(Setting(u"FontLocal", u"Underline"), u"False");
  EXPECT_EQ(Setting(u"FontLocal", u"Forecolor"), u"65535");
  EXPECT_EQ(Setting(u"FontLocal", u"Size"), u"10.5");
}

TEST_F(TextFormatTest, ApplyingShowsTheStyle) {
  state.Font.Bold = state.Font.Underline = true;
  state.Font.Color = 65280;
  textFormat.ApplyCommandStyle();
  ExpectBoldEverywhere(true);
  EXPECT_EQ(window.chkItalics.value, 0);
  EXPECT_FALSE(window.mnuFormatFontItalics.checked);
  EXPECT_EQ(window.chkUnderline.value, 1);
  EXPECT_TRUE(window.mnuFormatFontUnderline.checked);
  EXPECT_EQ(window.lblColor.backColor, 65280);
}

TEST_F(TextFormatTest, AFailedWriteIsReportedAndTheStyleIsInForce) {
  fake.files.writesFail = FailureNumber::DiskFull;
  fake.dialogs.answers = {Answer::No};
  window.chkBold.SetValue(1);
  ASSERT_THAT(fake.dialogs.messages, SizeIs(1));
  EXPECT_EQ(fake.dialogs.messages[0].title, u"Verlume, 229.");
  ExpectBoldEverywhere(true);
  EXPECT_EQ(pane.SelFormat().bold, true);
}

TEST_F(TextFormatTest, ACheckBoxSetsItsFlag) {
  window.chkBold.SetValue(1);
  window.chkItalics.SetValue(1);
  window.chkUnderline.SetValue(1);
  EXPECT_TRUE(state.Font.Bold && state.Font.Italic && state.Font.Underline);
  EXPECT_EQ(Setting(u"FontLocal", u"Underline"), u"True");
  EXPECT_EQ(pane.timesFocused, 3);
  window.chkBold.SetValue(0);
  window.chkItalics.SetValue(0);
  window.chkUnderline.SetValue(0);
  EXPECT_FALSE(state.Font.Bold || state.Font.Italic || state.Font.Underline);
  EXPECT_EQ(pane.SelFormat().italic, false);
}

TEST_F(TextFormatTest, AMenuEntryTogglesAndAgreesWithItsCheckBox) {
  window.mnuFormatFontBold.Click();
  ExpectBoldEverywhere(true);
  EXPECT_EQ(pane.SelFormat().bold, true);
  window.chkBold.SetValue(0);
  ExpectBoldEverywhere(false);
  window.mnuFormatFontBold.Click();
  window.mnuFormatFontBold.Click();
  ExpectBoldEverywhere(false);
  window.mnuFormatFontItalics.Click();
  EXPECT_TRUE(state.Font.Italic && window.mnuFormatFontItalics.checked);
  EXPECT_EQ(window.chkItalics.value, 1);
  window.mnuFormatFontUnderline.Click();
  EXPECT_TRUE(state.Font.Underline && window.mnuFormatFontUnderline.checked);
  EXPECT_EQ(window.chkUnderline.value, 1);
  EXPECT_GT(pane.timesFocused, 0);
}

TEST_F(TextFormatTest, TheCaretInBoldTextMakesBoldTheStyleAndStaysThere) {
  ShowPlainThenBold();
  pane.Select(3, 0);
  ExpectBoldEverywhere(false);
  pane.Select(8, 0);
  ExpectBoldEverywhere(true);
  EXPECT_EQ(pane.SelStart(), 8u);
  EXPECT_EQ(Setting(u"FontLocal", u"Bold"), u"True");
  pane.Select(2, 0);
  ExpectBoldEverywhere(false);
  EXPECT_EQ(pane.SelStart(), 2u);
  EXPECT_EQ(Setting(u"FontLocal", u"Bold"), u"False");
}

TEST_F(TextFormatTest, TheCaretTakesTheWholeFormatIntoTheStyle) {
  pane.SetSelFormat({u"Tahoma", 11, 255, true, true, true, true});
  pane.SetSelText(u"x");
  pane.Select(1, 0);
  EXPECT_EQ(state.Font.Name, u"Tahoma");
  EXPECT_EQ(state.Font.Size, 11);
  EXPECT_EQ(state.Font.Color, 255);
  EXPECT_TRUE(state.Font.Bold && state.Font.Italic);
  EXPECT_TRUE(state.Font.Underline && state.Font.Strikethrough);
  EXPECT_EQ(window.chkItalics.value, 1);
  EXPECT_EQ(window.chkUnderline.value, 1);
  EXPECT_TRUE(window.mnuFormatFontItalics.checked && window.mnuFormatFontUnderline.checked);
  EXPECT_EQ(window.lblColor.backColor, 255);
  EXPECT_EQ(Setting(u"FontLocal", u"Name"), u"Tahoma");
}

TEST_F(TextFormatTest, ASelectionLeavesTheStyleAlone) {
  ShowPlainThenBold();
  pane.Select(2, 0);
  pane.Select(7, 3);
  ExpectBoldEverywhere(false);
  pane.Select(3, 6);  // mixed
  ExpectBoldEverywhere(false);
}

TEST_F(TextFormatTest, AMixedFormatTurnsTheFlagsOffAndKeepsTheRest) {
  state.Font.Bold = state.Font.Italic = state.Font.Underline = state.Font.Strikethrough = true;
  state.Font.Name = u"Tahoma";
  state.Font.Size = 9;
  state.Font.Color = 255;
  textFormat.ApplyCommandStyle();
  pane.Type(u"x");
  pane.formatIsMixed = true;
  pane.Select(1, 0);
  ExpectBoldEverywhere(false);
  EXPECT_FALSE(state.Font.Italic || state.Font.Underline || state.Font.Strikethrough);
  EXPECT_EQ(window.chkItalics.value, 0);
  EXPECT_EQ(window.chkUnderline.value, 0);
  EXPECT_EQ(state.Font.Name, u"Tahoma");
  EXPECT_EQ(state.Font.Size, 9);
  EXPECT_EQ(state.Font.Color, 255);
}

TEST_F(TextFormatTest, ACaretMoveThatChangesNothingWritesNothing) {
  pane.Type(u"plain text");
  ForgetSettingsFile();
  for (std::size_t at = 0; at <= 10; ++at) pane.Select(at, 0);
  pane.Type(u"more");
  pane.SetText(u"");
  EXPECT_FALSE(SettingsWritten());
  SelectionFormat red;
  red.color = 255;
  pane.SetSelFormat(red);
  pane.Type(u"r");
  EXPECT_TRUE(SettingsWritten());
}

TEST_F(TextFormatTest, AWriteThatFailsOnACaretMoveIsReported) {
  ShowPlainThenBold();
  pane.Select(2, 0);
  fake.files.writesFail = FailureNumber::PermissionDenied;
  fake.dialogs.answers = {Answer::No};
  pane.Select(8, 0);
  ASSERT_THAT(fake.dialogs.messages, SizeIs(1));
  EXPECT_EQ(fake.dialogs.messages[0].title, u"Verlume, 229.");
  ExpectBoldEverywhere(true);
}

TEST_F(TextFormatTest, TheStyleIsLeftAloneUntilItIsFirstApplied) {
  fake::FakePlatform starting(network);
  AppState stored;
  stored.IniFile = u"/verlume/Verlume.ini";
  Settings file(stored, starting.files);
  DialogueLog itsLog(stored, starting.platform, errors, file);
  Dialogue itsDialogue(stored, starting.platform, errors, file, itsLog);
  TextFormat format(stored, starting.platform, errors, file, itsDialogue);
  starting.window.rtbCommands.onSelChange = [&] { format.rtbCommands_SelChange(); };
  stored.Font.Name = u"Tahoma";
  stored.Font.Bold = true;
  starting.window.rtbCommands.SetText(u"");
  EXPECT_EQ(stored.Font.Name, u"Tahoma");
  EXPECT_TRUE(stored.Font.Bold);
  EXPECT_THAT(starting.files.files, IsEmpty());
  format.ApplyCommandStyle();
  starting.window.rtbCommands.SetText(u"");
  EXPECT_EQ(stored.Font.Name, u"Tahoma");
  EXPECT_TRUE(stored.Font.Bold);
}

TEST_F(TextFormatTest, TheColourLabelAsksForTheColour) {
  state.Font.Color = 65280;
  fake.commonDialog.colors = {255};
  window.lblColor.onMouseDown(MouseButton::Left);
  EXPECT_THAT(fake.commonDialog.colorsShown, testing::ElementsAre(65280));
  EXPECT_EQ(state.Font.Color, 255);
  EXPECT_EQ(pane.SelFormat().color, 255);
  EXPECT_EQ(window.lblColor.backColor, 255);
  EXPECT_EQ(Setting(u"FontLocal", u"Forecolor"), u"255");
  EXPECT_EQ(pane.timesFocused, 1);
}

TEST_F(TextFormatTest, OnlyTheRightButtonDoesNotAsk) {
  window.lblColor.onMouseDown(MouseButton::Right);
  EXPECT_THAT(fake.commonDialog.colorsShown, IsEmpty());
  fake.commonDialog.colors = {1, 2};
  window.lblColor.onMouseDown(MouseButton::Other);
  EXPECT_EQ(state.Font.Color, 1);
  window.mnuFormatFontColor.onClick = [this] { textFormat.mnuFormatFontColor_Click(); };
  window.mnuFormatFontColor.Click();
  EXPECT_EQ(state.Font.Color, 2);
}

TEST_F(TextFormatTest, ALabelMarkedFromCodeDoesNotAsk) {
  window.lblColor.tag = u"FROMCODE";
  window.lblColor.onMouseDown(MouseButton::Left);
  EXPECT_THAT(fake.commonDialog.colorsShown, IsEmpty());
}

TEST_F(TextFormatTest, TheLabelIsMarkedOnlyWhileItIsPainted) {
  textFormat.ApplyCommandStyle();
  EXPECT_EQ(window.lblColor.tagWhenPainted, u"FROMCODE");
  EXPECT_EQ(window.lblColor.tag, u"");
}

TEST_F(TextFormatTest, ACancelledColourChangesNothing) {
  state.Font.Color = 65280;
  textFormat.ApplyCommandStyle();
  ForgetSettingsFile();
  fake.commonDialog.colors = {std::nullopt};
  window.lblColor.onMouseDown(MouseButton::Left);
  EXPECT_EQ(state.Font.Color, 65280);
  EXPECT_FALSE(SettingsWritten());
  EXPECT_THAT(fake.dialogs.messages, IsEmpty());
  EXPECT_EQ(pane.timesFocused, 1);
}

TEST_F(TextFormatTest, TheFontDialogStartsFromTheStyleAndSetsIt) {
  state.Font.Name = u"Tahoma";
  state.Font.Size = 9;
  state.Font.Color = 255;
  state.Font.Italic = true;
  fake.commonDialog.fonts = {FontChoice{.name = u"Verdana",
                                        .bold = true,
                                        .italic = false,
                                        .underline = true,
                                        .strikethrough = true,
                                        .color = 65280,
                                        .size = 11}};
  textFormat.mnuFormatFontSettings_Click();
  ASSERT_THAT(fake.commonDialog.fontsShown, SizeIs(1));
  const auto& [start, minimumSize, maximumSize] = fake.commonDialog.fontsShown[0];
  EXPECT_EQ(minimumSize, 8);
  EXPECT_EQ(maximumSize, 11);
  EXPECT_EQ(start.name, u"Tahoma");
  EXPECT_EQ(start.size, 9);
  EXPECT_EQ(start.color, 255);
  EXPECT_TRUE(start.italic);
  EXPECT_FALSE(start.bold || start.underline || start.strikethrough);
  EXPECT_EQ(state.Font.Name, u"Verdana");
  EXPECT_EQ(state.Font.Size, 11);
  EXPECT_EQ(state.Font.Color, 65280);
  EXPECT_TRUE(state.Font.Underline && state.Font.Strikethrough);
  EXPECT_FALSE(state.Font.Italic);
  ExpectBoldEverywhere(true);
  EXPECT_EQ(pane.SelFormat().fontName, u"Verdana");
  EXPECT_EQ(Setting(u"FontLocal", u"Name"), u"Verdana");
  EXPECT_EQ(pane.timesFocused, 1);
}

TEST_F(TextFormatTest, AFontSizeFromTheDialogIsKeptWithinTheLimits) {
  fake.commonDialog.fonts = {FontChoice{.name = u"Arial", .size = 24},
                             FontChoice{.name = u"Arial", .size = 6}};
  textFormat.mnuFormatFontSettings_Click();
  EXPECT_EQ(state.Font.Size, 11);
  textFormat.mnuFormatFontSettings_Click();
  EXPECT_EQ(state.Font.Size, 8);
}

TEST_F(TextFormatTest, ACancelledFontChangesNothing) {
  ForgetSettingsFile();
  fake.commonDialog.fonts = {std::nullopt};
  textFormat.mnuFormatFontSettings_Click();
  EXPECT_EQ(state.Font.Name, u"Arial");
  EXPECT_FALSE(SettingsWritten());
  EXPECT_THAT(fake.dialogs.messages, IsEmpty());
}

TEST_F(TextFormatTest, TheBackColoursAreThePanesOwn) {
  pane.backColor = 100;
  window.rtbData.backColor = 200;
  fake.commonDialog.colors = {1, 2};
  textFormat.mnuFormatBackcolorCommands_Click();
  textFormat.mnuFormatBackcolorDialogue_Click();
  EXPECT_THAT(fake.commonDialog.colorsShown, testing::ElementsAre(100, 200));
  EXPECT_EQ(pane.backColor, 1);
  EXPECT_EQ(window.rtbData.backColor, 2);
  EXPECT_EQ(Setting(u"BackColor", u"Commands"), u"1");
  EXPECT_EQ(Setting(u"BackColor", u"Dialogue"), u"2");
  EXPECT_EQ(pane.timesFocused, 2);
}

TEST_F(TextFormatTest, ACancelledBackColourChangesNothing) {
  fake.commonDialog.colors = {std::nullopt, std::nullopt};
  textFormat.mnuFormatBackcolorCommands_Click();
  textFormat.mnuFormatBackcolorDialogue_Click();
  EXPECT_EQ(pane.backColor, 0xFFFFFF);
  EXPECT_EQ(window.rtbData.backColor, 0xFFFFFF);
  EXPECT_EQ(Setting(u"BackColor", u"Commands"), u"NULL");
  EXPECT_THAT(fake.dialogs.messages, IsEmpty());
}

TEST_F(TextFormatTest, AFailedBackColourIsReportedUnderItsOwnNumber) {
  fake.files.writesFail = FailureNumber::DiskFull;
  fake.commonDialog.colors = {1, 2};
  fake.dialogs.answers = {Answer::No, Answer::No};
  textFormat.mnuFormatBackcolorCommands_Click();
  textFormat.mnuFormatBackcolorDialogue_Click();
  ASSERT_THAT(fake.dialogs.messages, SizeIs(2));
  EXPECT_EQ(fake.dialogs.messages[0].title, u"Verlume, 222.");
  EXPECT_EQ(fake.dialogs.messages[1].title, u"Verlume, 223.");
}

class FontSize : public TextFormatTest {
 protected:
  // Whether the size of a command line is taken.
  bool Takes(std::u16string_view line) {
    state.Font.Size = 10;
    state.CommandLine = line;
    fake.dialogs.messages.clear();
    textFormat.SetFontSize();
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
  EXPECT_TRUE(Takes(u"/SIZE 9.3"));
  EXPECT_EQ(state.Font.Size, 9.5);
  EXPECT_TRUE(Takes(u"/SIZE 9.2"));
  EXPECT_EQ(state.Font.Size, 9);
}

TEST_F(FontSize, AnythingElseIsRefusedWithTheRange) {
  for (const std::u16string_view size :
       {u"7", u"12", u"7.9", u"11.1", u"big", u"9 pt", u"9x", u"1e1", u"0x9", u"-9", u"9.5.1", u".",
        u",", u"nan", u"inf", u"99999999999999999999"}) {
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
  state.CommandLine = u"/SIZE";
  fake.dialogs.typed = {u" 11 "};
  textFormat.SetFontSize();
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
