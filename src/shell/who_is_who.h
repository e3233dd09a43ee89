// What tells the user's lines from the peer's where a nickname does not.
#pragma once

#include <string>

#include "platform/main_window.h"
#include "shell/app_state.h"

namespace verlume {

// The author of what the peer says now: one of the three of the peer.
Author PeerAsAuthor(const AppState& state);

// Gives the dialogue pane the words of its margin, in the language in force.
void SetAuthorWords(RichTextBox& rtbData, bool isGreek);

// The tool tip of lblRemoteNickname. It says so if the nickname shown there reads like the user's,
// or holds angle brackets, such as stand around the nicknames in the dialogue.
void ExplainRemoteNickname(const AppState& state, const MainWindow& frmMain);

// A line for the log that tells the two nicknames apart; "" if they do not read alike. A letter
// that only one of them has, and that is no ASCII character, is shown as an escape.
std::u16string WhoIsWho(const AppState& state);

}  // namespace verlume
