// The main window, frmMain, as the logic sees it: references to its controls, by name.
#pragma once

#include "platform/choice_menu.h"
#include "platform/control.h"
#include "platform/floating.h"
#include "platform/lock_label.h"
#include "platform/rich_text_box.h"
#include "platform/spell_checker.h"
#include "platform/window.h"

namespace verlume {

// The bar below the dialogue pane for finding text in it. Its keys: Enter in the text field and F3
// anywhere in the window press cmdFindNext, with Shift cmdFindPrevious; Escape in the bar presses
// cmdFindClose.
struct FindBar {
  Panel& fraFind;
  TextField& txtFind;
  Button& cmdFindPrevious;
  Button& cmdFindNext;
  Label& lblFindResult;
  Button& cmdFindClose;
};

// The list shown over the window, beside the command pane. It never takes the keyboard focus. Its
// items have three columns, with a tab between two: a word, which is never cut, and what goes with
// it.
struct CompletionList {
  Panel& fraCompletions;  // with the list in it
  ListBox& lstCompletions;
};

// The button over the lower edge of the dialogue pane: lines have come below.
struct NewLinesButton {
  Panel& fraNewLines;  // with the button in it
  Button& cmdNewLines;
};

// The menu Tools > Attention.
struct AttentionMenu {
  Menu& mnuAttention;
  MenuEntry& mnuAttentionLines;
  MenuEntry& mnuAttentionText;
  MenuEntry& mnuAttentionSound;
  MenuEntry& mnuAttentionCount;
};

// The menu Tools > Private conversations, of which one entry has a tick.
struct PrivateMenu {
  Menu& mnuPrivate;
  MenuEntry& mnuPrivateWhenPossible;
  MenuEntry& mnuPrivateOnly;
  MenuEntry& mnuPrivateNever;
};

struct MainWindow {
  Window& window;
  LayoutControl& freeSizer1;
  Timer& tmrTimer;

  Menu& mnuFile;
  MenuEntry& mnuFileMacrosFolder;
  MenuEntry& mnuFileLogFolder;
  MenuEntry& mnuFileLogRecord;
  MenuEntry& mnuFileLogOpen;
  MenuEntry& mnuFileLogSaveAs;
  MenuEntry& mnuFileExit;

  Menu& mnuComm;
  MenuEntry& mnuCommWait;
  MenuEntry& mnuCommCall;
  MenuEntry& mnuCommCancel;
  MenuEntry& mnuCommClose;
  MenuEntry& mnuCommRefresh;
  ChoiceMenu& mnuCommCallAgain;
  MenuEntry& mnuCommInvite;
  MenuEntry& mnuCommVerify;
  MenuEntry& mnuCommPeople;
  MenuEntry& mnuCommReach;
  MenuEntry& mnuCommAskRouter;

  Menu& mnuFormat;
  MenuEntry& mnuFormatFontBold;
  MenuEntry& mnuFormatFontItalics;
  MenuEntry& mnuFormatFontUnderline;
  MenuEntry& mnuFormatFontSize;
  MenuEntry& mnuFormatFontColor;
  MenuEntry& mnuFormatFontSettings;
  MenuEntry& mnuFormatBackcolorCommands;
  MenuEntry& mnuFormatBackcolorDialogue;

  Menu& mnuTools;
  MenuEntry& mnuToolsNick;
  MenuEntry& mnuToolsSaveMacro;
  MenuEntry& mnuToolsEditMacros;
  MenuEntry& mnuToolsFind;
  MenuEntry& mnuToolsCompletions;
  MenuEntry& mnuToolsClearDialogue;
  MenuEntry& mnuToolsClearCommands;
  MenuEntry& mnuToolsClearHistory;
  MenuEntry& mnuToolsDate;
  MenuEntry& mnuToolsTime;
  MenuEntry& mnuToolsAlwaysOnTop;
  MenuEntry& mnuToolsLanguageEnglish;
  MenuEntry& mnuToolsLanguageGreek;
  AttentionMenu attentionMenu;
  MenuEntry& mnuToolsCheckSpelling;
  PrivateMenu privateMenu;

  Menu& mnuView;
  MenuEntry& mnuViewStatusPanel;
  MenuEntry& mnuViewZoomIn;
  MenuEntry& mnuViewZoomOut;
  MenuEntry& mnuViewZoomReset;

  Menu& mnuHelp;
  MenuEntry& mnuHelpDetailed;
  MenuEntry& mnuHelpAbout;

