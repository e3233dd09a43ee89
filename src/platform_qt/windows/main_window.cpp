#include "platform_qt/windows/main_window.h"

namespace verlume::qt {

QtMainWindow::QtMainWindow(FileSystem& files)
    : rtbData(form_.centralWidget(), files, Lines::Many),
      rtbCommands(form_.centralWidget(), files, Lines::Single),
      rtbRemote(form_.centralWidget(), files, Lines::Many),
      view_{
          .window = window,
          .freeSizer1 = freeSizer1,
          .tmrTimer = tmrTimer,
          .mnuFile = mnuFile,
          .mnuFileMacrosFolder = mnuFileMacrosFolder,
          .mnuFileLogFolder = mnuFileLogFolder,
          .mnuFileLogRecord = mnuFileLogRecord,
          .mnuFileLogOpen = mnuFileLogOpen,
          .mnuFileLogSaveAs = mnuFileLogSaveAs,
          .mnuFileExit = mnuFileExit,
          .mnuComm = mnuComm,
          .mnuCommWait = mnuCommWait,
          .mnuCommCall = mnuCommCall,
          .mnuCommCancel = mnuCommCancel,
          .mnuCommClose = mnuCommClose,
          .mnuCommRefresh = mnuCommRefresh,
          .mnuFormat = mnuFormat,
          .mnuFormatFontBold = mnuFormatFontBold,
          .mnuFormatFontItalics = mnuFormatFontItalics,
          .mnuFormatFontUnderline = mnuFormatFontUnderline,
          .mnuFormatFontSize = mnuFormatFontSize,
          .mnuFormatFontColor = mnuFormatFontColor,
          .mnuFormatFontSettings = mnuFormatFontSettings,
          .mnuFormatBackcolorCommands = mnuFormatBackcolorCommands,
          .mnuFormatBackcolorDialogue = mnuFormatBackcolorDialogue,
          .mnuTools = mnuTools,
          .mnuToolsNick = mnuToolsNick,
          .mnuToolsSaveMacro = mnuToolsSaveMacro,
          .mnuToolsEditMacros = mnuToolsEditMacros,
          .mnuToolsFind = mnuToolsFind,
          .mnuToolsCompletions = mnuToolsCompletions,
          .mnuToolsClearDialogue = mnuToolsClearDialogue,
          .mnuToolsClearCommands = mnuToolsClearCommands,
          .mnuToolsClearHistory = mnuToolsClearHistory,
          .mnuToolsDate = mnuToolsDate,
          .mnuToolsTime = mnuToolsTime,
          .mnuToolsAlwaysOnTop = mnuToolsAlwaysOnTop,
          .mnuToolsLanguageEnglish = mnuToolsLanguageEnglish,
          .mnuToolsLanguageGreek = mnuToolsLanguageGreek,
          .mnuHelp = mnuHelp,
          .mnuHelpDetailed = mnuHelpDetailed,
          .mnuHelpAbout = mnuHelpAbout,
          .rtbData = rtbData,
          .rtbCommands = rtbCommands,
          .rtbRemote = rtbRemote,
          .findBar = {.fraFind = fraFind,
                      .txtFind = txtFind,
                      .cmdFindPrevious = cmdFindPrevious,
                      .cmdFindNext = cmdFindNext,
                      .lblFindResult = lblFindResult,
                      .cmdFindClose = cmdFindClose},
          .completionList = {.fraCompletions = fraCompletions, .lstCompletions = lstCompletions},
          .chkBold = chkBold,
          .chkItalics = chkItalics,
          .chkUnderline = chkUnderline,
          .lblColor = lblColor,
          .lblStatus = lblStatus,
          .prgStatus = prgStatus,
          .lblWaiting = lblWaiting,
          .lblCurrentDateTime = lblCurrentDateTime,
          .lblChatStartDateTime = lblChatStartDateTime,
          .lblChatDuration = lblChatDuration,
          .lblLocalIP = lblLocalIP,
          .lblLocalPort = lblLocalPort,
          .lblLocalNickname = lblLocalNickname,
          .lblRemoteIP = lblRemoteIP,
          .lblRemotePort = lblRemotePort,
          .lblRemoteNickname = lblRemoteNickname,
          .lblBytesSent = lblBytesSent,
          .lblBytesReceived = lblBytesReceived,
          .lblCurrentDateTimeCaption = lblCurrentDateTimeCaption,
          .lblChatStartDateTimeCaption = lblChatStartDateTimeCaption,
          .lblChatDurationCaption = lblChatDurationCaption,
          .lblLocalIPCaption = lblLocalIPCaption,
          .lblLocalPortCaption = lblLocalPortCaption,
          .lblLocalNicknameCaption = lblLocalNicknameCaption,
          .lblRemoteIPCaption = lblRemoteIPCaption,
          .lblRemotePortCaption = lblRemotePortCaption,
          .lblRemoteNicknameCaption = lblRemoteNicknameCaption,
          .lblBytesSentCaption = lblBytesSentCaption,
          .lblBytesReceivedCaption = lblBytesReceivedCaption,
          .picShape = picShape,
          .shpStatus = shpStatus,
          .lblCopyright = lblCopyright,
          .picCopyright = picCopyright,
      } {
  form_.PlacePane(rtbData.widget(), "rtbData");
  form_.PlaceFindBar(rtbData.widget());
  form_.PlacePane(rtbCommands.widget(), "rtbCommands");
  form_.PlaceCompletionList(rtbCommands.widget());
  rtbRemote.widget()->setObjectName(QStringLiteral("rtbRemote"));
  rtbRemote.widget()->hide();
  rtbData.SetLocked(true);
  QFont strong;
  strong.setWeight(QFont::DemiBold);
  lblStatus.widget()->setFont(strong);
  // Tab follows the reading order, and starts at the command pane.
  QWidget::setTabOrder(rtbCommands.widget(), chkBold.widget());
  QWidget::setTabOrder(chkBold.widget(), chkItalics.widget());
  QWidget::setTabOrder(chkItalics.widget(), chkUnderline.widget());
  QWidget::setTabOrder(chkUnderline.widget(), rtbData.widget());
  QWidget::setTabOrder(rtbData.widget(), txtFind.widget());
  QWidget::setTabOrder(txtFind.widget(), cmdFindPrevious.widget());
  QWidget::setTabOrder(cmdFindPrevious.widget(), cmdFindNext.widget());
  QWidget::setTabOrder(cmdFindNext.widget(), cmdFindClose.widget());
  rtbCommands.widget()->setFocus();
}

}  // namespace verlume::qt
