// The main window in memory. Its members have the names of the controls.
#pragma once

#include "platform/main_window.h"
#include "platform_fake/fake_choice_menu.h"
#include "platform_fake/fake_controls.h"
#include "platform_fake/fake_floating.h"
#include "platform_fake/fake_rich_text_box.h"
#include "platform_fake/fake_spell_checker.h"

namespace verlume::fake {

struct FakeMainWindow {
  explicit FakeMainWindow(FakeFileSystem& files);
  ~FakeMainWindow();

  FakeWindow window;
  FakeLayoutControl freeSizer1;
  FakeTimer tmrTimer;
  FakeMenu mnuFile;
  FakeMenuEntry mnuFileMacrosFolder;
  FakeMenuEntry mnuFileLogFolder;
  FakeMenuEntry mnuFileLogRecord;
  FakeMenuEntry mnuFileLogOpen;
  FakeMenuEntry mnuFileLogSaveAs;
  FakeMenuEntry mnuFileExit;
  FakeMenu mnuComm;
  FakeMenuEntry mnuCommWait;
  FakeMenuEntry mnuCommCall;
  FakeMenuEntry mnuCommCancel;
  FakeMenuEntry mnuCommClose;
  FakeMenuEntry mnuCommRefresh;
  FakeChoiceMenu mnuCommCallAgain;
  FakeMenuEntry mnuCommInvite;
  FakeMenuEntry mnuCommVerify;
  FakeMenuEntry mnuCommPeople;
  FakeMenuEntry mnuCommReach;
  FakeMenuEntry mnuCommAskRouter;
  FakeMenu mnuFormat;
  FakeMenuEntry mnuFormatFontBold;
  FakeMenuEntry mnuFormatFontItalics;
  FakeMenuEntry mnuFormatFontUnderline;
  FakeMenuEntry mnuFormatFontSize;
  FakeMenuEntry mnuFormatFontColor;
  FakeMenuEntry mnuFormatFontSettings;
  FakeMenuEntry mnuFormatBackcolorCommands;
  FakeMenuEntry mnuFormatBackcolorDialogue;
  FakeMenu mnuTools;
  FakeMenuEntry mnuToolsNick;
  FakeMenuEntry mnuToolsSaveMacro;
  FakeMenuEntry mnuToolsEditMacros;
  FakeMenuEntry mnuToolsFind;
  FakeMenuEntry mnuToolsCompletions;
  FakeMenuEntry mnuToolsClearDialogue;
  FakeMenuEntry mnuToolsClearCommands;
  FakeMenuEntry mnuToolsClearHistory;
  FakeMenuEntry mnuToolsDate;
  FakeMenuEntry mnuToolsTime;
  FakeMenuEntry mnuToolsAlwaysOnTop;
  FakeMenuEntry mnuToolsLanguageEnglish;
  FakeMenuEntry mnuToolsLanguageGreek;
  FakeMenu mnuAttention;
  FakeMenuEntry mnuAttentionLines;
  FakeMenuEntry mnuAttentionText;
  FakeMenuEntry mnuAttentionSound;
  FakeMenuEntry mnuAttentionCount;
  FakeMenuEntry mnuToolsCheckSpelling;
  FakeMenu mnuPrivate;
  FakeMenuEntry mnuPrivateWhenPossible;
  FakeMenuEntry mnuPrivateOnly;
  FakeMenuEntry mnuPrivateNever;
  FakeMenu mnuView;
  FakeMenuEntry mnuViewStatusPanel;
  FakeMenuEntry mnuViewZoomIn;
  FakeMenuEntry mnuViewZoomOut;
  FakeMenuEntry mnuViewZoomReset;
  FakeMenu mnuHelp;
  FakeMenuEntry mnuHelpDetailed;
  FakeMenuEntry mnuHelpAbout;
  FakeRichTextBox rtbData;
  FakeRichTextBox rtbCommands;
  FakeRichTextBox rtbRemote;
  FakePanel fraFind;
  FakeTextField txtFind;
  FakeButton cmdFindPrevious;
  FakeButton cmdFindNext;
  FakeLabel lblFindResult;
  FakeButton cmdFindClose;
  FakePanel fraCompletions;
  FakeListBox lstCompletions;
  FakePanel fraNewLines;
  FakeButton cmdNewLines;
  FakeWelcomeCard welcomeCard;
  FakeAgainBar againBar;
  FakeResendBar resendBar;
  FakeKeyBar keyBar;
  FakeRouterBar routerBar;
  FakeLabel lblHint;
  FakeSpellChecker spelling;
  FakeButton cmdSend;
  FakeCheckBox chkBold;
  FakeCheckBox chkItalics;
  FakeCheckBox chkUnderline;
  FakeLabel lblColor;
  FakeLabel lblStatus;
  FakeProgressBar prgStatus;
  FakeLabel lblWaiting;
  FakeLockLabel lblLock;
  FakePanel fraPanel;
  FakeLabel lblCurrentDateTime;
  FakeLabel lblChatStartDateTime;
  FakeLabel lblChatDuration;
  FakeLabel lblLocalIP;
  FakeLabel lblLocalPort;
  FakeLabel lblLocalNickname;
  FakeLabel lblRemoteIP;
  FakeLabel lblRemotePort;
  FakeLabel lblRemoteNickname;
  FakeLabel lblBytesSent;
  FakeLabel lblBytesReceived;
  FakeLabel lblCurrentDateTimeCaption;
  FakeLabel lblChatStartDateTimeCaption;
  FakeLabel lblChatDurationCaption;
  FakeLabel lblLocalPortCaption;
  FakeLabel lblLocalNicknameCaption;
  FakeLabel lblRemotePortCaption;
  FakeLabel lblRemoteNicknameCaption;
  FakeLabel lblBytesSentCaption;
  FakeLabel lblBytesReceivedCaption;
  FakeControl<Control> picShape;
  FakeLamp shpStatus;
  FakeLabel lblCopyright;
  FakePicture picCopyright;

  // The logic's view of the window.
  MainWindow frmMain;
};

}  // namespace verlume::fake