  RichTextBox& rtbData;      // the dialogue pane
  RichTextBox& rtbCommands;  // the command pane
  RichTextBox& rtbRemote;    // hidden, and without a task of its own
  FindBar findBar;
  CompletionList completionList;
  NewLinesButton newLines;
  WelcomeCard welcomeCard;
  AgainBar againBar;
  ResendBar resendBar;
  KeyBar keyBar;
  RouterBar routerBar;
  // Floats beside the command pane while it has a caption, and is then the pane's description.
  Label& lblHint;
  SpellChecker& spelling;  // of the command pane

  Button& cmdSend;  // does what Enter does in the command pane
  CheckBox& chkBold;
  CheckBox& chkItalics;
  CheckBox& chkUnderline;
  Label& lblColor;

  Label& lblStatus;
  ProgressBar& prgStatus;  // at the bottom of lblStatus
  Label& lblWaiting;       // how many lines have not arrived yet
  LockLabel& lblLock;

  // The values of the status panel, which can be hidden, and their captions.
  Panel& fraPanel;
  Label& lblCurrentDateTime;
  Label& lblChatStartDateTime;
  Label& lblChatDuration;
  Label& lblLocalIP;
  Label& lblLocalPort;
  Label& lblLocalNickname;
  Label& lblRemoteIP;
  Label& lblRemotePort;
  Label& lblRemoteNickname;
  Label& lblBytesSent;
  Label& lblBytesReceived;
  Label& lblCurrentDateTimeCaption;
  Label& lblChatStartDateTimeCaption;
  Label& lblChatDurationCaption;
  Label& lblLocalPortCaption;
  Label& lblLocalNicknameCaption;
  Label& lblRemotePortCaption;
  Label& lblRemoteNicknameCaption;
  Label& lblBytesSentCaption;
  Label& lblBytesReceivedCaption;

