// The dialogue log: while logging is on and a conversation is in progress, every line is appended
// to a text file named after the peer.
#pragma once

#include <string>
#include <string_view>

#include "platform/platform.h"
#include "shell/app_state.h"
#include "shell/error_report.h"
#include "shell/settings.h"

namespace verlume {

class DialogueLog {
 public:
  DialogueLog(AppState& state, Platform& platform, ErrorReport& errors, Settings& settings)
      : state_(state), platform_(platform), errors_(errors), settings_(settings) {}

  // Whether a line appended now is written: logging is on and a conversation is in progress.
  bool IsRecording() const;

  // Appends one line; does nothing while logging is off or no conversation is in progress. Line
  // breaks and other control characters in the line are written as blanks, marks that change the
  // direction of writing as escapes such as "\u202E". The file is complete after each line. A
  // failure is reported (240), not thrown.
  void AppendToLog(std::u16string line);

  // Appends "[date_time]***** " + text: a line about the connection.
  void AppendConnectionLine(std::u16string_view statusText);

  // The same for the log AppState::ClosedLog, whatever the current conversation. Does nothing while
  // logging is off or ClosedLog is empty.
  void AppendToClosedLog(std::u16string_view statusText);

  // Lets the user choose the log folder and saves it in the settings file; refused while a
  // conversation is being logged. Cancel changes nothing.
  void mnuFileLogFolder_Click();

  // Switches logging on or off. Before switching on, asks for the log folder as long as there is
  // none.
  void mnuFileLogRecord_Click();

 private:
  // Changes the path to the one that is written to.
  void Append(std::u16string& path, std::u16string line);
  // False when it failed; the failure has been reported (239).
  bool ChooseLogFolder();
  bool RefuseWhileRecording();
  bool AskForLogFolder();
  void SwitchLogging(bool on);

  AppState& state_;
  Platform& platform_;
  ErrorReport& errors_;
  Settings& settings_;
};

}  // namespace verlume
