#include "platform_qt/qt_main_window.h"

namespace verlume::qt {

QtMainWindow::QtMainWindow(FileSystem& files)
    : rtbData(form_.centralWidget(), files, Lines::Many),
      rtbCommands(form_.centralWidget(), files, Lines::Single),
      rtbRemote(form_.centralWidget(), files) {
  form_.PlacePane(rtbData.widget(), "rtbData");
  form_.PlaceFindBar(rtbData.widget());
  form_.PlacePane(rtbCommands.widget(), "rtbCommands");
  form_.PlaceCompletionList(rtbCommands.widget());
  rtbRemote.widget()->setObjectName(QStringLiteral("rtbRemote"));
  rtbData.SetLocked(true);
  QFont strong;
  strong.setWeight(QFont::DemiBold);
  lblStatus.widget()->setFont(strong);
  // The Tab key goes the way the eye goes, and starts where the user types.
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
