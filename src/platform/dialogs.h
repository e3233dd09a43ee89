// Message boxes, input boxes and the common dialogs. All are modal and synchronous: they return
// when the user has answered. Timer and socket events still happen while they wait, so the caller
// must read again whatever those may have changed.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "platform/rich_text_box.h"

namespace verlume {

enum class MessageIcon { Information, Question, Stop };
enum class MessageButtons { Ok, YesNo, YesNoCancel };
enum class Answer { Ok, Yes, No, Cancel };

// A check box below the text of a message box.
struct Tick {
  std::u16string text;  // with a mnemonic
  bool isSet = false;   // in: at first; out: as the user left it, whatever the answer
};

struct Message {
  std::u16string text;
  std::u16string title;
  MessageIcon icon = MessageIcon::Information;
  MessageButtons buttons = MessageButtons::Ok;
  Answer defaultAnswer = Answer::Ok;
  // The user did not ask for the box. What is being typed goes on into the control below it; keys
  // answer it only after a pause, and bare letters never. The window's task bar entry is flagged.
  bool unexpected = false;
  Tick* tick = nullptr;  // none by default; lives longer than the box
};

// The four kinds of message box that the program shows.
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
  // Sets the language of the buttons of all boxes and dialogs from now on.
  virtual void SetLanguage(bool isGreek) = 0;
  // Closing the box without a button counts as Cancel if it has that button, else as No, else as
  // Ok.
  virtual Answer ShowMessage(const Message& message) = 0;
  // An input box for one line: pasted line breaks and other control characters come back as blanks,
  // half a surrogate pair as U+FFFD. Returns "" when the user cancels.
  virtual std::u16string AskText(std::u16string_view prompt, std::u16string_view title,
                                 std::u16string_view defaultText) = 0;
};

// Flags of a file dialog, with the classic numbers of the common dialog.
namespace dialog_flag {
inline constexpr std::uint32_t kOverwritePrompt = 0x2;
inline constexpr std::uint32_t kHideReadOnly = 0x4;
inline constexpr std::uint32_t kExtensionDifferent = 0x400;
inline constexpr std::uint32_t kPathMustExist = 0x800;
inline constexpr std::uint32_t kFileMustExist = 0x1000;
// The dialog refuses a file that exists and is read-only.
inline constexpr std::uint32_t kNoReadOnlyReturn = 0x8000;
}  // namespace dialog_flag

struct FileChoice {
  std::u16string title;
  std::u16string initialFolder;  // empty or missing: the platform's choice
  std::u16string defaultExtension;
  std::u16string fileName;  // in: the proposed name; out: the full path of the chosen file
  std::u16string filter;    // "description|pattern|..."
  std::uint32_t flags = 0;  // out: with kExtensionDifferent if that name has another extension
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
  // The path of an existing folder, ending in a separator. The dialog also offers a folder of the
  // name `suggestion` in the user's documents, which is made when the user chooses it there.
  virtual std::u16string ChooseFolder(std::u16string_view title, std::u16string_view initialFolder,
                                      std::u16string_view suggestion) = 0;
  virtual Color ShowColor(Color start) = 0;
  // The size of the result is between minimum and maximum.
  virtual FontChoice ShowFont(const FontChoice& start, double minimumSize, double maximumSize) = 0;
};

}  // namespace verlume
