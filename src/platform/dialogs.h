// Message boxes, input boxes and the common dialogs. All are modal and synchronous: they return
// when the user has answered, and let timer and socket events through while they wait, so the
// caller re-reads whatever those events may have changed.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "platform/rich_text_box.h"

namespace verlume {

enum class MessageIcon { Information, Question, Stop };
enum class MessageButtons { Ok, YesNo, YesNoCancel };
enum class Answer { Ok, Yes, No, Cancel };

struct Message {
  std::u16string text;
  std::u16string title;
  MessageIcon icon = MessageIcon::Information;
  MessageButtons buttons = MessageButtons::Ok;
  Answer defaultAnswer = Answer::Ok;
  // The box appears without the user having asked for anything: keys are ignored for its first
  // half second, so that what is being typed does not answer it, and the task bar entry is flagged.
  bool unexpected = false;
};

// The four kinds of box that the program shows.
inline Message Note(std::u16string_view text, std::u16string_view title) {
  return {std::u16string(text), std::u16string(title), MessageIcon::Information, MessageButtons::Ok,
          Answer::Ok};
}
inline Message Refusal(std::u16string_view text, std::u16string_view title) {
  return {std::u16string(text), std::u16string(title), MessageIcon::Stop, MessageButtons::Ok,
          Answer::Ok};
}
inline Message Question(std::u16string_view text, std::u16string_view title, Answer defaultAnswer) {
  return {std::u16string(text), std::u16string(title), MessageIcon::Question, MessageButtons::YesNo,
          defaultAnswer};
}
inline Message QuestionWithCancel(std::u16string_view text, std::u16string_view title) {
  return {std::u16string(text), std::u16string(title), MessageIcon::Question,
          MessageButtons::YesNoCancel, Answer::Yes};
}

class Dialogs {
 public:
  virtual ~Dialogs() = default;
  // The language of the buttons of every box and dialog from now on.
  virtual void SetLanguage(bool isGreek) = 0;
  // Closing the box without a button answers Cancel where there is one, else No, else Ok.
  virtual Answer ShowMessage(const Message& message) = 0;
  // An input box for one line: a line break or another control character that is pasted comes back
  // as a blank, half a surrogate pair as U+FFFD. Empty when the user cancels.
  virtual std::u16string AskText(std::u16string_view prompt, std::u16string_view title,
                                 std::u16string_view defaultText) = 0;
};

// What a file dialog starts from, and how it ended. Flags are the common dialog's classic ones.
namespace dialog_flag {
inline constexpr std::uint32_t kOverwritePrompt = 0x2;
inline constexpr std::uint32_t kHideReadOnly = 0x4;
inline constexpr std::uint32_t kExtensionDifferent = 0x400;
inline constexpr std::uint32_t kPathMustExist = 0x800;
inline constexpr std::uint32_t kFileMustExist = 0x1000;
// A file that is there and may not be written is refused in the dialog.
inline constexpr std::uint32_t kNoReadOnlyReturn = 0x8000;
}  // namespace dialog_flag

struct FileChoice {
  std::u16string title;
  std::u16string initialFolder;  // empty or missing: the platform's choice
  std::u16string defaultExtension;
  std::u16string fileName;  // in: the name proposed; out: the full path chosen
  std::u16string filter;    // "description|pattern|..."
  std::uint32_t flags = 0;  // out: kExtensionDifferent set when the chosen name has another one
};

struct FontChoice {
  std::u16string name;
  bool bold = false;
  bool italic = false;
  bool underline = false;
  bool strikethrough = false;
  Color color = 0;
  double size = 10;  // points
};

// The common dialog dlgControl. Every operation throws RunTimeFailure 32755 when the user cancels.
class CommonDialog {
 public:
  virtual ~CommonDialog() = default;
  virtual FileChoice ShowOpen(const FileChoice& start) = 0;
  virtual FileChoice ShowSave(const FileChoice& start) = 0;
  // The path of an existing folder, ending in a separator.
  virtual std::u16string ChooseFolder(std::u16string_view title,
                                      std::u16string_view initialFolder) = 0;
  virtual Color ShowColor(Color start) = 0;
  // What comes back has a size from minimum to maximum.
  virtual FontChoice ShowFont(const FontChoice& start, double minimumSize, double maximumSize) = 0;
};

}  // namespace verlume
