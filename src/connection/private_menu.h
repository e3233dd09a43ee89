// The menu Tools > Private conversations, and what this program offers to its peers.
#pragma once

#include "platform/platform.h"
#include "shell/app_state.h"
#include "shell/error_report.h"
#include "shell/settings.h"

namespace verlume {

class PrivateMenuChoice {
 public:
  PrivateMenuChoice(AppState& state, Platform& platform, ErrorReport& errors, Settings& settings)
      : state_(state), platform_(platform), errors_(errors), settings_(settings) {}

  // At start-up, when the settings have been read: tells the platform the choice and the nickname.
  void Start();

  // Each makes the choice, for conversations that begin from now on, and saves it.
  void mnuPrivateWhenPossible_Click() { Choose(PrivacyOffer::WhenPossible); }
  void mnuPrivateOnly_Click() { Choose(PrivacyOffer::Only); }
  void mnuPrivateNever_Click() { Choose(PrivacyOffer::Never); }

 private:
  void Choose(PrivacyOffer offer);

  AppState& state_;
  Platform& platform_;
  ErrorReport& errors_;
  Settings& settings_;
};

}  // namespace verlume
