#include "shell/language.h"

#include <set>

#include "platform/run_time_failure.h"
#include "shell/shell_fixture.h"

namespace verlume {
namespace {

// All texts that the elements of the window show or have read out, with their kinds.
struct ShownText {
  const char* kind;
  std::u16string text;
};
using ShownTexts = std::vector<ShownText>;

void Collect(ShownTexts& texts, const fake::FakeWindow& window) {
  texts.push_back({"title", window.title});
}
void Collect(ShownTexts& texts, const fake::FakeMenu& menu) {
  texts.push_back({"menu", menu.caption});
}
void Collect(ShownTexts& texts, const fake::FakeMenuEntry& entry) {
  texts.push_back({"menu entry", entry.caption});
  texts.push_back({"tool tip", entry.toolTip});
}
template <class Role>
void Collect(ShownTexts& texts, const fake::FakeControl<Role>& control) {
  texts.push_back({"tool tip", control.toolTip});
  texts.push_back({"accessible name", control.accessibleName});
}
void Collect(ShownTexts& texts, const fake::FakeLabel& label) {
  texts.push_back({"caption", label.caption});
  Collect<Label>(texts, label);
}
void Collect(ShownTexts& texts, const fake::FakeCheckBox& box) {
  texts.push_back({"caption", box.caption});
  Collect<CheckBox>(texts, box);
}
void Collect(ShownTexts& texts, const fake::FakeButton& button) {
  texts.push_back({"caption", button.caption});
  Collect<Button>(texts, button);
}
void Collect(ShownTexts& texts, const fake::FakePicture& picture) {
  Collect<Picture>(texts, picture);
}
void Collect(ShownTexts& texts, const fake::FakeRichTextBox& box) {
  Collect<RichTextBox>(texts, box);
  for (const auto& [author, words] : box.authorWords) texts.push_back({"margin", words});
}
void Collect(ShownTexts& texts, const fake::FakeTextField& field) {
  Collect<TextField>(texts, field);
}
void Collect(ShownTexts& texts, const fake::FakeProgressBar& bar) {
  Collect<ProgressBar>(texts, bar);
}
void Collect(ShownTexts& texts, const fake::FakeListBox& list) {
  Collect<ListBox>(texts, list);
}
void Collect(ShownTexts& texts, const fake::FakeSpellChecker& spelling) {
  for (const auto& [entry, caption] : spelling.captions) texts.push_back({"caption", caption});
}
void Collect(ShownTexts& texts, const fake::FakeWelcomeCard& card) {
  texts.push_back({"accessible name", card.fraCard.accessibleName});
  for (const fake::FakeLabel* label : {&card.lblCard, &card.lblCardAddress}) {
    Collect(texts, *label);
  }
  for (const fake::FakeButton* button : {&card.cmdCardWait, &card.cmdCardCall, &card.cmdCardHelp}) {
    Collect(texts, *button);
  }
  texts.push_back({"caption", card.cmdCardCopy.caption});
  Collect<CopyButton>(texts, card.cmdCardCopy);
}
void Collect(ShownTexts& texts, const fake::FakeAgainBar& bar) {
  texts.push_back({"accessible name", bar.fraAgain.accessibleName});
  texts.push_back({"caption", bar.lblAgain.caption});
  Collect(texts, bar.cmdAgain);
  Collect(texts, bar.cmdAgainClose);
}
void Collect(ShownTexts& texts, const fake::FakeResendBar& bar) {
  Collect(texts, bar.cmdResend);
  Collect(texts, bar.cmdResendDrop);
  Collect(texts, bar.cmdResendClose);
}
void Collect(ShownTexts& texts, const fake::FakeKeyBar& bar) {
  Collect(texts, bar.cmdKeyGoOn);
  Collect(texts, bar.cmdKeyHangUp);
}
void Collect(ShownTexts& texts, const fake::FakeRouterBar& bar) {
  Collect(texts, bar.cmdRouterYes);
  Collect(texts, bar.cmdRouterNo);
  Collect(texts, bar.cmdRouterClose);
}
void Collect(ShownTexts& texts, const fake::FakeLockLabel& lock) {
  texts.push_back({"caption", lock.caption});
  Collect<LockLabel>(texts, lock);
}
void Collect(ShownTexts& texts, const fake::FakeChoiceMenu& menu) {
  texts.push_back({"menu", menu.caption});
}
void Collect(ShownTexts&, const fake::FakePanel&) {}
void Collect(ShownTexts&, const fake::FakeLayoutControl&) {}
void Collect(ShownTexts&, const fake::FakeTimer&) {}
void Collect(ShownTexts&, const fake::FakeLamp&) {}

// Names every element, so that a new one cannot be forgotten here.
ShownTexts AllTexts(const fake::FakeMainWindow& mainWindow) {
  const auto& [window, freeSizer1, tmrTimer, mnuFile, mnuFileMacrosFolder, mnuFileLogFolder,
               mnuFileLogRecord, mnuFileLogOpen, mnuFileLogSaveAs, mnuFileExit, mnuComm,
               mnuCommWait, mnuCommCall, mnuCommCancel, mnuCommClose, mnuCommRefresh,
               mnuCommCallAgain, mnuCommInvite, mnuCommVerify, mnuCommPeople, mnuCommReach,
               mnuCommAskRouter, mnuFormat, mnuFormatFontBold, mnuFormatFontItalics,
               mnuFormatFontUnderline, mnuFormatFontSize, mnuFormatFontColor, mnuFormatFontSettings,
               mnuFormatBackcolorCommands, mnuFormatBackcolorDialogue, mnuTools, mnuToolsNick,
               mnuToolsSaveMacro, mnuToolsEditMacros, mnuToolsFind, mnuToolsCompletions,
               mnuToolsClearDialogue, mnuToolsClearCommands, mnuToolsClearHistory, mnuToolsDate,
               mnuToolsTime, mnuToolsAlwaysOnTop, mnuToolsLanguageEnglish, mnuToolsLanguageGreek,
               mnuAttention, mnuAttentionLines, mnuAttentionText, mnuAttentionSound,
               mnuAttentionCount, mnuToolsCheckSpelling, mnuPrivate, mnuPrivateWhenPossible,
               mnuPrivateOnly, mnuPrivateNever, mnuView, mnuViewStatusPanel, mnuViewZoomIn,
               mnuViewZoomOut, mnuViewZoomReset, mnuHelp, mnuHelpDetailed, mnuHelpAbout, rtbData,
               rtbCommands, rtbRemote, fraFind, txtFind, cmdFindPrevious, cmdFindNext,
               lblFindResult, cmdFindClose, fraCompletions, lstCompletions, fraNewLines,
               cmdNewLines, welcomeCard, againBar, resendBar, keyBar, routerBar, lblHint, spelling,
               cmdSend, chkBold, chkItalics, chkUnderline, lblColor, lblStatus, prgStatus,
               lblWaiting, lblLock, fraPanel, lblCurrentDateTime, lblChatStartDateTime,
               lblChatDuration, lblLocalIP, lblLocalPort, lblLocalNickname, lblRemoteIP,
               lblRemotePort, lblRemoteNickname, lblBytesSent, lblBytesReceived,
               lblCurrentDateTimeCaption, lblChatStartDateTimeCaption, lblChatDurationCaption,
               lblLocalPortCaption, lblLocalNicknameCaption, lblRemotePortCaption,
               lblRemoteNicknameCaption, lblBytesSentCaption, lblBytesReceivedCaption, picShape,
               shpStatus, lblCopyright, picCopyright, frmMain] = mainWindow;
  (void)frmMain;
  ShownTexts texts;
  const auto collect = [&texts](const auto&... elements) { (Collect(texts, elements), ...); };
  collect(window, freeSizer1, tmrTimer, mnuFile, mnuFileMacrosFolder, mnuFileLogFolder,
          mnuFileLogRecord, mnuFileLogOpen, mnuFileLogSaveAs, mnuFileExit, mnuComm, mnuCommWait,
          mnuCommCall, mnuCommCancel, mnuCommClose, mnuCommRefresh, mnuCommCallAgain, mnuCommInvite,
          mnuCommVerify, mnuCommPeople, mnuCommReach, mnuCommAskRouter, mnuFormat,
          mnuFormatFontBold, mnuFormatFontItalics, mnuFormatFontUnderline, mnuFormatFontSize,
          mnuFormatFontColor, mnuFormatFontSettings, mnuFormatBackcolorCommands,
          mnuFormatBackcolorDialogue, mnuTools, mnuToolsNick, mnuToolsSaveMacro, mnuToolsEditMacros,
          mnuToolsFind, mnuToolsCompletions, mnuToolsClearDialogue, mnuToolsClearCommands,
          mnuToolsClearHistory, mnuToolsDate, mnuToolsTime, mnuToolsAlwaysOnTop,
          mnuToolsLanguageEnglish, mnuToolsLanguageGreek, mnuAttention, mnuAttentionLines,
          mnuAttentionText, mnuAttentionSound, mnuAttentionCount, mnuToolsCheckSpelling, mnuPrivate,
          mnuPrivateWhenPossible, mnuPrivateOnly, mnuPrivateNever, mnuView, mnuViewStatusPanel,
          mnuViewZoomIn, mnuViewZoomOut, mnuViewZoomReset, mnuHelp, mnuHelpDetailed, mnuHelpAbout,
          rtbData, rtbCommands, rtbRemote, fraFind, txtFind, cmdFindPrevious, cmdFindNext,
          lblFindResult, cmdFindClose, fraCompletions, lstCompletions, fraNewLines, cmdNewLines,
          welcomeCard, againBar, resendBar, keyBar, routerBar, lblHint, spelling, cmdSend, chkBold,
          chkItalics, chkUnderline, lblColor, lblStatus, prgStatus, lblWaiting, lblLock, fraPanel,
          lblCurrentDateTime, lblChatStartDateTime, lblChatDuration, lblLocalIP, lblLocalPort,
          lblLocalNickname, lblRemoteIP, lblRemotePort, lblRemoteNickname, lblBytesSent,
          lblBytesReceived, lblCurrentDateTimeCaption, lblChatStartDateTimeCaption,
          lblChatDurationCaption, lblLocalPortCaption, lblLocalNicknameCaption,
          lblRemotePortCaption, lblRemoteNicknameCaption, lblBytesSentCaption,
          lblBytesReceivedCaption, picShape, shpStatus, lblCopyright, picCopyright);
  return texts;
}

class LanguageTest : public ShellTest {
 protected:
  LanguageTest() {
    state.HelpFileEnglish = u"/verlume/VerlumeUK.hlp";
    state.HelpFileGreek = u"/verlume/VerlumeGR.hlp";
    // Elements that show values have no fixed caption.
    for (fake::FakeLabel* label :
         {&window.lblStatus, &window.lblCurrentDateTime, &window.lblChatStartDateTime,
          &window.lblChatDuration, &window.lblLocalIP, &window.lblLocalPort,
          &window.lblLocalNickname, &window.lblRemoteIP, &window.lblRemotePort,
          &window.lblRemoteNickname, &window.lblBytesSent, &window.lblBytesReceived,
          &window.lblColor, &window.lblFindResult, &window.lblHint, &window.againBar.lblAgain}) {
      label->caption = u"";
    }
  }

