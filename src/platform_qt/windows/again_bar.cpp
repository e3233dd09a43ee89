#include "platform_qt/windows/again_bar.h"

namespace verlume::qt {

QWidget* QtAgainBar::FollowInTabOrder(QWidget* before) {
  QWidget::setTabOrder(before, cmdAgain.widget());
  QWidget::setTabOrder(cmdAgain.widget(), cmdAgainClose.widget());
  return cmdAgainClose.widget();
}

}  // namespace verlume::qt
