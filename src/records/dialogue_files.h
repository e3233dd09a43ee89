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

  // Asks for the format and the file, and replaces the dialogue by what the file holds. A file
  // that cannot be read leaves the dialogue as it is.
  void mnuFileLogOpen_Click();

  // Asks for the format and the file, and saves the dialogue to it; an empty dialogue is refused. A
  // file that cannot be written stays as it was.
  void mnuFileLogSaveAs_Click();

  // Shows how much of a long file is in the dialogue pane, as long as not all of it is.
  void rtbData_LoadProgress(int percent);

 private:
  // `extension` is "rtf" or "txt" in any letter case; it decides the format.
  void LoadDialogueAs(std::u16string_view extension);
  void SaveDialogueAs(std::u16string_view extension);
  FileChoice StartOf(std::u16string_view title, std::u16string_view extension, std::uint32_t flags);
  // True, and the user told, when the chosen file has another extension than the format's.
  bool RefuseOtherExtension(const FileChoice& start, const FileChoice& choice);

  AppState& state_;
  Platform& platform_;
  ErrorReport& errors_;
};

}  // namespace verlume
