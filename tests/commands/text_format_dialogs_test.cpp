#include "commands/text_format.h"

#include <gmock/gmock.h>

#include "commands/text_format_fixture.h"

namespace verlume {
namespace {

using testing::IsEmpty;
using testing::SizeIs;

class TextFormatDialogs : public fake::TextFormatSide {};

TEST_F(TextFormatDialogs, TheColourLabelAsksForTheColour) {
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

TEST_F(TextFormatDialogs, OnlyTheRightButtonDoesNotAsk) {
  window.lblColor.onMouseDown(MouseButton::Right);
  EXPECT_THAT(fake.commonDialog.colorsShown, IsEmpty());
  fake.commonDialog.colors = {1, 2};
  window.lblColor.onMouseDown(MouseButton::Other);
  EXPECT_EQ(state.Font.Color, 1);
  window.mnuFormatFontColor.onClick = [this] { textFormat.mnuFormatFontColor_Click(); };
  window.mnuFormatFontColor.Click();
  EXPECT_EQ(state.Font.Color, 2);
}

TEST_F(TextFormatDialogs, ALabelMarkedFromCodeDoesNotAsk) {
  window.lblColor.tag = u"FROMCODE";
  window.lblColor.onMouseDown(MouseButton::Left);
  EXPECT_THAT(fake.commonDialog.colorsShown, IsEmpty());
}

TEST_F(TextFormatDialogs, TheLabelIsMarkedOnlyWhileItIsPainted) {
  textFormat.ApplyCommandStyle();
  EXPECT_EQ(window.lblColor.tagWhenPainted, u"FROMCODE");
  EXPECT_EQ(window.lblColor.tag, u"");
}

TEST_F(TextFormatDialogs, ACancelledColourChangesNothing) {
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

TEST_F(TextFormatDialogs, TheFontDialogStartsFromTheStyleAndSetsIt) {
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

TEST_F(TextFormatDialogs, AFontSizeFromTheDialogIsKeptWithinTheLimits) {
  fake.commonDialog.fonts = {FontChoice{.name = u"Arial", .size = 24},
                             FontChoice{.name = u"Arial", .size = 6}};
  textFormat.mnuFormatFontSettings_Click();
  EXPECT_EQ(state.Font.Size, 11);
  textFormat.mnuFormatFontSettings_Click();
  EXPECT_EQ(state.Font.Size, 8);
}

TEST_F(TextFormatDialogs, ACancelledFontChangesNothing) {
  ForgetSettingsFile();
  fake.commonDialog.fonts = {std::nullopt};
  textFormat.mnuFormatFontSettings_Click();
  EXPECT_EQ(state.Font.Name, u"Arial");
  EXPECT_FALSE(SettingsWritten());
  EXPECT_THAT(fake.dialogs.messages, IsEmpty());
}

TEST_F(TextFormatDialogs, TheBackColoursAreThePanesOwn) {
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

TEST_F(TextFormatDialogs, ACancelledBackColourChangesNothing) {
  fake.commonDialog.colors = {std::nullopt, std::nullopt};
  textFormat.mnuFormatBackcolorCommands_Click();
  textFormat.mnuFormatBackcolorDialogue_Click();
  EXPECT_EQ(pane.backColor, 0xFFFFFF);
  EXPECT_EQ(window.rtbData.backColor, 0xFFFFFF);
  EXPECT_EQ(Setting(u"BackColor", u"Commands"), u"NULL");
  EXPECT_THAT(fake.dialogs.messages, IsEmpty());
}

TEST_F(TextFormatDialogs, AFailedBackColourIsReportedUnderItsOwnNumber) {
  fake.files.writesFail = FailureNumber::DiskFull;
  fake.commonDialog.colors = {1, 2};
  fake.dialogs.answers = {Answer::No, Answer::No};
  textFormat.mnuFormatBackcolorCommands_Click();
  textFormat.mnuFormatBackcolorDialogue_Click();
  ASSERT_THAT(fake.dialogs.messages, SizeIs(2));
  EXPECT_EQ(fake.dialogs.messages[0].title, u"Verlume, 222.");
  EXPECT_EQ(fake.dialogs.messages[1].title, u"Verlume, 223.");
}

}  // namespace
}  // namespace verlume
