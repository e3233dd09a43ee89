// Time that is set by hand, English regional forms, and a program that lives in /verlume.
#pragma once

#include <functional>

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

  std::function<void()> onYield;
  int timesYielded = 0;
  bool ended = false;
};

class FakeHelpViewer : public HelpViewer {
 public:
  void SetHelpFile(std::u16string_view path) override { helpFile = path; }

  std::u16string helpFile;
};

}  // namespace verlume::fake
