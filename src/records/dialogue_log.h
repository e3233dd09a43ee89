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

// A nickname made fit for a file name: each of \ / : * ? " < > | becomes "_", and so does what is
// not showable. What would be no name of its own ("", "." or "..") is "_". It has at most
// kNicknameLimit characters: with an extension, far from the 255 bytes that a file system takes.
std::u16string LogFileStemOf(std::u16string_view nickname);

// The log file of the conversation that is on, or was last; "" without a log folder.
std::u16string LogPath(const AppState& state, const FileSystem& files);

class DialogueLog {
 public:
  DialogueLog(AppState& state, Platform& platform, ErrorReport& errors, Settings& settings)
      : state_(state), platform_(platform), errors_(errors), settings_(settings) {}

  // Whether a line appended now is written: logging is on and a conversation is open.
  bool IsRecording() const;

  // Appends one line; does nothing while logging is off or no conversation is open. Line breaks and
  // other control characters inside it are written as blanks. The file is complete after each line.
  // A failure is reported (240), not thrown.
  void AppendToLog(std::u16string line);

  // "[date_time]***** " + text: the lines that tell of the connection.
  void AppendConnectionLine(std::u16string_view statusText);

  // The same into AppState::ClosedLog, whatever conversation is on. Does nothing while logging is
  // off or where there is none.
  void AppendAfterwards(std::u16string_view statusText);

  // Lets the user choose the log folder and keeps it in the settings file; refused while lines are
  // being recorded. A cancel changes nothing.
  void mnuFileLogFolder_Click();

  // The logging switch. Switching on asks for the log folder for as long as there is none.
  void mnuFileLogRecord_Click();

 private:
  void Append(const std::u16string& path, std::u16string line);
  // True unless it failed, which has then been reported (239).
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
