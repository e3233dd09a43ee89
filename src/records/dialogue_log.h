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

// The nickname as a file name: each of \ / : * ? " < > | and each character that is not showable
// becomes "_", and so do "", "." and "..". At most kNicknameLimit characters, so that the name with
// its extension stays far below the 255 bytes that file systems allow.
std::u16string LogFileStemOf(std::u16string_view nickname);

// The path of the log file of the current conversation, or of the last one; "" without a log
// folder.
std::u16string LogPath(const AppState& state, const FileSystem& files);

class DialogueLog {
 public:
  DialogueLog(AppState& state, Platform& platform, ErrorReport& errors, Settings& settings)
      : state_(state), platform_(platform), errors_(errors), settings_(settings) {}

  // Whether a line appended now is written: logging is on and a conversation is in progress.
  bool IsRecording() const;

  // Appends one line; does nothing while logging is off or no conversation is in progress. Line
  // breaks and other control characters in the line are written as blanks. The file is complete
  // after each line. A failure is reported (240), not thrown.
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
  void Append(const std::u16string& path, std::u16string line);
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
