// Always on top, and context help by the right mouse button.
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

  // Switches always on top on or off, and saves the choice.
  void mnuToolsAlwaysOnTop_Click();

 private:
  AppState& state_;
  Platform& platform_;
  ErrorReport& errors_;
  Settings& settings_;
};

// Binds onMouseUp of the controls: releasing any button but the left one over a control shows its
// context help.
void BindContextHelp(std::initializer_list<Control*> controls);

// The same for the labels, check boxes and pictures of the main window.
void BindContextHelp(const MainWindow& frmMain);
// The same for all that is in the window but the text field, which has a menu of its own.
void BindContextHelp(const PeopleWindow& frmPeople);
void BindContextHelp(const VerifyWindow& frmVerify);
void BindContextHelp(const ReachWindow& frmReach);

}  // namespace verlume
