// The bar that offers to send the lines that the peer has not got in an earlier conversation.
#pragma once

#include <vector>

#include "platform/platform.h"
#include "shell/app_state.h"
#include "shell/language_texts.h"

namespace verlume {

// Shows the bar, in the language in force, during a conversation with a peer for whom lines are
// kept, and hides it otherwise: also while the user is asked about the peer, and once the user has
// closed it.
void ShowResendBar(const AppState& state, const Platform& platform);

// The captions and tool tips that do not change.
std::vector<FixedText> ResendBarTexts(const ResendBar& bar);

}  // namespace verlume