  std::u16string Stored() { return settings.ReadSetting(u"General", u"Language", u"none", 5); }

  Language language{state, platform, errors, settings};
};

TEST_F(LanguageTest, SetsTheEnglishTexts) {
  language.ApplyLanguage();
  EXPECT_EQ(state.Title, u"Verlume");
  EXPECT_EQ(window.window.title, u"Verlume");
  EXPECT_EQ(window.mnuFile.caption, u"File");
  EXPECT_EQ(window.mnuFileLogSaveAs.caption, u"Save dialogue as");
  EXPECT_EQ(window.mnuCommRefresh.caption, u"Refresh IP");
  EXPECT_EQ(window.mnuToolsAlwaysOnTop.caption, u"Always on top");
  EXPECT_EQ(window.mnuHelpAbout.caption, u"About");
  EXPECT_EQ(window.picShape.toolTip, u"Red=Idle / Yellow=Wait / Green=Connect");
  EXPECT_EQ(window.picCopyright.toolTip, u"Copyright notice");
  EXPECT_EQ(window.rtbCommands.toolTip, u"Commands textbox");
  EXPECT_EQ(window.rtbData.toolTip, u"Dialogue textbox");
  EXPECT_EQ(window.lblLocalNicknameCaption.caption, u"You");
  EXPECT_EQ(window.lblLocalIP.accessibleName, u"Local address");
  EXPECT_EQ(window.lblCopyright.caption, u"© 2026 The Verlume team");
}

TEST_F(LanguageTest, SetsTheGreekTexts) {
  state.IsGreek = true;
  language.ApplyLanguage();
  EXPECT_EQ(state.Title, u"Verlume");
  EXPECT_EQ(window.mnuFile.caption, u"Αρχείο");
  EXPECT_EQ(window.mnuFileLogSaveAs.caption, u"Αποθήκευση διαλόγου ως");
  EXPECT_EQ(window.mnuToolsAlwaysOnTop.caption, u"Πάντα σε πρώτο πλάνο");
  EXPECT_EQ(window.picShape.toolTip, u"Κόκκινο=Αδράνεια / Κίτρινο=Αναμονή / Πράσινο=Σύνδεση");
  EXPECT_EQ(window.lblCopyright.toolTip, u"Πνευματικά δικαιώματα");
  EXPECT_EQ(window.rtbCommands.toolTip, u"Πλαίσιο κειμένου εντολών");
  EXPECT_EQ(window.lblLocalNicknameCaption.caption, u"Εσείς");
  EXPECT_EQ(window.lblLocalIP.accessibleName, u"Τοπική διεύθυνση");
  EXPECT_EQ(window.lblCopyright.caption, u"© 2026 Η ομάδα Verlume");
}

TEST_F(LanguageTest, NoTextStaysInTheOtherLanguage) {
  const std::set<std::u16string> sameInBoth = {u"Verlume", u":"};
  language.mnuToolsLanguageEnglish_Click();
  const ShownTexts english = AllTexts(window);
  language.mnuToolsLanguageGreek_Click();
  const ShownTexts greek = AllTexts(window);
  ASSERT_EQ(english.size(), greek.size());
  for (std::size_t i = 0; i < english.size(); ++i) {
    EXPECT_EQ(english[i].text.empty(), greek[i].text.empty()) << english[i].kind << ' ' << i;
    if (english[i].text.empty() || sameInBoth.contains(english[i].text)) continue;
    EXPECT_NE(english[i].text, greek[i].text) << english[i].kind;
  }
  language.mnuToolsLanguageEnglish_Click();
  const ShownTexts again = AllTexts(window);
  for (std::size_t i = 0; i < english.size(); ++i) EXPECT_EQ(again[i].text, english[i].text);
}

TEST_F(LanguageTest, EveryMenuHasACaption) {
  language.ApplyLanguage();
  for (const auto& [kind, text] : AllTexts(window)) {
    if (std::string_view(kind).starts_with("menu")) {
      EXPECT_FALSE(text.empty());
    }
  }
}

TEST_F(LanguageTest, WhatShowsAValueHasAName) {
  language.ApplyLanguage();
  for (const fake::FakeLabel* label :
       {&window.lblStatus, &window.lblCurrentDateTime, &window.lblChatStartDateTime,
        &window.lblChatDuration, &window.lblLocalIP, &window.lblLocalPort, &window.lblLocalNickname,
        &window.lblRemoteIP, &window.lblRemotePort, &window.lblRemoteNickname, &window.lblBytesSent,
        &window.lblBytesReceived, &window.lblColor}) {
    EXPECT_NE(label->accessibleName, u"");
  }
  EXPECT_EQ(window.lblRemotePort.accessibleName, u"Remote port");
  EXPECT_NE(window.rtbData.accessibleName, u"");
  EXPECT_NE(window.rtbCommands.accessibleName, u"");
  EXPECT_NE(window.picShape.accessibleName, u"");
  EXPECT_NE(window.picCopyright.accessibleName, u"");
  EXPECT_NE(window.chkBold.toolTip, u"");
}

TEST_F(LanguageTest, TheListOfCompletionsHasANameInBothLanguages) {
  language.ApplyLanguage();
  EXPECT_EQ(window.lstCompletions.accessibleName, u"Commands and macros that match");
  language.mnuToolsLanguageGreek_Click();
  EXPECT_EQ(window.lstCompletions.accessibleName, u"Εντολές και μακροεντολές που ταιριάζουν");
}

TEST_F(LanguageTest, AlwaysOnTopSaysWhereItCannotBe) {
  language.ApplyLanguage();
  EXPECT_EQ(window.mnuToolsAlwaysOnTop.toolTip, u"");
  window.window.canBeTopMost = false;
  language.ApplyLanguage();
  EXPECT_EQ(window.mnuToolsAlwaysOnTop.toolTip,
            u"This desktop does not let programs place themselves above others.");
  language.mnuToolsLanguageGreek_Click();
  EXPECT_EQ(window.mnuToolsAlwaysOnTop.toolTip,
            u"Αυτή η επιφάνεια εργασίας δεν επιτρέπει στα προγράμματα να τοποθετούνται πάνω από τα "
            u"άλλα.");
}

TEST_F(LanguageTest, TicksTheLanguageInForce) {
  language.mnuToolsLanguageGreek_Click();
  EXPECT_TRUE(window.mnuToolsLanguageGreek.checked);
  EXPECT_FALSE(window.mnuToolsLanguageEnglish.checked);
  language.mnuToolsLanguageEnglish_Click();
  EXPECT_FALSE(window.mnuToolsLanguageGreek.checked);
  EXPECT_TRUE(window.mnuToolsLanguageEnglish.checked);
}

TEST_F(LanguageTest, TheHelpFileAndTheButtonsOfBoxesFollow) {
  language.mnuToolsLanguageGreek_Click();
  EXPECT_EQ(fake.help.helpFile, u"/verlume/VerlumeGR.hlp");
  EXPECT_TRUE(fake.help.isGreek);
  EXPECT_EQ(fake.dialogs.isGreek, true);
  language.mnuToolsLanguageEnglish_Click();
  EXPECT_EQ(fake.help.helpFile, u"/verlume/VerlumeUK.hlp");
  EXPECT_FALSE(fake.help.isGreek);
  EXPECT_EQ(fake.dialogs.isGreek, false);
}

TEST_F(LanguageTest, TheChoiceIsWrittenAtEveryApplication) {
  language.ApplyLanguage();
  EXPECT_EQ(Stored(), u"0");
  language.mnuToolsLanguageGreek_Click();
  EXPECT_EQ(Stored(), u"1");
  fake.files.files.clear();
  language.mnuToolsLanguageGreek_Click();
  EXPECT_EQ(Stored(), u"1");
}

TEST_F(LanguageTest, ASwitchChangesTextsOnly) {
  window.rtbData.SetText(u"a line");
  window.rtbCommands.SetText(u"typed");
  state.IsConnected = true;
  state.History[0] = u"1";
  window.lblStatus.caption = u"Local port: 1. Waiting for an incoming call...";
  language.mnuToolsLanguageGreek_Click();
  EXPECT_EQ(window.rtbData.Text(), u"a line");
  EXPECT_EQ(window.rtbCommands.Text(), u"typed");
  EXPECT_TRUE(state.IsConnected);
  EXPECT_EQ(state.History[0], u"1");
  EXPECT_EQ(window.lblStatus.caption, u"Local port: 1. Waiting for an incoming call...");
}

TEST_F(LanguageTest, WhatIsToldOfLinesThatDidNotArriveFollows) {
  state.LinesWaiting = 2;
  state.LinesUndelivered = 3;
  language.mnuToolsLanguageGreek_Click();
  EXPECT_EQ(window.lblWaiting.caption, u"2 σε αναμονή");
  EXPECT_EQ(window.lblStatus.toolTip, u"Κατάσταση: 3 γραμμές δεν παραδόθηκαν.");
  language.mnuToolsLanguageEnglish_Click();
  EXPECT_EQ(window.lblWaiting.caption, u"2 waiting");
  EXPECT_EQ(window.lblStatus.toolTip, u"Status: 3 lines were not delivered.");
}

TEST_F(LanguageTest, TheSwitchGivesTheFocusBackToTheCommandPane) {
  language.mnuToolsLanguageGreek_Click();
  language.mnuToolsLanguageEnglish_Click();
  EXPECT_EQ(window.rtbCommands.timesFocused, 2);
}

TEST_F(LanguageTest, TheNextBoxSpeaksTheNewLanguage) {
  language.mnuToolsLanguageGreek_Click();
  fake.dialogs.answers = {Answer::No};
  errors.Report(5, u"x", Procedure::Form_Load);
  EXPECT_TRUE(fake.dialogs.messages.back().text.starts_with(u"Παρουσιάσθηκε"));
}

TEST_F(LanguageTest, AFailureIsReported) {
  fake.files.writesFail = FailureNumber::DiskFull;
  fake.dialogs.answers = {Answer::No};
  language.mnuToolsLanguageGreek_Click();
  EXPECT_EQ(Titles(), std::vector<std::u16string>{u"Verlume, 219."});
  EXPECT_EQ(window.mnuFile.caption, u"Αρχείο");
}

}  // namespace
}  // namespace verlume
