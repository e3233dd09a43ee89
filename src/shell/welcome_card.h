// The card on the empty dialogue pane: what the program is, the first steps, and the address that
// a friend calls.
#pragma once

#include <vector>

#include "platform/platform.h"
#include "shell/app_state.h"
#include "shell/language_texts.h"

namespace verlume {

// Shows the card while the dialogue pane is empty and no connection is being made, or hides it. To
// be called whenever the pane, the connection, its note or the local address has changed. Cheap
// while the card is hidden and stays so.
void ShowWelcomeCard(const AppState& state, const Platform& platform);

// The captions that do not change, and the tool tips.
std::vector<FixedText> WelcomeCardTexts(const WelcomeCard& card);

}  // namespace verlume
