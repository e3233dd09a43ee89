// The main window, frmMain, as the logic sees it: references to its controls, by name.
#pragma once

#include "platform/control.h"
#include "platform/rich_text_box.h"
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

// The list shown over the window, below the command pane. It never takes the keyboard focus.
struct CompletionList {
  Panel& fraCompletions;  // with the list in it
  ListBox& lstCompletions;
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

  Menu& mnuHelp;
  MenuEntry& mnuHelpDetailed;
  MenuEntry& mnuHelpAbout;

  RichTextBox& rtbData;      // the dialogue pane
  RichTextBox& rtbCommands;  // the command pane
  RichTextBox& rtbRemote;    // hidden, and without a task of its own
  FindBar findBar;
  CompletionList completionList;

  CheckBox& chkBold;
  CheckBox& chkItalics;
  CheckBox& chkUnderline;
  Label& lblColor;

  // The values of the status panel, each with its caption.
  Label& lblStatus;
  ProgressBar& prgStatus;  // at the bottom of lblStatus
  Label& lblWaiting;       // how many lines have not arrived yet
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
  Label& lblLocalIPCaption;
  Label& lblLocalPortCaption;
  Label& lblLocalNicknameCaption;
  Label& lblRemoteIPCaption;
  Label& lblRemotePortCaption;
  Label& lblRemoteNicknameCaption;
  Label& lblBytesSentCaption;
  Label& lblBytesReceivedCaption;

  Control& picShape;  // the frame that holds the lamp
  Lamp& shpStatus;
  Label& lblCopyright;
  Picture& picCopyright;
};

}  // namespace verlume
