// The bar after a conversation that the user has not ended: it offers to call or to wait again.
#pragma once

#include <vector>

#include "platform/platform.h"
#include "shell/app_state.h"
#include "shell/language_texts.h"

namespace verlume {

// The peer has closed the connection, or it broke. AppState still knows the peer.
void OfferAgain(AppState& state, const Platform& platform);
// A new attempt begins, a line is sent, or the user has closed the bar. Cheap while there is none.
void WithdrawAgain(AppState& state, const Platform& platform);
// Shows the bar if there is an offer, in the language in force.
void ShowAgainBar(const AppState& state, const Platform& platform);

// The captions that do not change, and the tool tips.
std::vector<FixedText> AgainBarTexts(const AgainBar& bar);

}  // namespace verlume
