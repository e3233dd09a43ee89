#include "reach/router_bar.h"

#include "shell/text_pair.h"

namespace verlume {
namespace {

constexpr TextPair kMayAskRouter = {
    u"May Verlume ask your router to pass calls from the Internet on to this computer while you "
    u"wait and talk? You can change this in the menu Communication.",
    u"Να ζητά το Verlume από τον δρομολογητή σας να προωθεί τις κλήσεις από το διαδίκτυο σε αυτόν "
    u"τον υπολογιστή, όσο περιμένετε και συνομιλείτε; Αυτό αλλάζει από το μενού Επικοινωνία."};

}  // namespace

void AskAboutRouter(AppState& state, const Platform& platform) {
  state.AsksAboutRouter = true;
  ShowRouterBar(state, platform);
  platform.attention.Announce(kMayAskRouter.In(state.IsGreek));
}

void WithdrawRouterBar(AppState& state, const Platform& platform) {
  if (!state.AsksAboutRouter) return;
  state.AsksAboutRouter = false;
  const FloatingPanel& bar = platform.frmMain.routerBar.fraRouter;
  if (bar.HasFocus()) platform.frmMain.rtbCommands.SetFocus();
  platform.frmMain.routerBar.fraRouter.SetVisible(false);
}

void ShowRouterBar(const AppState& state, const Platform& platform) {
  if (!state.AsksAboutRouter) return;
  const RouterBar& bar = platform.frmMain.routerBar;
  const std::u16string_view text = kMayAskRouter.In(state.IsGreek);
  bar.lblRouter.SetCaption(text);
  bar.fraRouter.SetAccessibleName(text);
  bar.fraRouter.SetVisible(true);
}

}  // namespace verlume
