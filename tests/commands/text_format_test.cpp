#include "commands/text_format.h"

#include <gmock/gmock.h>

#include "commands/text_format_fixture.h"

namespace verlume {
namespace {

using testing::IsEmpty;
using testing::SizeIs;

class TextFormatTest : public fake::TextFormatSide {};

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

}  // namespace
}  // namespace verlume
