// Why a call or a wait has failed, and what to do next. The status line only says that it has.
#pragma once

#include <initializer_list>
#include <string_view>

#include "connection/note_texts.h"
#include "platform/platform.h"
#include "platform/run_time_failure.h"
#include "shell/app_state.h"

namespace verlume {

// Shows the note in the tool tip of lblStatus, and on the welcome card, until the next attempt; its
// reason as a rule in the dialogue pane, too. The values are filled in for "%1", "%2"...
void ShowConnectionNote(AppState& state, const Platform& platform, const NoteText& text,
                        std::initializer_list<std::u16string_view> values = {});
// The next attempt begins: the last one is no longer explained, nor offered again.
void BeginAttempt(AppState& state, const Platform& platform);

// Why the call to AppState's RemoteHost and RemotePort has ended before the handshake. The socket
// knows it; if it says CallFailure::None, the other side took the call and ended it.
void ExplainFailedCall(AppState& state, const Platform& platform);
// The caller that was accepted has left before the handshake.
void ExplainFailedWait(AppState& state, const Platform& platform);
// Why the keys could not be proved. Not for None.
void ExplainPrivacyFailure(AppState& state, const Platform& platform, PrivacyFailure failure);
// Why this port cannot be waited on. Says nothing of other failures.
void ExplainRefusedPort(AppState& state, const Platform& platform, std::int32_t port,
                        FailureNumber failure);

}  // namespace verlume
