// Reports failures to the user, and wraps each procedure so that its failures are reported.
#pragma once

#include <cstdint>
#include <functional>
#include <string_view>

#include "platform/platform.h"
#include "shell/app_state.h"
#include "shell/procedure_number.h"

namespace verlume {

class ErrorReport {
 public:
  // `resetConnection` closes the connection; `unload` unloads the main window, which ends the
  // program.
  ErrorReport(const AppState& state, Platform& platform, std::function<void()> resetConnection,
              std::function<void()> unload);

  // Runs the body of a procedure and catches every exception. Each is written to standard error and
  // reported: a RunTimeFailure with its own number, any other exception as an internal error. A
  // cancelled dialog is neither. True when the body ran to its end.
  bool Guard(Procedure procedure, const std::function<void()>& body);

  // For a catch that needs no report: writes the exception that is being handled, and the number of
  // the procedure, to standard error.
  void LogException(Procedure procedure);

  // Closes the connection, tells the user, and asks whether to end the program; No is the default.
  // After No it returns, and the connection is Idle.
  void Report(std::int32_t errorNumber, std::u16string_view description, Procedure procedure);

 private:
  const AppState& state_;
  Platform& platform_;
  std::function<void()> resetConnection_;
  std::function<void()> unload_;
};

}  // namespace verlume
