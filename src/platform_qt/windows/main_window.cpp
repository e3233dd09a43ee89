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
  // Tab follows the reading order, and starts at the command pane.
  QWidget::setTabOrder(rtbCommands.widget(), cmdSend.widget());
  QWidget::setTabOrder(cmdSend.widget(), chkBold.widget());
  QWidget::setTabOrder(chkBold.widget(), chkItalics.widget());
  QWidget::setTabOrder(chkItalics.widget(), chkUnderline.widget());
  QWidget::setTabOrder(chkUnderline.widget(), rtbData.widget());
  QWidget::setTabOrder(rtbData.widget(), cmdNewLines.widget());
  QWidget* const floating =
      againBar.FollowInTabOrder(welcomeCard.FollowInTabOrder(cmdNewLines.widget()));
  QWidget::setTabOrder(floating, txtFind.widget());
  QWidget::setTabOrder(txtFind.widget(), cmdFindPrevious.widget());
  QWidget::setTabOrder(cmdFindPrevious.widget(), cmdFindNext.widget());
  QWidget::setTabOrder(cmdFindNext.widget(), cmdFindClose.widget());
  rtbCommands.widget()->setFocus();
}

}  // namespace verlume::qt
