// The menu that opens on the spot in the dialogue pane.
#pragma once

#include <cstddef>
#include <vector>

#include "commands/dialogue_links.h"
#include "commands/find_in_dialogue.h"
#include "platform/platform.h"
#include "shell/app_state.h"

namespace verlume {

class DialogueMenu {
 public:
  DialogueMenu(AppState& state, Platform& platform, FindInDialogue& find, DialogueLinks& links)
      : state_(state), platform_(platform), find_(find), links_(links) {}

  // The entries for a place in the text, in the language in force. What can do nothing is grey.
  std::vector<PopupEntry> rtbData_ContextMenu(std::size_t position);

  // Ctrl+C in the command pane, when nothing is selected there, copies what is selected in the
  // dialogue.
  void rtbCommands_KeyPress(int& charCode);

 private:
  std::vector<PopupEntry> CopyEntries();

  AppState& state_;
  Platform& platform_;
  FindInDialogue& find_;
  DialogueLinks& links_;
};

}  // namespace verlume
