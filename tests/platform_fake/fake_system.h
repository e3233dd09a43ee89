// A clock that is set by hand, English regional settings, a program in the folder /verlume, and a
// registry that starts empty.
#pragma once

#include <functional>
#include <map>
#include <optional>
#include <utility>
#include <vector>

#include "platform/links.h"
#include "platform/run_time_failure.h"
#include "platform/system.h"
#include "shell/text_pair.h"

namespace verlume::fake {

class FakeClock : public Clock {
 public:
  LocalTime Now() const override { return now; }

  LocalTime now = {2026, 3, 7, 9, 5, 30};
};

class FakeLocale : public Locale {
 public:
  std::u16string LongDate(const LocalTime& time) const override {
    return DecimalText(time.day) + u" of month " + DecimalText(time.month) + u" " +
           DecimalText(time.year);
  }
  std::u16string LongTime(const LocalTime& time) const override {
    return DecimalText(time.hour) + u" h " + DecimalText(time.minute) + u" m " +
           DecimalText(time.second) + u" s";
  }
  std::u16string GroupSeparator() const override { return u","; }
  std::u16string UpperCase(std::u16string_view text) const override;
  char16_t BaseLetter(char16_t c) const override;
};

class FakeApplication : public Application {
 public:
  std::u16string ProgramFolder() const override { return u"/verlume"; }
  std::u16string SettingsFolder() const override { return u"/verlume"; }
  std::u16string HelpFolder() const override { return u"/verlume"; }
  void YieldToEvents() override {
    ++timesYielded;
    if (onYield) onYield();
  }
  void End() override { ended = true; }
  bool HasEnded() const override { return ended; }
  void LogError(std::string_view line) override { loggedErrors.emplace_back(line); }

  std::function<void()> onYield;
  int timesYielded = 0;
  bool ended = false;
  std::vector<std::string> loggedErrors;
};

class FakeClipboard : public Clipboard {
 public:
  void SetText(std::u16string_view value) override { text = value; }

  std::u16string text;
};

class FakeHelpViewer : public HelpViewer {
 public:
  void SetHelpFile(std::u16string_view path, bool isGreekFile) override {
    helpFile = path;
    isGreek = isGreekFile;
  }
  void ShowContents() override {
    ++timesShown;
    if (failure) throw RunTimeFailure(*failure);
  }

  std::u16string helpFile;
  bool isGreek = false;
  int timesShown = 0;
  // While set, ShowContents fails with this.
  std::optional<FailureNumber> failure;
};

// A registry that tests fill, and programs that are never really started.
class FakeSystemTools : public SystemTools {
 public:
  std::optional<std::u16string> LocalMachineText(std::u16string_view key,
                                                 std::u16string_view value) const override {
    const auto found = registry.find({std::u16string(key), std::u16string(value)});
    if (found == registry.end()) return std::nullopt;
    return found->second;
  }
  bool StartProgram(std::u16string_view path) override {
    started.emplace_back(path);
    return startsPrograms;
  }

  std::map<std::pair<std::u16string, std::u16string>, std::u16string> registry;
  bool startsPrograms = true;
  std::vector<std::u16string> started;
};

// Hosts as tests name them, and addresses that are never really opened.
class FakeLinkOpener : public LinkOpener {
 public:
  LinkHost HostOf(std::u16string_view) const override { return host; }
  bool Open(std::u16string_view address) override {
    opened.emplace_back(address);
    return opens;
  }

  LinkHost host;
  bool opens = true;
  std::vector<std::u16string> opened;
};

}  // namespace verlume::fake
