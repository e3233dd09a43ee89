// The rest of what the logic needs from the machine: the time, the regional settings, the program's
// folders and event loop, the help viewer, and other programs.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace verlume {

struct LocalTime {
  int year = 0;
  int month = 0;  // 1 to 12
  int day = 0;
  int hour = 0;  // 0 to 23
  int minute = 0;
  int second = 0;
};

class Clock {
 public:
  virtual ~Clock() = default;
  virtual LocalTime Now() const = 0;
};

// The system's regional settings.
class Locale {
 public:
  virtual ~Locale() = default;
  virtual std::u16string LongDate(const LocalTime& time) const = 0;
  virtual std::u16string LongTime(const LocalTime& time) const = 0;
  // The separator between groups of three digits; may be "".
  virtual std::u16string GroupSeparator() const = 0;
  // The text in upper case; Greek letters keep their accents.
  virtual std::u16string UpperCase(std::u16string_view text) const = 0;
  // The letter without case and accents; a final sigma becomes an ordinary one. 0 for a combining
  // accent; any other character is returned as it is.
  virtual char16_t BaseLetter(char16_t c) const = 0;
};

class Application {
 public:
  virtual ~Application() = default;
  // The folder of the executable, without a trailing separator.
  virtual std::u16string ProgramFolder() const = 0;
  // The folder of the settings file: the one that the user named at the start, or the program's
  // folder, or the user's configuration folder if the program is installed or its folder is not
  // writable. It exists.
  virtual std::u16string SettingsFolder() const = 0;
  // The folder of the help files: the program's folder, or the installed data folder.
  virtual std::u16string HelpFolder() const = 0;
  // Handles waiting timer and socket events, and returns. Keys and clicks keep waiting.
  virtual void YieldToEvents() = 0;
  // Ends the program: closes all windows; no event reaches a handler after that.
  virtual void End() = 0;
  virtual bool HasEnded() const = 0;
  // Writes one line to standard error, for whoever looks for the cause of a failure. UTF-8, without
  // the line end. Never holds a text of the conversation.
  virtual void LogError(std::string_view line) = 0;
};

class Clipboard {
 public:
  virtual ~Clipboard() = default;
  // Replaces what is on the clipboard by plain text.
  virtual void SetText(std::u16string_view text) = 0;
};

class HelpViewer {
 public:
  virtual ~HelpViewer() = default;
  // Sets the file that the help menu and the controls' context help use from now on, and its
  // language. An open help window shows the same topic of the new file. Never fails: if the file
  // cannot be read, the user is told so, in that language, when opening the help.
  virtual void SetHelpFile(std::u16string_view path, bool isGreek) = 0;
  // Opens the detailed help in a window of its own and returns at once; brings the window to the
  // front if it is open already. Throws RunTimeFailure if it cannot be shown.
  virtual void ShowContents() = 0;
};

class SystemTools {
 public:
  virtual ~SystemTools() = default;
  // A text value of the registry, under the local-machine root. None if there is no such value, if
  // it is not a text, or if the system has no registry.
  virtual std::optional<std::u16string> LocalMachineText(std::u16string_view key,
                                                         std::u16string_view value) const = 0;
  // Starts a program as a separate process, with a normal, focused window, and returns at once.
  // False if it cannot be started.
  virtual bool StartProgram(std::u16string_view path) = 0;
};

}  // namespace verlume
