#include "reach/outer_address.h"

#include "reach/router_verdict.h"
#include "shell/language_texts.h"
#include "shell/text_pair.h"

namespace verlume {
namespace {

// %1 the local address' own tool tip, %2 the outer address, %3 the outer port
constexpr TextPair kRouterSays = {u"%1. The router says: %2, port %3",
                                  u"%1. Ο δρομολογητής λέει: %2, θύρα %3"};
constexpr TextPair kNotOnInternet = {
    u"%1. The router says: %2, port %3, which the Internet cannot reach",
    u"%1. Ο δρομολογητής λέει: %2, θύρα %3, όπου δεν φτάνει το διαδίκτυο"};

}  // namespace

void ShowOuterAddress(const AppState& state, const Platform& platform) {
  const std::u16string_view local = kLocalAddressToolTip.In(state.IsGreek);
  const RouterVerdict router = VerdictOn(platform.router);
  const auto show = [&](const TextPair& text) {
    platform.frmMain.lblLocalIP.SetToolTip(
        text.Fill(state.IsGreek, {local, router.place.host, DecimalText(router.place.port)}));
  };
  switch (router.finding) {
    case RouterFinding::Passes:
    case RouterFinding::PassesHighPort:
      return show(kRouterSays);
    case RouterFinding::BehindRouter:
    case RouterFinding::BehindProvider:
      return show(kNotOnInternet);
    default:
      return platform.frmMain.lblLocalIP.SetToolTip(local);
  }
}

}  // namespace verlume
