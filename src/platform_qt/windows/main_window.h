// frmMain, implemented with Qt. Each widget has the name of its control.
#pragma once

#include "platform/main_window.h"
#include "platform_qt/controls/choice_menu.h"
#include "platform_qt/controls/controls.h"
#include "platform_qt/controls/list_box.h"
#include "platform_qt/spelling/spell_checker.h"
#include "platform_qt/text/rich_text_box.h"
#include "platform_qt/windows/again_bar.h"
#include "platform_qt/windows/find_bar.h"
#include "platform_qt/windows/key_bar.h"
#include "platform_qt/windows/main_window_form.h"
#include "platform_qt/windows/resend_bar.h"
#include "platform_qt/windows/router_bar.h"
#include "platform_qt/windows/welcome_card.h"
#include "platform_qt/windows/window.h"

namespace verlume::qt {

class QtMainWindow {
 public:
  // The panes load and save through `files`, which must outlive the window.
  explicit QtMainWindow(FileSystem& files);

  MainWindow& View() { return view_; }
  MainForm& form() { return form_; }
  QtRichTextBox& DialoguePane() { return rtbData; }

 private:
  friend MainWindow verlume::MainWindowOf<QtMainWindow>(QtMainWindow& controls);

  MainForm form_;

  QtWindow window{&form_};
  QtLayoutControl freeSizer1{&form_};
  QtTimer tmrTimer{&form_};

  QtMenu mnuFile{form_.Find<QMenu>("mnuFile")};
  QtMenuEntry mnuFileMacrosFolder{form_.Find<QAction>("mnuFileMacrosFolder")};
  QtMenuEntry mnuFileLogFolder{form_.Find<QAction>("mnuFileLogFolder")};
  QtMenuEntry mnuFileLogRecord{form_.Find<QAction>("mnuFileLogRecord")};
  QtMenuEntry mnuFileLogOpen{form_.Find<QAction>("mnuFileLogOpen")};
  QtMenuEntry mnuFileLogSaveAs{form_.Find<QAction>("mnuFileLogSaveAs")};
  QtMenuEntry mnuFileExit{form_.Find<QAction>("mnuFileExit")};

  QtMenu mnuComm{form_.Find<QMenu>("mnuComm")};
  QtMenuEntry mnuCommWait{form_.Find<QAction>("mnuCommWait")};
  QtMenuEntry mnuCommCall{form_.Find<QAction>("mnuCommCall")};
  QtMenuEntry mnuCommCancel{form_.Find<QAction>("mnuCommCancel")};
  QtMenuEntry mnuCommClose{form_.Find<QAction>("mnuCommClose")};
  QtMenuEntry mnuCommRefresh{form_.Find<QAction>("mnuCommRefresh")};
  QtChoiceMenu mnuCommCallAgain{form_.Find<QMenu>("mnuComm"), "mnuCommCallAgain"};
  QtMenuEntry mnuCommInvite{form_.Find<QAction>("mnuCommInvite")};
  QtMenuEntry mnuCommVerify{form_.Find<QAction>("mnuCommVerify")};
  QtMenuEntry mnuCommPeople{form_.Find<QAction>("mnuCommPeople")};
  QtMenuEntry mnuCommReach{form_.Find<QAction>("mnuCommReach")};
  QtMenuEntry mnuCommAskRouter{form_.Find<QAction>("mnuCommAskRouter")};

  QtMenu mnuFormat{form_.Find<QMenu>("mnuFormat")};
  QtMenuEntry mnuFormatFontBold{form_.Find<QAction>("mnuFormatFontBold")};
  QtMenuEntry mnuFormatFontItalics{form_.Find<QAction>("mnuFormatFontItalics")};
  QtMenuEntry mnuFormatFontUnderline{form_.Find<QAction>("mnuFormatFontUnderline")};
  QtMenuEntry mnuFormatFontSize{form_.Find<QAction>("mnuFormatFontSize")};
  QtMenuEntry mnuFormatFontColor{form_.Find<QAction>("mnuFormatFontColor")};
  QtMenuEntry mnuFormatFontSettings{form_.Find<QAction>("mnuFormatFontSettings")};
  QtMenuEntry mnuFormatBackcolorCommands{form_.Find<QAction>("mnuFormatBackcolorCommands")};
  QtMenuEntry mnuFormatBackcolorDialogue{form_.Find<QAction>("mnuFormatBackcolorDialogue")};

