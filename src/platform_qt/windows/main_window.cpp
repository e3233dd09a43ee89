#include "platform_qt/windows/main_window.h"

namespace verlume::qt {

QtMainWindow::QtMainWindow(FileSystem& files)
    : rtbData(form_.centralWidget(), files, Lines::Many),
      rtbCommands(form_.centralWidget(), files, Lines::Single),
      rtbRemote(form_.centralWidget(), files, Lines::Many),
      view_(MainWindowOf(*this)) {
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
  // Tab goes down the window as the eye does, and from its end to its beginning. It starts at the
  // command pane.
  const QList<QWidget*> down = {
      rtbData.widget(),      txtFind.widget(), cmdFindPrevious.widget(), cmdFindNext.widget(),
      cmdFindClose.widget(), chkBold.widget(), chkItalics.widget(),      chkUnderline.widget(),
      rtbCommands.widget(),  cmdSend.widget()};
  for (qsizetype i = 1; i < down.size(); ++i) QWidget::setTabOrder(down[i - 1], down[i]);
  rtbCommands.widget()->setFocus();
}

}  // namespace verlume::qt
