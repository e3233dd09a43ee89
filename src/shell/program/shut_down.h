// The three ways to end the program: closing the window, the Exit entry, and "/EXIT".
#pragma once

#include <functional>

#include "platform/platform.h"
#include "shell/app_state.h"
#include "shell/error_report.h"

namespace verlume {

class ShutDown {
 public:
  // `confirmExit` asks the user and sets AppState::ExitConfirmed.
  ShutDown(AppState& state, Platform& platform, ErrorReport& errors,
           std::function<void()> confirmExit, std::function<void()> resetConnection);

  void Form_QueryUnload(bool& cancel, UnloadMode mode);
  void Form_Unload();
  void mnuFileExit_Click();

 private:
  bool UserConfirms();

  AppState& state_;
  Platform& platform_;
  ErrorReport& errors_;
  std::function<void()> confirmExit_;
  std::function<void()> resetConnection_;
};

}  // namespace verlume