  QtMenu mnuTools{form_.Find<QMenu>("mnuTools")};
  QtMenuEntry mnuToolsNick{form_.Find<QAction>("mnuToolsNick")};
  QtMenuEntry mnuToolsSaveMacro{form_.Find<QAction>("mnuToolsSaveMacro")};
  QtMenuEntry mnuToolsEditMacros{form_.Find<QAction>("mnuToolsEditMacros")};
  QtMenuEntry mnuToolsFind{form_.Find<QAction>("mnuToolsFind")};
  QtMenuEntry mnuToolsCompletions{form_.Find<QAction>("mnuToolsCompletions")};
  QtMenuEntry mnuToolsClearDialogue{form_.Find<QAction>("mnuToolsClearDialogue")};
  QtMenuEntry mnuToolsClearCommands{form_.Find<QAction>("mnuToolsClearCommands")};
  QtMenuEntry mnuToolsClearHistory{form_.Find<QAction>("mnuToolsClearHistory")};
  QtMenuEntry mnuToolsDate{form_.Find<QAction>("mnuToolsDate")};
  QtMenuEntry mnuToolsTime{form_.Find<QAction>("mnuToolsTime")};
  QtMenuEntry mnuToolsAlwaysOnTop{form_.Find<QAction>("mnuToolsAlwaysOnTop")};
  QtMenuEntry mnuToolsLanguageEnglish{form_.Find<QAction>("mnuToolsLanguageEnglish")};
  QtMenuEntry mnuToolsLanguageGreek{form_.Find<QAction>("mnuToolsLanguageGreek")};
  QtMenuEntry mnuToolsCheckSpelling{form_.Find<QAction>("mnuToolsCheckSpelling")};

  QtMenu mnuAttention{form_.Find<QMenu>("mnuAttention")};
  QtMenuEntry mnuAttentionLines{form_.Find<QAction>("mnuAttentionLines")};
  QtMenuEntry mnuAttentionText{form_.Find<QAction>("mnuAttentionText")};
  QtMenuEntry mnuAttentionSound{form_.Find<QAction>("mnuAttentionSound")};
  QtMenuEntry mnuAttentionCount{form_.Find<QAction>("mnuAttentionCount")};

  QtMenu mnuPrivate{form_.Find<QMenu>("mnuPrivate")};
  QtMenuEntry mnuPrivateWhenPossible{form_.Find<QAction>("mnuPrivateWhenPossible")};
  QtMenuEntry mnuPrivateOnly{form_.Find<QAction>("mnuPrivateOnly")};
  QtMenuEntry mnuPrivateNever{form_.Find<QAction>("mnuPrivateNever")};

  QtMenu mnuView{form_.Find<QMenu>("mnuView")};
  QtMenuEntry mnuViewStatusPanel{form_.Find<QAction>("mnuViewStatusPanel")};
  QtMenuEntry mnuViewZoomIn{form_.Find<QAction>("mnuViewZoomIn")};
  QtMenuEntry mnuViewZoomOut{form_.Find<QAction>("mnuViewZoomOut")};
  QtMenuEntry mnuViewZoomReset{form_.Find<QAction>("mnuViewZoomReset")};

  QtMenu mnuHelp{form_.Find<QMenu>("mnuHelp")};
  QtMenuEntry mnuHelpDetailed{form_.Find<QAction>("mnuHelpDetailed")};
  QtMenuEntry mnuHelpAbout{form_.Find<QAction>("mnuHelpAbout")};

  QtRichTextBox rtbData;
  QtRichTextBox rtbCommands;
  QtRichTextBox rtbRemote;

  QtPanel fraFind{form_.Find<QWidget>("fraFind")};
  QtTextField txtFind{form_.Find<QLineEdit>("txtFind")};
  QtButton cmdFindPrevious{form_.Find<QPushButton>("cmdFindPrevious")};
  QtButton cmdFindNext{form_.Find<QPushButton>("cmdFindNext")};
  QtLabel lblFindResult{form_.Find<ElidedLabel>("lblFindResult")};
  QtButton cmdFindClose{form_.Find<QPushButton>("cmdFindClose")};

