// The running log: while logging is on and a conversation is open, every line is appended to a text
// file named after the peer.
#pragma once

#include <string>
#include <string_view>

#include "platform/platform.h"
#include "shell/app_state.h"
#include "shell/error_report.h"
#include "shell/settings.h"

namespace verlume {

// A nickname made fit for a file name: each of \ / : * ? " < > | becomes "_".
std::u16string LogFileStemOf(std::u16string_view nickname);

class DialogueLog {
 public:
  DialogueLog(AppState& state, Platform& platform, ErrorReport& errors, Settings& settings)
      : state_(state), platform_(platform), errors_(errors), settings_(settings) {}

  // Appends one line; does nothing while logging is off or no conversation is open. The file is
  // complete after each line. A failure is reported (240), not thrown.
  void AppendToLog(std::u16string_view line);

  // "[date_time]***** " + text: the lines that tell of the connection.
  void AppendConnectionLine(std::u16string_view statusText);

  void mnuFileLogFolder_Click();
  void mnuFileLogRecord_Click();

 private:
  AppState& state_;
  Platform& platform_;
  ErrorReport& errors_;
  Settings& settings_;
};

}  // namespace verlume
