// A command pane with its list of completions, connected as in the program.
#pragma once

#include <gmock/gmock.h>

#include "commands/completion.h"
#include "commands/typing_side.h"

namespace verlume::fake {

class CompletionSide : public TypingSide {
 protected:
  CompletionSide();
  ~CompletionSide() override;

  bool IsOpen() const { return window.fraCompletions.visible; }
  // The words of the list, and what a row says of its word.
  std::vector<std::u16string> Rows() const {
    std::vector<std::u16string> words;
    for (const std::u16string& row : window.lstCompletions.items) {
      words.push_back(row.substr(0, row.find(u'\t')));
    }
    return words;
  }
  std::u16string RowWith(std::u16string_view word) const {
    const std::u16string start = std::u16string(word) + u'\t';
    for (const std::u16string& row : window.lstCompletions.items) {
      if (row.starts_with(start)) return row.substr(start.size());
    }
    return {};
  }
  std::u16string Hint() const { return window.lblHint.caption; }
  int Selected() const { return window.lstCompletions.selected; }
  void MakeMacro(std::u16string_view name, std::string rtf = "{\\rtf1 waves}") {
    fake.files.files[u"/macros/" + std::u16string(name) + u".rtf"] = rtf;
  }
  // Presses a key that the list takes, and returns the text of the pane afterwards.
  std::u16string Press(int key) {
    EXPECT_FALSE(pane.PressKey(key));
    return pane.Text();
  }

  FakeRichTextBox& pane = window.rtbCommands;
  MacroStore macroStore{state, fake.platform, errors, settings};
  CommandCompletion completion{state, fake.platform, errors, settings, macroStore, history};
};

}  // namespace verlume::fake
