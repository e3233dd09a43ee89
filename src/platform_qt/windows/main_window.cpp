#include "platform_qt/windows/main_window.h"

#include "platform_qt/spelling/spelling_menu.h"
#include "platform_qt/text/typing_relay.h"
#include "platform_qt/windows/growing_pane.h"

namespace verlume::qt {

QtMainWindow::QtMainWindow(FileSystem& files)
    : rtbData(form_.centralWidget(), files, Lines::Many),
      rtbCommands(form_.centralWidget(), files, Lines::Single),
      rtbRemote(form_.centralWidget(), files, Lines::Many),
      view_(MainWindowOf(*this)) {
  form_.PlacePane(rtbData.widget(), "rtbData");
  form_.PlaceFindBar(rtbData.widget());
  form_.PlaceNewLinesButton(rtbData.widget());
  welcomeCard.frame->Follow(rtbData.widget());
  form_.PlacePane(rtbCommands.widget(), "rtbCommands");
  againBar.frame->Follow(rtbCommands.widget());
  resendBar.frame->Follow(rtbCommands.widget());
  keyBar.frame->Follow(rtbCommands.widget());
  routerBar.frame->Follow(rtbCommands.widget());
  routerBar.frame->StayBelow(keyBar.frame);
  form_.PlaceCompletionList(rtbCommands.widget());
  rtbRemote.widget()->setObjectName(QStringLiteral("rtbRemote"));
  rtbRemote.widget()->hide();
  rtbData.SetLocked(true);
  new TypingRelay(*rtbData.widget(), *rtbCommands.widget());
  new GrowingPane(*rtbCommands.widget());
  new SpellingMenu(*rtbCommands.widget(), spelling);
  QFont strong;
  strong.setWeight(QFont::DemiBold);
  lblStatus.widget()->setFont(strong);
  // Tab goes down the window as the eye does, and from its end to its beginning. It starts at the
  // command pane.
  QWidget::setTabOrder(rtbData.widget(), cmdNewLines.widget());
  const QList<QWidget*> down = {resendBar.FollowInTabOrder(againBar.FollowInTabOrder(
                                    welcomeCard.FollowInTabOrder(cmdNewLines.widget()))),
                                txtFind.widget(),
                                cmdFindPrevious.widget(),
                                cmdFindNext.widget(),
                                cmdFindClose.widget(),
                                chkBold.widget(),
                                chkItalics.widget(),
                                chkUnderline.widget(),
                                routerBar.cmdRouterYes.widget(),
                                routerBar.cmdRouterNo.widget(),
                                routerBar.cmdRouterClose.widget(),
                                keyBar.cmdKeyGoOn.widget(),
                                keyBar.cmdKeyHangUp.widget(),
                                rtbCommands.widget(),
                                cmdSend.widget(),
                                lblLock.widget()};
  for (qsizetype i = 1; i < down.size(); ++i) QWidget::setTabOrder(down[i - 1], down[i]);
  rtbCommands.widget()->setFocus();
}

}  // namespace verlume::qt
