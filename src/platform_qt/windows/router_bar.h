// The bar above the command pane that asks whether the router may be asked.
#pragma once

#include "platform_qt/windows/floating_frame.h"

namespace verlume::qt {

// Its controls have the names of RouterBar's members. For assistive tools it is an alert.
class RouterFrame : public FloatingFrame {
 public:
  explicit RouterFrame(QWidget* area);

 protected:
  QRect PlaceAt(const QRect& pane) const override;
};

struct QtRouterBar {
  explicit QtRouterBar(QWidget* area) : frame(new RouterFrame(area)) {}
  RouterBar View() { return {fraRouter, lblRouter, cmdRouterYes, cmdRouterNo, cmdRouterClose}; }

  template <class Widget>
  Widget* Find(const char* name) {
    return frame->findChild<Widget*>(QLatin1String(name));
  }

  RouterFrame* frame;
  QtFloatingPanel fraRouter{frame};
  QtLabel lblRouter{Find<QLabel>("lblRouter")};
  QtButton cmdRouterYes{Find<QPushButton>("cmdRouterYes")};
  QtButton cmdRouterNo{Find<QPushButton>("cmdRouterNo")};
  QtButton cmdRouterClose{Find<QPushButton>("cmdRouterClose")};
};

}  // namespace verlume::qt
