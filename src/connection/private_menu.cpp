#include "connection/private_menu.h"

#include "shell/setting_names.h"
#include "shell/settings_reader.h"

namespace verlume {

void PrivateMenuChoice::Start() {
  platform_.privacy.SetOffer(state_.Offer);
  platform_.privacy.SetOwnName(state_.Nickname);
}

void PrivateMenuChoice::Choose(PrivacyOffer offer) {
  errors_.Guard(Procedure::mnuPrivate_Click, [this, offer] {
    state_.Offer = offer;
    ShowOffer(state_, platform_.frmMain);
    platform_.privacy.SetOffer(offer);
    // Whoever calls now needs the key that a wait in clear has not prepared.
    if (state_.IsWaiting && offer != PrivacyOffer::Never) {
      state_.OwnKeyFound = platform_.privacy.PrepareOwnKey();
    }
    settings_.WriteSetting(setting_section::kGeneral, setting_key::kPrivateConversations,
                           OfferText(offer));
  });
  platform_.frmMain.rtbCommands.SetFocus();
}

}  // namespace verlume
