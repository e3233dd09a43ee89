// A command pane to which the text style has been applied.
#pragma once

#include <gmock/gmock.h>

#include "commands/typing_side.h"

namespace verlume::fake {

class TextFormatSide : public TypingSide {
 protected:
  TextFormatSide() {
    textFormat.ApplyCommandStyle();
    pane.timesFocused = 0;
  }

  std::u16string Setting(std::u16string_view section, std::u16string_view key) const {
    return settings.ReadSetting(section, key, u"NULL", 1024);
  }

  // A line whose first five characters are plain and whose next five are bold.
  void ShowPlainThenBold() {
    pane.SetText(u"plain");
    pane.Select(5, 0);
    SelectionFormat bold;
    bold.bold = true;
    pane.SetSelFormat(bold);
    pane.SetSelText(u"bold!");
  }

  // Deletes the settings file, so that the next write can be noticed.
  void ForgetSettingsFile() { fake.files.files.erase(state.IniFile); }
  bool SettingsWritten() const { return fake.files.files.contains(state.IniFile); }

  void ExpectBoldEverywhere(bool isBold) {
    EXPECT_EQ(state.Font.Bold, isBold);
    EXPECT_EQ(window.chkBold.value, isBold ? 1 : 0);
    EXPECT_EQ(window.mnuFormatFontBold.checked, isBold);
  }

  FakeRichTextBox& pane = window.rtbCommands;
};

}  // namespace verlume::fake
