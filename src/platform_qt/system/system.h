// The machine's clock and regional settings, the program's folders and event loop, and other
// programs.
#pragma once

#include <QLocale>
#include <QObject>
#include <QString>
#include <optional>

#include "platform/system.h"

namespace verlume::qt {

class QtClock : public Clock {
 public:
  LocalTime Now() const override;
};

class QtLocale : public Locale {
 public:
  explicit QtLocale(const QLocale& locale = QLocale::system());

  std::u16string LongDate(const LocalTime& time) const override;
  // With seconds, but without the time zone.
  std::u16string LongTime(const LocalTime& time) const override;
  std::u16string GroupSeparator() const override;
  // The same on every machine, because command words must not depend on the user's language.
  std::u16string UpperCase(std::u16string_view text) const override;
  char16_t BaseLetter(char16_t c) const override;

 private:
  QLocale locale_;
  QString timeFormat_;
};

// Needs a QApplication.
class QtApplication : public QObject, public Application {
 public:
  QtApplication();
  // For a program whose folder is not that of its executable, or whose settings lie in `ownFolder`,
  // unless that is "".
  explicit QtApplication(const QString& programFolder, const QString& ownFolder = {});

  std::u16string ProgramFolder() const override;
  std::u16string SettingsFolder() const override;
  // The program's folder if a help file is in it, else the installed data folder.
  std::u16string HelpFolder() const override;
  // Does nothing after the program has ended.
  void YieldToEvents() override;
  bool IsYielding() const { return isYielding_; }
  // Hides all windows and leaves all event loops, also those of modal boxes. Handlers that are
  // running run to their end; boxes that they open return at once.
  void End() override;
  bool HasEnded() const override { return hasEnded_; }
  void LogError(std::string_view line) override;

  // Runs the program's event loop until End; returns at once if the program has already ended.
  int Run();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  bool KeepsSettingsBeside() const;

  QString programFolder_;
  QString ownFolder_;
  // Found out once: the settings must not be in two places in one run.
  mutable std::optional<bool> keepsSettingsBeside_;
  bool isYielding_ = false;
  bool hasEnded_ = false;
};

// The folder of the settings, as a QtApplication has it with that `ownFolder`.
QString SettingsFolderFor(const QString& ownFolder);

class QtSystemTools : public SystemTools {
 public:
  std::optional<std::u16string> LocalMachineText(std::u16string_view key,
                                                 std::u16string_view value) const override;
  bool StartProgram(std::u16string_view path) override;
};

}  // namespace verlume::qt
