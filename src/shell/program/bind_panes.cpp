// What the panes and what floats over them raise.
#include "platform/char_code.h"
#include "shell/program/bind_event.h"
#include "shell/program/program.h"
#include "shell/welcome_card.h"

namespace verlume {

void Program::BindPanes() {
  MainWindow& frmMain = platform_.frmMain;
  NewLines& newLines = dialogue_.WhatIsNew();
  On(frmMain.rtbData.onEndShown, newLines, &NewLines::rtbData_EndShown);
  On(frmMain.newLines.cmdNewLines.onClick, newLines, &NewLines::cmdNewLines_Click);
  On(frmMain.window.onActivated, newLines, &NewLines::window_Activated);
  On(frmMain.rtbData.onNearlyFull, dialogue_, &Dialogue::rtbData_NearlyFull);
  frmMain.rtbData.onChange = [this] { ShowWelcomeCard(state_, platform_); };
  On(frmMain.rtbData.onLoadProgress, dialogueFiles_, &DialogueFiles::rtbData_LoadProgress);
  On(frmMain.rtbData.onLink, links_, &DialogueLinks::rtbData_Link);
  frmMain.rtbData.onContextMenu = [this](std::size_t position) {
    return dialogueMenu_.rtbData_ContextMenu(position);
  };
  frmMain.rtbCommands.onKeyPress = [this](int& charCode) {
    dialogueMenu_.rtbCommands_KeyPress(charCode);
    interpreter_.rtbCommands_KeyPress(charCode);
  };
  On(frmMain.cmdSend.onClick, interpreter_, &CommandInterpreter::cmdSend_Click);
  frmMain.rtbCommands.onKeyDown = [this](int& keyCode, int shift) {
    dialogue_.WhatIsNew().rtbCommands_KeyDown(keyCode, shift);
    completion_.rtbCommands_KeyDown(keyCode, shift);
    if (keyCode != char_code::kSwallowed) history_.rtbCommands_KeyDown(keyCode, shift);
  };
  On(frmMain.spelling.onAddWord, spelling_, &SpellCheck::AddWord);
  On(frmMain.rtbCommands.onChange, completion_, &CommandCompletion::rtbCommands_Change);
  On(frmMain.rtbCommands.onGotFocus, completion_, &CommandCompletion::rtbCommands_GotFocus);
  On(frmMain.rtbCommands.onLostFocus, completion_, &CommandCompletion::rtbCommands_LostFocus);
  On(frmMain.completionList.lstCompletions.onClick, completion_,
     &CommandCompletion::lstCompletions_Click);
  On(frmMain.rtbCommands.onSelChange, textFormat_, &TextFormat::rtbCommands_SelChange);
  On(frmMain.chkBold.onClick, textFormat_, &TextFormat::chkBold_Click);
  On(frmMain.chkItalics.onClick, textFormat_, &TextFormat::chkItalics_Click);
  On(frmMain.chkUnderline.onClick, textFormat_, &TextFormat::chkUnderline_Click);
  On(frmMain.lblColor.onMouseDown, textFormat_, &TextFormat::lblColor_MouseDown);
}

void Program::BindFindBar() {
  FindBar& bar = platform_.frmMain.findBar;
  On(bar.txtFind.onChange, find_, &FindInDialogue::txtFind_Change);
  On(bar.cmdFindPrevious.onClick, find_, &FindInDialogue::cmdFindPrevious_Click);
  On(bar.cmdFindNext.onClick, find_, &FindInDialogue::cmdFindNext_Click);
  On(bar.cmdFindClose.onClick, find_, &FindInDialogue::cmdFindClose_Click);
  On(platform_.frmMain.rtbData.onLinesRemoved, find_, &FindInDialogue::rtbData_LinesRemoved);
}

void Program::BindFloating() {
  const MainWindow& frmMain = platform_.frmMain;
  const WelcomeCard& card = frmMain.welcomeCard;
  const auto click = [](MenuEntry& entry) { return [&entry] { entry.Click(); }; };
  card.cmdCardWait.onClick = click(frmMain.mnuCommWait);
  card.cmdCardCall.onClick = click(frmMain.mnuCommCall);
  card.cmdCardHelp.onClick = click(frmMain.mnuHelpDetailed);
  On(frmMain.againBar.cmdAgain.onClick, connection_, &ConnectionActions::cmdAgain_Click);
  On(frmMain.againBar.cmdAgainClose.onClick, connection_, &ConnectionActions::cmdAgainClose_Click);
  const ResendBar& resend = frmMain.resendBar;
  On(resend.cmdResend.onClick, resend_, &Resend::cmdResend_Click);
  On(resend.cmdResendDrop.onClick, resend_, &Resend::cmdResendDrop_Click);
  On(resend.cmdResendClose.onClick, resend_, &Resend::cmdResendClose_Click);
}

}  // namespace verlume
