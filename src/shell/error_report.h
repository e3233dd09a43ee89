// Reports failures to the user, and wraps each procedure so that its failures are reported.
#pragma once

#include <cstdint>
#include <functional>
#include <string_view>

#include "platform/dialogs.h"
#include "shell/app_state.h"
#include "shell/procedure_number.h"

namespace verlume {

class ErrorReport {
 public:
  // `resetConnection` closes the connection; `unload` unloads the main window, which ends the
  // program.
  ErrorReport(const AppState& state, Dialogs& dialogs, std::function<void()> resetConnection,
              std::function<void()> unload);

  // Runs the body of a procedure and catches every exception: a RunTimeFailure is reported with its
  // own number, any other exception as an internal error, and a cancelled dialog not at all. True
  // when the body ran to its end.
  bool Guard(Procedure procedure, const std::function<void()>& body);

  // Closes the connection, tells the user, and asks whether to end the program; No is the default.
  // After No it returns, and the connection is Idle.
  void Report(std::int32_t errorNumber, std::u16string_view description, Procedure procedure);

 private:
  const AppState& state_;
  Dialogs& dialogs_;
  std::function<void()> resetConnection_;
  std::function<void()> unload_;
};

}  // namespace verlume
