#include "reach/port_keeper.h"

#include "reach/outer_address.h"
#include "reach/place_to_give.h"
#include "reach/reach_facts.h"
#include "reach/router_bar.h"
#include "shell/setting_names.h"
#include "shell/settings_reader.h"
#include "shell/welcome_card.h"

namespace verlume {

void EndBeingCalled(AppState& state, const Platform& platform) {
  platform.router.Release();
  WithdrawRouterBar(state, platform);
  state.Place = {};
  ShowOuterAddress(state, platform);
}

void PortKeeper::WaitBegins() {
  if (state_.AskRouter == RouterChoice::Yes) platform_.router.MapPort(state_.LocalPort);
  ShowPlace();
  if (state_.AskRouter == RouterChoice::NotYet && !isPutOff_) AskAboutRouter(state_, platform_);
}

void PortKeeper::Choose(RouterChoice choice) {
  errors_.Guard(Procedure::RouterPort, [this, choice] {
    state_.AskRouter = choice;
    ShowRouterChoice(state_, platform_.frmMain);
    WithdrawRouterBar(state_, platform_);
    if (choice != RouterChoice::Yes) platform_.router.Release();
    if (choice == RouterChoice::Yes && state_.IsWaiting) {
      platform_.router.MapPort(state_.LocalPort);
    }
    ShowPlace();
    settings_.WriteSetting(setting_section::kGeneral, setting_key::kAskRouter,
                           RouterChoiceText(choice));
  });
  platform_.frmMain.rtbCommands.SetFocus();
}

void PortKeeper::cmdRouterClose_Click() {
  isPutOff_ = true;
  WithdrawRouterBar(state_, platform_);
  platform_.frmMain.rtbCommands.SetFocus();
}

void PortKeeper::mnuCommAskRouter_Click() {
  Choose(state_.AskRouter == RouterChoice::Yes ? RouterChoice::No : RouterChoice::Yes);
}

void PortKeeper::router_Report() {
  errors_.Guard(Procedure::RouterPort, [this] { ShowPlace(); });
}

void PortKeeper::network_Change() {
  errors_.Guard(Procedure::RouterPort, [this] {
    if (!IsOnNetwork(platform_.network.Addresses())) return;
    if (state_.IsWaiting) {
      state_.LocalAddress = platform_.sckControl.LocalIP();
      platform_.frmMain.lblLocalIP.SetCaption(state_.LocalAddress);
    }
    if (const std::int32_t port = platform_.router.Port()) platform_.router.MapPort(port);
    ShowPlace();
  });
}

void PortKeeper::ShowState() {
  ShowRouterBar(state_, platform_);
  ShowOuterAddress(state_, platform_);
}

void PortKeeper::ShowPlace() {
  if (state_.IsWaiting) {
    state_.Place = PlaceToGive(platform_.network.Addresses(), VerdictOn(platform_.router),
                               state_.LocalAddress, state_.LocalPort);
  }
  ShowOuterAddress(state_, platform_);
  ShowWelcomeCard(state_, platform_);
}

}  // namespace verlume
