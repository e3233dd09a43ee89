// The bar above the command pane that offers to send what was not delivered before.
#pragma once

#include "platform_qt/windows/bar_frame.h"

namespace verlume::qt {

// Its controls have the names of ResendBar's members.
struct QtResendBar {
  explicit QtResendBar(QWidget* area)
      : frame(new BarFrame(area, "fraResend", "lblResend",
                           {"cmdResend", "cmdResendDrop", "cmdResendClose"})) {}
  ResendBar View() { return {fraResend, lblResend, cmdResend, cmdResendDrop, cmdResendClose}; }
  // Puts its buttons into the Tab order behind a widget, and returns the last of them.
  QWidget* FollowInTabOrder(QWidget* before);

  template <class Widget>
  Widget* Find(const char* name) {
    return frame->findChild<Widget*>(QLatin1String(name));
  }

  BarFrame* frame;
  QtFloatingPanel fraResend{frame};
  QtLabel lblResend{Find<QLabel>("lblResend")};
  QtButton cmdResend{Find<QPushButton>("cmdResend")};
  QtButton cmdResendDrop{Find<QPushButton>("cmdResendDrop")};
  QtButton cmdResendClose{Find<QPushButton>("cmdResendClose")};
};

}  // namespace verlume::qt
