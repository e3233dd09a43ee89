// How the main window shows what is in it: the View menu.
#pragma once

#include "platform/platform.h"
#include "shell/error_report.h"

namespace verlume {

class View {
 public:
  View(Platform& platform, ErrorReport& errors) : platform_(platform), errors_(errors) {}

  // Shows in the menu what is in force: the window remembers it from run to run.
  void ShowState();

  void mnuViewStatusPanel_Click();
  void mnuViewZoomIn_Click() { ZoomBy(1); }
  void mnuViewZoomOut_Click() { ZoomBy(-1); }
  void mnuViewZoomReset_Click();
  // The wheel was turned with Ctrl: so many steps larger, or smaller if negative.
  void ZoomBy(int steps);

 private:
  void SetZoom(int percent);

  Platform& platform_;
  ErrorReport& errors_;
};

}  // namespace verlume