  QtPanel fraCompletions{form_.Find<QWidget>("fraCompletions")};
  QtListBox lstCompletions{form_.Find<ListWidget>("lstCompletions")};
  QtPaneHint lblHint{form_.Find<PaneHint>("lblHint")};
  QtSpellChecker spelling{rtbCommands.widget()};

  QtPanel fraNewLines{form_.Find<QWidget>("fraNewLines")};
  QtButton cmdNewLines{form_.Find<QPushButton>("cmdNewLines")};

  QtWelcomeCard welcomeCard{form_.centralWidget()};
  QtAgainBar againBar{form_.centralWidget()};
  QtResendBar resendBar{form_.centralWidget()};
  QtKeyBar keyBar{form_.centralWidget()};
  QtRouterBar routerBar{form_.centralWidget()};

  QtButton cmdSend{form_.Find<QPushButton>("cmdSend")};
  QtCheckBox chkBold{form_.Find<QCheckBox>("chkBold")};
  QtCheckBox chkItalics{form_.Find<QCheckBox>("chkItalics")};
  QtCheckBox chkUnderline{form_.Find<QCheckBox>("chkUnderline")};
  QtLabel lblColor{form_.Find<ElidedLabel>("lblColor")};
  QtLabel lblStatus{form_.Find<ElidedLabel>("lblStatus")};
  QtProgressBar prgStatus{form_.Find<QProgressBar>("prgStatus")};
  QtLabel lblWaiting{form_.Find<ElidedLabel>("lblWaiting")};
  QtLockLabel lblLock{form_};
  QtStatusPanel fraPanel{form_};
  QtLabel lblCurrentDateTime{form_.Find<ElidedLabel>("lblCurrentDateTime")};
  QtLabel lblChatStartDateTime{form_.Find<ElidedLabel>("lblChatStartDateTime")};
  QtLabel lblChatDuration{form_.Find<ElidedLabel>("lblChatDuration")};
  QtLabel lblLocalIP{form_.Find<ElidedLabel>("lblLocalIP")};
  QtLabel lblLocalPort{form_.Find<ElidedLabel>("lblLocalPort")};
  QtLabel lblLocalNickname{form_.Find<ElidedLabel>("lblLocalNickname")};
  QtLabel lblRemoteIP{form_.Find<ElidedLabel>("lblRemoteIP")};
  QtLabel lblRemotePort{form_.Find<ElidedLabel>("lblRemotePort")};
  QtLabel lblRemoteNickname{form_.Find<ElidedLabel>("lblRemoteNickname")};
  QtLabel lblBytesSent{form_.Find<ElidedLabel>("lblBytesSent")};
  QtLabel lblBytesReceived{form_.Find<ElidedLabel>("lblBytesReceived")};
  QtLabel lblCurrentDateTimeCaption{form_.Find<ElidedLabel>("lblCurrentDateTimeCaption")};
  QtLabel lblChatStartDateTimeCaption{form_.Find<ElidedLabel>("lblChatStartDateTimeCaption")};
  QtLabel lblChatDurationCaption{form_.Find<ElidedLabel>("lblChatDurationCaption")};
  QtLabel lblLocalPortCaption{form_.Find<ElidedLabel>("lblLocalPortCaption")};
  QtLabel lblLocalNicknameCaption{form_.Find<ElidedLabel>("lblLocalNicknameCaption")};
  QtLabel lblRemotePortCaption{form_.Find<ElidedLabel>("lblRemotePortCaption")};
  QtLabel lblRemoteNicknameCaption{form_.Find<ElidedLabel>("lblRemoteNicknameCaption")};
  QtLabel lblBytesSentCaption{form_.Find<ElidedLabel>("lblBytesSentCaption")};
  QtLabel lblBytesReceivedCaption{form_.Find<ElidedLabel>("lblBytesReceivedCaption")};
  QtControl<Control, QFrame> picShape{form_.Find<QFrame>("picShape")};
  QtLamp shpStatus{form_.Find<LampWidget>("shpStatus")};
  QtLabel lblCopyright{form_.Find<ElidedLabel>("lblCopyright")};
  QtPicture picCopyright{form_.Find<PictureWidget>("picCopyright")};

  // The logic's view of the window.
  MainWindow view_;
};

}  // namespace verlume::qt
