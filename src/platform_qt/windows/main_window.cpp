#include "platform_qt/windows/main_window.h"

namespace verlume::qt {

QtMainWindow::QtMainWindow(FileSystem& files)
    : rtbData(form_.centralWidget(), files, Lines::Many),
      rtbCommands(form_.centralWidget(), files, Lines::Single),
      rtbRemote(form_.centralWidget(), files, Lines::Many),
      view_(MainWindowOf(*this)) {
  form_.PlacePane(rtbData.widget(), "rtbData");
  form_.PlaceFindBar(rtbData.widget());
  form_.PlaceNewLinesButton(rtbData.widget());
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
  QWidget::setTabOrder(rtbData.widget(), cmdNewLines.widget());
  QWidget::setTabOrder(cmdNewLines.widget(), txtFind.widget());
  QWidget::setTabOrder(txtFind.widget(), cmdFindPrevious.widget());
  QWidget::setTabOrder(cmdFindPrevious.widget(), cmdFindNext.widget());
  QWidget::setTabOrder(cmdFindNext.widget(), cmdFindClose.widget());
  rtbCommands.widget()->setFocus();
}

}  // namespace verlume::qt
