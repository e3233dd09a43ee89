// Saving the dialogue to a file and loading it back, as rich text or as plain text.
#pragma once

#include <string_view>

#include "platform/platform.h"
#include "shell/app_state.h"
#include "shell/error_report.h"

namespace verlume {

class DialogueFiles {
 public:
  DialogueFiles(AppState& state, Platform& platform, ErrorReport& errors)
      : state_(state), platform_(platform), errors_(errors) {}

  // Asks for the format and the file, and replaces the dialogue with the content of the file. If
  // the file cannot be read, the dialogue stays as it is.
  void mnuFileLogOpen_Click();

  // Asks for the format and the file, and saves the dialogue to it; refuses an empty dialogue. If
  // the file cannot be written, it stays as it was.
  void mnuFileLogSaveAs_Click();

  // Shows how much of a long file has been loaded, until all of it is in the dialogue pane.
  void rtbData_LoadProgress(int percent);

 private:
  // `extension` is "rtf" or "txt" in any letter case; it decides the format.
  void LoadDialogueAs(std::u16string_view extension);
  void SaveDialogueAs(std::u16string_view extension);
  FileChoice StartOf(std::u16string_view title, std::u16string_view extension, std::uint32_t flags);
  // If the chosen file does not have the format's extension, tells the user and returns true.
  bool RefuseOtherExtension(const FileChoice& start, const FileChoice& choice);

  AppState& state_;
  Platform& platform_;
  ErrorReport& errors_;
};

}  // namespace verlume
