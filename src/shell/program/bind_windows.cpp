// What the windows and the menus raise.
#include <utility>

#include "shell/program/bind_event.h"
#include "shell/program/program.h"

namespace verlume {

void Program::BindWindow() {
  MainWindow& frmMain = platform_.frmMain;
  On(frmMain.window.onQueryUnload, shutDown_, &ShutDown::Form_QueryUnload);
  On(frmMain.window.onUnload, shutDown_, &ShutDown::Form_Unload);
  frmMain.freeSizer1.onPostLayout = [this] {
    startUp_.freeSizer1_PostLayout();
    Do(std::exchange(task_, {}));
  };
  frmMain.tmrTimer.onTimer = [this] {
    statusPanel_.tmrTimer_Timer();
    socketEvents_.tmrTimer_Timer();
    alerts_.tmrTimer_Timer();
    reachList_.Refresh();
  };
}

void Program::BindAbout() {
  MainWindow& frmMain = platform_.frmMain;
  On(frmMain.mnuHelpAbout.onClick, aboutBox_, &AboutBox::mnuHelpAbout_Click);
  On(frmMain.lblCopyright.onMouseDown, aboutBox_, &AboutBox::lblCopyright_MouseDown);
  On(frmMain.picCopyright.onMouseDown, aboutBox_, &AboutBox::lblCopyright_MouseDown);
  const AboutWindow& frmAbout = platform_.frmAbout;
  On(frmAbout.cmdOK.onClick, aboutBox_, &AboutBox::cmdOK_Click);
  On(frmAbout.cmdSysInfo.onClick, aboutBox_, &AboutBox::cmdSysInfo_Click);
  BindContextHelp({&frmAbout.lblTitle, &frmAbout.lblVersion, &frmAbout.lblDescription,
                   &frmAbout.lblDisclaimer, &frmAbout.lblCredit, &frmAbout.picIcon, &frmAbout.cmdOK,
                   &frmAbout.cmdSysInfo});
}

void Program::BindMacros() {
  const MainWindow& frmMain = platform_.frmMain;
  On(frmMain.mnuFileMacrosFolder.onClick, macroStore_, &MacroStore::ChooseMacrosFolder);
  On(frmMain.mnuToolsSaveMacro.onClick, macroSaving_, &MacroSaving::SaveCommandPaneAsMacro);
  On(frmMain.mnuToolsEditMacros.onClick, macroEditor_, &MacroEditor::OpenMacroEditor);

  const MacroWindow& frmMacros = platform_.frmMacros;
  On(frmMacros.window.onQueryUnload, macroEditor_, &MacroEditor::Form_QueryUnload);
  On(frmMacros.lstMacroNames.onClick, macroEditor_, &MacroEditor::lstMacroNames_Click);
  On(frmMacros.rtbMacroText.onGotFocus, macroEditor_, &MacroEditor::rtbMacroText_GotFocus);
  On(frmMacros.rtbMacroText.onKeyDown, macroEditor_, &MacroEditor::rtbMacroText_KeyDown);
  On(frmMacros.rtbMacroText.onKeyPress, macroStyle_, &MacroStyle::rtbMacroText_KeyPress);
  On(frmMacros.rtbMacroText.onSelChange, macroStyle_, &MacroStyle::rtbMacroText_SelChange);
  On(frmMacros.cmdAdd.onClick, macroEditor_, &MacroEditor::cmdAdd_Click);
  On(frmMacros.cmdEdit.onClick, macroEditor_, &MacroEditor::cmdEdit_Click);
  On(frmMacros.cmdSave.onClick, macroEditor_, &MacroEditor::cmdSave_Click);
  On(frmMacros.cmdSaveAs.onClick, macroEditor_, &MacroEditor::cmdSaveAs_Click);
  On(frmMacros.cmdCancel.onClick, macroEditor_, &MacroEditor::cmdCancel_Click);
  On(frmMacros.cmdDelete.onClick, macroEditor_, &MacroEditor::cmdDelete_Click);
  On(frmMacros.cmdRun.onClick, macroEditor_, &MacroEditor::cmdRun_Click);
  On(frmMacros.cmdClose.onClick, macroEditor_, &MacroEditor::cmdClose_Click);
  On(frmMacros.chkBold.onClick, macroStyle_, &MacroStyle::chkBold_Click);
  On(frmMacros.chkItalics.onClick, macroStyle_, &MacroStyle::chkItalics_Click);
  On(frmMacros.chkUnderlined.onClick, macroStyle_, &MacroStyle::chkUnderlined_Click);
  On(frmMacros.lblColour.onMouseDown, macroStyle_, &MacroStyle::lblColour_MouseDown);
  BindContextHelp({&frmMacros.chkBold, &frmMacros.chkItalics, &frmMacros.chkUnderlined,
                   &frmMacros.lblColour, &frmMacros.lstMacroNames, &frmMacros.cmdAdd,
                   &frmMacros.cmdEdit, &frmMacros.cmdSave, &frmMacros.cmdSaveAs,
                   &frmMacros.cmdCancel, &frmMacros.cmdDelete, &frmMacros.cmdRun,
                   &frmMacros.cmdClose});
}

void Program::BindMenus() {
  MainWindow& frmMain = platform_.frmMain;
  On(frmMain.mnuFileLogFolder.onClick, log_, &DialogueLog::mnuFileLogFolder_Click);
  On(frmMain.mnuFileLogRecord.onClick, log_, &DialogueLog::mnuFileLogRecord_Click);
  On(frmMain.mnuFileLogOpen.onClick, dialogueFiles_, &DialogueFiles::mnuFileLogOpen_Click);
  On(frmMain.mnuFileLogSaveAs.onClick, dialogueFiles_, &DialogueFiles::mnuFileLogSaveAs_Click);
  On(frmMain.mnuFileExit.onClick, shutDown_, &ShutDown::mnuFileExit_Click);

  On(frmMain.mnuCommWait.onClick, connection_, &ConnectionActions::mnuCommWait_Click);
  On(frmMain.mnuCommCall.onClick, connection_, &ConnectionActions::mnuCommCall_Click);
  On(frmMain.mnuCommCancel.onClick, connection_, &ConnectionActions::mnuCommCancel_Click);
  On(frmMain.mnuCommClose.onClick, connection_, &ConnectionActions::mnuCommClose_Click);
  On(frmMain.mnuCommRefresh.onClick, connection_, &ConnectionActions::mnuCommRefresh_Click);
  On(frmMain.mnuCommCallAgain.onChoose, connection_, &ConnectionActions::mnuCommCallAgain_Choose);
  On(frmMain.mnuCommCallAgain.onLast, connection_, &ConnectionActions::mnuCommCallAgain_Last);

  On(frmMain.mnuFormatFontBold.onClick, textFormat_, &TextFormat::mnuFormatFontBold_Click);
  On(frmMain.mnuFormatFontItalics.onClick, textFormat_, &TextFormat::mnuFormatFontItalics_Click);
  On(frmMain.mnuFormatFontUnderline.onClick, textFormat_,
     &TextFormat::mnuFormatFontUnderline_Click);
  On(frmMain.mnuFormatFontSize.onClick, textFormat_, &TextFormat::mnuFormatFontSize_Click);
  On(frmMain.mnuFormatFontColor.onClick, textFormat_, &TextFormat::mnuFormatFontColor_Click);
  On(frmMain.mnuFormatFontSettings.onClick, textFormat_, &TextFormat::mnuFormatFontSettings_Click);
  On(frmMain.mnuFormatBackcolorCommands.onClick, textFormat_,
     &TextFormat::mnuFormatBackcolorCommands_Click);
  On(frmMain.mnuFormatBackcolorDialogue.onClick, textFormat_,
     &TextFormat::mnuFormatBackcolorDialogue_Click);

  On(frmMain.mnuToolsNick.onClick, connection_, &ConnectionActions::mnuToolsNick_Click);
  On(frmMain.mnuToolsFind.onClick, find_, &FindInDialogue::mnuToolsFind_Click);
  On(frmMain.mnuToolsCompletions.onClick, completion_,
     &CommandCompletion::mnuToolsCompletions_Click);
  On(frmMain.mnuToolsClearDialogue.onClick, dialogue_, &Dialogue::mnuToolsClearDialogue_Click);
  On(frmMain.mnuToolsClearCommands.onClick, history_, &CommandHistory::mnuToolsClearCommands_Click);
  On(frmMain.mnuToolsClearHistory.onClick, history_, &CommandHistory::mnuToolsClearHistory_Click);
  On(frmMain.mnuToolsDate.onClick, dialogue_, &Dialogue::mnuToolsDate_Click);
  On(frmMain.mnuToolsTime.onClick, dialogue_, &Dialogue::mnuToolsTime_Click);
  On(frmMain.mnuToolsAlwaysOnTop.onClick, windowBehaviour_,
     &WindowBehaviour::mnuToolsAlwaysOnTop_Click);
  On(frmMain.mnuToolsLanguageEnglish.onClick, language_, &Language::mnuToolsLanguageEnglish_Click);
  On(frmMain.mnuToolsLanguageGreek.onClick, language_, &Language::mnuToolsLanguageGreek_Click);
  On(frmMain.mnuToolsCheckSpelling.onClick, spelling_, &SpellCheck::mnuToolsCheckSpelling_Click);

  On(frmMain.mnuViewStatusPanel.onClick, view_, &View::mnuViewStatusPanel_Click);
  On(frmMain.mnuViewZoomIn.onClick, view_, &View::mnuViewZoomIn_Click);
  On(frmMain.mnuViewZoomOut.onClick, view_, &View::mnuViewZoomOut_Click);
  On(frmMain.mnuViewZoomReset.onClick, view_, &View::mnuViewZoomReset_Click);
  On(frmMain.rtbData.onZoom, view_, &View::ZoomBy);
  On(frmMain.rtbCommands.onZoom, view_, &View::ZoomBy);
  view_.ShowState();

  On(frmMain.mnuHelpDetailed.onClick, help_, &Help::mnuHelpDetailed_Click);
}

}  // namespace verlume
