// What the program itself decides about its main window.
#pragma once

#include <initializer_list>

#include "platform/platform.h"
#include "shell/app_state.h"
#include "shell/error_report.h"
#include "shell/settings.h"

namespace verlume {

class WindowBehaviour {
 public:
  WindowBehaviour(AppState& state, Platform& platform, ErrorReport& errors, Settings& settings)
      : state_(state), platform_(platform), errors_(errors), settings_(settings) {}

  // Switches between the top-most and the normal band, and keeps the choice.
  void mnuToolsAlwaysOnTop_Click();

 private:
  AppState& state_;
  Platform& platform_;
  ErrorReport& errors_;
  Settings& settings_;
};

// A release of any button but the left one on one of the controls shows that control's context
// help. Binds onMouseUp of all of them.
void BindContextHelp(std::initializer_list<Control*> controls);

// The same for the labels, check boxes and pictures of the main window.
void BindContextHelp(const MainWindow& frmMain);

}  // namespace verlume
