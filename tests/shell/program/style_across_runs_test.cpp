// The user's style in the whole program: from run to run, and when the text of the pane changes.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/program_copy.h"

namespace verlume {
namespace {

using fake::FakeNetwork;
using fake::ProgramCopy;

// The style of the next letter, found by typing one.
SelectionFormat StyleOfNextLetter(ProgramCopy& copy) {
  fake::FakeRichTextBox& pane = copy.platform.window.rtbCommands;
  const std::size_t at = pane.SelStart();
  pane.Type(u"x");
  pane.Select(at, 1);
  const SelectionFormat format = pane.SelFormat();
  pane.Select(at + 1, 0);
  return format;
}

void ExpectBoldEverywhere(ProgramCopy& copy, bool isBold) {
  const fake::FakeMainWindow& window = copy.platform.window;
  EXPECT_EQ(copy.program.State().Font.Bold, isBold);
  EXPECT_EQ(window.chkBold.value, isBold ? 1 : 0);
  EXPECT_EQ(window.mnuFormatFontBold.checked, isBold);
  EXPECT_EQ(StyleOfNextLetter(copy).bold, isBold);
}

class StyleAcrossRuns : public testing::Test {
 protected:
  FakeNetwork network;
  ProgramCopy first{network, u"Bob"};
};

TEST_F(StyleAcrossRuns, EveryChoiceOfTheUserIsThereInTheNextRun) {
  fake::FakeMainWindow& window = first.platform.window;
  first.platform.commonDialog.fonts = {FontChoice{.name = u"Tahoma",
                                                  .bold = true,
                                                  .italic = true,
                                                  .underline = true,
                                                  .strikethrough = true,
                                                  .color = 0,
                                                  .size = 9}};
  first.platform.commonDialog.colors = {Color{255}, Color{0xC0FFFF}, Color{0xFFFFC0}};
  window.mnuFormatFontSettings.Click();
  window.mnuFormatFontColor.Click();
  window.mnuFormatBackcolorCommands.Click();
  window.mnuFormatBackcolorDialogue.Click();
  first.Enter(u"/SIZE 9.5");
  window.mnuToolsDate.Click();
  window.mnuToolsTime.Click();
  window.mnuToolsAlwaysOnTop.Click();

  ProgramCopy second(network, first.Settings(), ProgramCopy::SettingsFile{});
  const AppState& state = second.program.State();
  EXPECT_EQ(state.Font.Name, u"Tahoma");
  EXPECT_EQ(state.Font.Size, 9.5);
  EXPECT_EQ(state.Font.Color, 255);
  EXPECT_TRUE(state.Font.Bold && state.Font.Italic && state.Font.Underline &&
              state.Font.Strikethrough);
  EXPECT_TRUE(state.DateStamp && state.TimeStamp && state.AlwaysOnTop);
  const fake::FakeMainWindow& shown = second.platform.window;
  EXPECT_TRUE(shown.chkBold.value && shown.chkItalics.value && shown.chkUnderline.value);
  EXPECT_TRUE(shown.mnuFormatFontBold.checked && shown.mnuFormatFontItalics.checked &&
              shown.mnuFormatFontUnderline.checked);
  EXPECT_TRUE(shown.mnuToolsDate.checked && shown.mnuToolsTime.checked &&
              shown.mnuToolsAlwaysOnTop.checked);
  EXPECT_TRUE(shown.window.topMost);
  EXPECT_EQ(shown.lblColor.backColor, 255);
  EXPECT_EQ(shown.rtbCommands.backColor, 0xC0FFFF);
  EXPECT_EQ(shown.rtbData.backColor, 0xFFFFC0);
  const SelectionFormat next = StyleOfNextLetter(second);
  EXPECT_EQ(next.fontName, u"Tahoma");
  EXPECT_EQ(next.fontSize, 9.5);
  EXPECT_EQ(next.color, 255);
  EXPECT_EQ(next.bold, true);
  EXPECT_EQ(next.strikethrough, true);
}

TEST_F(StyleAcrossRuns, AHandEditedFileStartsWithTheNearestSensibleValues) {
  ProgramCopy copy(network,
                   u"[General]\nMacrosfolder=/macros/\n"
                   u"[FontLocal]\nName=No Such Font\nSize=500\nForecolor=-1\n"
                   u"[BackColor]\nCommands=-1\n",
                   ProgramCopy::SettingsFile{});
  EXPECT_TRUE(copy.platform.dialogs.messages.empty());
  EXPECT_TRUE(copy.platform.window.window.shown);
  EXPECT_EQ(copy.program.State().Font.Size, 11);
  EXPECT_EQ(copy.program.State().Font.Color, 0);
  EXPECT_EQ(copy.program.State().Font.Name, u"No Such Font");
  EXPECT_EQ(copy.platform.window.rtbCommands.backColor, 0xFFFFFF);
}

TEST_F(StyleAcrossRuns, ANumberForAlwaysOnTopStartsOnTop) {
  ProgramCopy copy(network, u"[General]\nMacrosfolder=/macros/\nAlwaysOnTop=1\n",
                   ProgramCopy::SettingsFile{});
  EXPECT_TRUE(copy.platform.window.window.topMost);
  EXPECT_TRUE(copy.platform.window.mnuToolsAlwaysOnTop.checked);
}

TEST_F(StyleAcrossRuns, TheStyleStaysWhenThePaneIsEmptied) {
  fake::FakeRichTextBox& pane = first.platform.window.rtbCommands;
  const std::function<void()> emptyings[] = {
      [&] { pane.PressKey(key_code::kEscape); },
      [&] { pane.Type(u"\r"); },
      [&] { first.platform.window.mnuToolsClearCommands.Click(); },
  };
  for (const auto& empty : emptyings) {
    for (const bool selected : {false, true}) {
      first.Enter(u"/NOTBOLD");
      pane.Type(u"plain");
      first.platform.window.chkBold.SetValue(1);
      pane.Type(u"bold");
      if (selected) pane.Select(0, pane.TextLength());
      empty();
      ExpectBoldEverywhere(first, true);
    }
  }
}

TEST_F(StyleAcrossRuns, ARecalledLineBringsItsStyleWithIt) {
  first.Enter(u"/BOLD");
  first.Enter(u"loud");
  first.Enter(u"/NOTBOLD");
  ExpectBoldEverywhere(first, false);
  fake::FakeRichTextBox& pane = first.platform.window.rtbCommands;
  pane.PressKey(key_code::kPageUp);
  pane.PressKey(key_code::kPageUp);
  ASSERT_EQ(pane.Text(), u"loud");
  ExpectBoldEverywhere(first, true);
}

TEST_F(StyleAcrossRuns, TextOfAnySizeIsTypedOnInASizeThatIsAccepted) {
  fake::FakeRichTextBox& pane = first.platform.window.rtbCommands;
  pane.SetRtf(u"{\\rtf1{\\fonttbl{\\f0 Tahoma;}}\\f0\\fs48 huge}");
  pane.Select(4, 0);
  EXPECT_EQ(first.program.State().Font.Size, 11);
  EXPECT_EQ(StyleOfNextLetter(first).fontSize, 11);
  pane.Select(0, 1);
  EXPECT_EQ(pane.SelFormat().fontSize, 24);
}

TEST_F(StyleAcrossRuns, EveryEntryAndBoxEndsInTheCommandPane) {
  fake::FakeMainWindow& window = first.platform.window;
  int& timesFocused = window.rtbCommands.timesFocused;
  for (fake::FakeMenuEntry* entry :
       {&window.mnuFormatFontBold, &window.mnuFormatFontItalics, &window.mnuFormatFontUnderline,
        &window.mnuFormatFontSize, &window.mnuFormatFontColor, &window.mnuFormatFontSettings,
        &window.mnuFormatBackcolorCommands, &window.mnuFormatBackcolorDialogue,
        &window.mnuToolsClearDialogue, &window.mnuToolsClearCommands, &window.mnuToolsClearHistory,
        &window.mnuToolsDate, &window.mnuToolsTime, &window.mnuToolsAlwaysOnTop,
        &window.mnuToolsLanguageGreek, &window.mnuToolsLanguageEnglish, &window.mnuFileMacrosFolder,
        &window.mnuFileLogFolder, &window.mnuFileLogRecord}) {
    first.platform.dialogs.typed = {u""};
    first.platform.commonDialog.colors = {std::nullopt};
    first.platform.commonDialog.fonts = {std::nullopt};
    first.platform.commonDialog.folders = {std::nullopt};
    timesFocused = 0;
    ASSERT_TRUE(entry->onClick);
    entry->Click();
    EXPECT_GT(timesFocused, 0) << testing::PrintToString(entry->caption);
  }
}

}  // namespace
}  // namespace verlume
