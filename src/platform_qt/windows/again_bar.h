// The bar above the command pane after a conversation that the user has not ended.
#pragma once

#include "platform_qt/windows/bar_frame.h"

namespace verlume::qt {

// Its controls have the names of AgainBar's members.
struct QtAgainBar {
  explicit QtAgainBar(QWidget* area)
      : frame(new BarFrame(area, "fraAgain", "lblAgain", {"cmdAgain", "cmdAgainClose"})) {}
  AgainBar View() { return {fraAgain, lblAgain, cmdAgain, cmdAgainClose}; }
  // Puts its buttons into the Tab order behind a widget, and returns the last of them.
  QWidget* FollowInTabOrder(QWidget* before);

  template <class Widget>
  Widget* Find(const char* name) {
    return frame->findChild<Widget*>(QLatin1String(name));
  }

  BarFrame* frame;
  QtFloatingPanel fraAgain{frame};
  QtLabel lblAgain{Find<QLabel>("lblAgain")};
  QtButton cmdAgain{Find<QPushButton>("cmdAgain")};
  QtButton cmdAgainClose{Find<QPushButton>("cmdAgainClose")};
};

}  // namespace verlume::qt
