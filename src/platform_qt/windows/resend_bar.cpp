#include "platform_qt/windows/resend_bar.h"

namespace verlume::qt {

QWidget* QtResendBar::FollowInTabOrder(QWidget* before) {
  QWidget::setTabOrder(before, cmdResend.widget());
  QWidget::setTabOrder(cmdResend.widget(), cmdResendDrop.widget());
  QWidget::setTabOrder(cmdResendDrop.widget(), cmdResendClose.widget());
  return cmdResendClose.widget();
}

}  // namespace verlume::qt