  Control& picShape;  // the frame that holds the lamp
  Lamp& shpStatus;
  Label& lblCopyright;
  Picture& picCopyright;
};

// The window of an object whose members are the controls, under their names.
template <class Controls>
MainWindow MainWindowOf(Controls& controls) {
  return {
      .window = controls.window,
      .freeSizer1 = controls.freeSizer1,
      .tmrTimer = controls.tmrTimer,
      .mnuFile = controls.mnuFile,
      .mnuFileMacrosFolder = controls.mnuFileMacrosFolder,
      .mnuFileLogFolder = controls.mnuFileLogFolder,
      .mnuFileLogRecord = controls.mnuFileLogRecord,
      .mnuFileLogOpen = controls.mnuFileLogOpen,
      .mnuFileLogSaveAs = controls.mnuFileLogSaveAs,
      .mnuFileExit = controls.mnuFileExit,
      .mnuComm = controls.mnuComm,
      .mnuCommWait = controls.mnuCommWait,
      .mnuCommCall = controls.mnuCommCall,
      .mnuCommCancel = controls.mnuCommCancel,
      .mnuCommClose = controls.mnuCommClose,
      .mnuCommRefresh = controls.mnuCommRefresh,
      .mnuCommCallAgain = controls.mnuCommCallAgain,
      .mnuCommInvite = controls.mnuCommInvite,
      .mnuCommVerify = controls.mnuCommVerify,
      .mnuCommPeople = controls.mnuCommPeople,
      .mnuCommReach = controls.mnuCommReach,
      .mnuCommAskRouter = controls.mnuCommAskRouter,
      .mnuFormat = controls.mnuFormat,
      .mnuFormatFontBold = controls.mnuFormatFontBold,
      .mnuFormatFontItalics = controls.mnuFormatFontItalics,
      .mnuFormatFontUnderline = controls.mnuFormatFontUnderline,
      .mnuFormatFontSize = controls.mnuFormatFontSize,
      .mnuFormatFontColor = controls.mnuFormatFontColor,
      .mnuFormatFontSettings = controls.mnuFormatFontSettings,
      .mnuFormatBackcolorCommands = controls.mnuFormatBackcolorCommands,
      .mnuFormatBackcolorDialogue = controls.mnuFormatBackcolorDialogue,
      .mnuTools = controls.mnuTools,
      .mnuToolsNick = controls.mnuToolsNick,
      .mnuToolsSaveMacro = controls.mnuToolsSaveMacro,
      .mnuToolsEditMacros = controls.mnuToolsEditMacros,
      .mnuToolsFind = controls.mnuToolsFind,
      .mnuToolsCompletions = controls.mnuToolsCompletions,
      .mnuToolsClearDialogue = controls.mnuToolsClearDialogue,
      .mnuToolsClearCommands = controls.mnuToolsClearCommands,
      .mnuToolsClearHistory = controls.mnuToolsClearHistory,
      .mnuToolsDate = controls.mnuToolsDate,
      .mnuToolsTime = controls.mnuToolsTime,
      .mnuToolsAlwaysOnTop = controls.mnuToolsAlwaysOnTop,
      .mnuToolsLanguageEnglish = controls.mnuToolsLanguageEnglish,
      .mnuToolsLanguageGreek = controls.mnuToolsLanguageGreek,
      .attentionMenu = {.mnuAttention = controls.mnuAttention,
                        .mnuAttentionLines = controls.mnuAttentionLines,
                        .mnuAttentionText = controls.mnuAttentionText,
                        .mnuAttentionSound = controls.mnuAttentionSound,
                        .mnuAttentionCount = controls.mnuAttentionCount},
      .mnuToolsCheckSpelling = controls.mnuToolsCheckSpelling,
      .privateMenu = {.mnuPrivate = controls.mnuPrivate,
                      .mnuPrivateWhenPossible = controls.mnuPrivateWhenPossible,
                      .mnuPrivateOnly = controls.mnuPrivateOnly,
                      .mnuPrivateNever = controls.mnuPrivateNever},
      .mnuView = controls.mnuView,
      .mnuViewStatusPanel = controls.mnuViewStatusPanel,
      .mnuViewZoomIn = controls.mnuViewZoomIn,
      .mnuViewZoomOut = controls.mnuViewZoomOut,
      .mnuViewZoomReset = controls.mnuViewZoomReset,
      .mnuHelp = controls.mnuHelp,
      .mnuHelpDetailed = controls.mnuHelpDetailed,
      .mnuHelpAbout = controls.mnuHelpAbout,
      .rtbData = controls.rtbData,
      .rtbCommands = controls.rtbCommands,
      .rtbRemote = controls.rtbRemote,
      .findBar = {.fraFind = controls.fraFind,
                  .txtFind = controls.txtFind,
                  .cmdFindPrevious = controls.cmdFindPrevious,
                  .cmdFindNext = controls.cmdFindNext,
                  .lblFindResult = controls.lblFindResult,
                  .cmdFindClose = controls.cmdFindClose},
      .completionList = {.fraCompletions = controls.fraCompletions,
                         .lstCompletions = controls.lstCompletions},
      .newLines = {.fraNewLines = controls.fraNewLines, .cmdNewLines = controls.cmdNewLines},
      .welcomeCard = controls.welcomeCard.View(),
      .againBar = controls.againBar.View(),
      .resendBar = controls.resendBar.View(),
      .keyBar = controls.keyBar.View(),
      .routerBar = controls.routerBar.View(),
      .lblHint = controls.lblHint,
      .spelling = controls.spelling,
      .cmdSend = controls.cmdSend,
      .chkBold = controls.chkBold,
      .chkItalics = controls.chkItalics,
      .chkUnderline = controls.chkUnderline,
      .lblColor = controls.lblColor,
      .lblStatus = controls.lblStatus,
      .prgStatus = controls.prgStatus,
      .lblWaiting = controls.lblWaiting,
      .lblLock = controls.lblLock,
      .fraPanel = controls.fraPanel,
      .lblCurrentDateTime = controls.lblCurrentDateTime,
      .lblChatStartDateTime = controls.lblChatStartDateTime,
      .lblChatDuration = controls.lblChatDuration,
      .lblLocalIP = controls.lblLocalIP,
      .lblLocalPort = controls.lblLocalPort,
      .lblLocalNickname = controls.lblLocalNickname,
      .lblRemoteIP = controls.lblRemoteIP,
      .lblRemotePort = controls.lblRemotePort,
      .lblRemoteNickname = controls.lblRemoteNickname,
      .lblBytesSent = controls.lblBytesSent,
      .lblBytesReceived = controls.lblBytesReceived,
      .lblCurrentDateTimeCaption = controls.lblCurrentDateTimeCaption,
      .lblChatStartDateTimeCaption = controls.lblChatStartDateTimeCaption,
      .lblChatDurationCaption = controls.lblChatDurationCaption,
      .lblLocalPortCaption = controls.lblLocalPortCaption,
      .lblLocalNicknameCaption = controls.lblLocalNicknameCaption,
      .lblRemotePortCaption = controls.lblRemotePortCaption,
      .lblRemoteNicknameCaption = controls.lblRemoteNicknameCaption,
      .lblBytesSentCaption = controls.lblBytesSentCaption,
      .lblBytesReceivedCaption = controls.lblBytesReceivedCaption,
      .picShape = controls.picShape,
      .shpStatus = controls.shpStatus,
      .lblCopyright = controls.lblCopyright,
      .picCopyright = controls.picCopyright,
  };
}

}  // namespace verlume
