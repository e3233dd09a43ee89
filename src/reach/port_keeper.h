// The port that the router passes on while the user waits for a call, and through the conversation
// that comes of it; and the place that the user gives to whoever is to call.
#pragma once

#include "platform/platform.h"
#include "shell/app_state.h"
#include "shell/error_report.h"
#include "shell/settings.h"

namespace verlume {

// The wait, or the conversation that came of it, is over: gives the port back, and no place is
// given to others any more. Harmless without a wait.
void EndBeingCalled(AppState& state, const Platform& platform);

class PortKeeper {
 public:
  PortKeeper(AppState& state, Platform& platform, ErrorReport& errors, Settings& settings)
      : state_(state), platform_(platform), errors_(errors), settings_(settings) {}

  // The program listens on AppState::LocalPort, and the state is Waiting: asks the router for it if
  // the user allows that, or asks the user.
  void WaitBegins();

  void cmdRouterYes_Click() { Choose(RouterChoice::Yes); }
  void cmdRouterNo_Click() { Choose(RouterChoice::No); }
  // Not now: the user is asked again by the first wait after the next start.
  void cmdRouterClose_Click();
  // Yes becomes No, and gives the port back at once; anything else becomes Yes.
  void mnuCommAskRouter_Click();

  void router_Report();
  // A wait goes on: with the address that the machine has now, and the port asked for anew. Without
  // any network all stays as it is until there is one.
  void network_Change();

  // Shows all of it in the language in force.
  void ShowState();

 private:
  void Choose(RouterChoice choice);
  void ShowPlace();

  AppState& state_;
  Platform& platform_;
  ErrorReport& errors_;
  Settings& settings_;
  bool isPutOff_ = false;  // the question, until the next start
};

}  // namespace verlume
