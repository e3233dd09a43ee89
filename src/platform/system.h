// What the logic asks of the machine besides windows, sockets and files: the time, the user's
// regional forms, the program's own place and its event loop, the help viewer, and other programs.
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
  // What separates groups of three digits; may be "".
  virtual std::u16string GroupSeparator() const = 0;
  // Upper case; Greek letters keep their accents.
  virtual std::u16string UpperCase(std::u16string_view text) const = 0;
  // What a letter has in common with its other forms: the letter without case and accents, a final
  // sigma as any sigma. 0 for an accent that follows its letter; anything else is itself.
  virtual char16_t BaseLetter(char16_t c) const = 0;
};

class Application {
 public:
  virtual ~Application() = default;
  // The folder of the executable, without a trailing separator.
  virtual std::u16string ProgramFolder() const = 0;
  // Where the settings file lies: the program's folder, or the user's own configuration folder
  // where that is not writable. It exists.
  virtual std::u16string SettingsFolder() const = 0;
  // Where the help files lie: the program's folder, or the installed data folder.
  virtual std::u16string HelpFolder() const = 0;
  // Handles the timer and socket events that wait, and returns; keys and clicks wait on.
  virtual void YieldToEvents() = 0;
  // Ends the program: every window closes, and no further event reaches a handler.
  virtual void End() = 0;
  virtual bool HasEnded() const = 0;
  // Writes one line to standard error, for whoever looks for the cause of a failure. UTF-8, without
  // the line end. Never holds a text of the conversation.
  virtual void LogError(std::string_view line) = 0;
};

class HelpViewer {
 public:
  virtual ~HelpViewer() = default;
  // The file that the help entry and the context help of every control open from now on, and the
  // language that it is in. An open help window goes on at the same topic of it. Never fails: that
  // a file cannot be read is told in that language when help is asked for.
  virtual void SetHelpFile(std::u16string_view path, bool isGreek) = 0;
  // Opens the detailed help, in a window of its own beside the program's others, and returns at
  // once; brings it to the front when it is open. Throws RunTimeFailure where it cannot be shown.
  virtual void ShowContents() = 0;
};

class SystemTools {
 public:
  virtual ~SystemTools() = default;
  // A text value of the registry, under the local-machine root. Empty when there is no such value,
  // when it holds no text, and on a system without a registry.
  virtual std::optional<std::u16string> LocalMachineText(std::u16string_view key,
                                                         std::u16string_view value) const = 0;
  // Starts a program as a process of its own, with a normal, focused window, and returns at once.
  // False when it cannot be started.
  virtual bool StartProgram(std::u16string_view path) = 0;
};

}  // namespace verlume
