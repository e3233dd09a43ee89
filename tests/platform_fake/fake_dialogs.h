// Boxes and dialogs that answer from a script. A box without an answer in the script throws
// std::logic_error, which fails the test.
#pragma once

#include <deque>
#include <functional>
#include <optional>
#include <vector>

#include "platform/dialogs.h"

namespace verlume::fake {

class FakeDialogs : public Dialogs {
 public:
  struct Asked {
    std::u16string prompt;
    std::u16string title;
    std::u16string defaultText;
  };

  void SetLanguage(bool greek) override { isGreek = greek; }
  Answer ShowMessage(const Message& message) override;
  std::u16string AskText(std::u16string_view prompt, std::u16string_view title,
                         std::u16string_view defaultText) override;

  // The script.
  std::deque<Answer> answers;
  std::deque<std::u16string> typed;  // "" is Cancel
  std::optional<bool> setsTick;      // what the user makes of each tick; left alone by default
  // Called while each box is open, before it is answered.
  std::function<void()> whileOpen;

  // What was shown.
  std::vector<Message> messages;
  std::vector<Tick> ticksShown;
  std::vector<Asked> asked;
  std::optional<bool> isGreek;
};

// An empty choice (no value) is a cancel.
class FakeCommonDialog : public CommonDialog {
 public:
  FileChoice ShowOpen(const FileChoice& start) override;
  FileChoice ShowSave(const FileChoice& start) override;
  std::u16string ChooseFolder(std::u16string_view title, std::u16string_view initialFolder,
                              std::u16string_view suggestion) override;
  Color ShowColor(Color start) override;
  FontChoice ShowFont(const FontChoice& start, double minimumSize, double maximumSize) override;

  // The script: each dialog shown takes the next value.
  std::deque<std::optional<FileChoice>> files;
  std::deque<std::optional<std::u16string>> folders;
  std::deque<std::optional<Color>> colors;
  std::deque<std::optional<FontChoice>> fonts;
  // Called while each dialog is open, before it is answered.
  std::function<void()> whileOpen;

  // What was shown.
  std::vector<FileChoice> filesShown;
  struct FolderShown {
    std::u16string title;
    std::u16string initialFolder;
    std::u16string suggestion;
  };
  std::vector<FolderShown> foldersShown;
  std::vector<Color> colorsShown;
  struct FontShown {
    FontChoice start;
    double minimumSize;
    double maximumSize;
  };
  std::vector<FontShown> fontsShown;
};

}  // namespace verlume::fake
