#include "shell/again_bar.h"

#include <string>

#include "shell/delivery.h"

namespace verlume {
namespace {

// %1 the peer's nickname, or its address
constexpr TextPair kHasEnded = {u"The connection to %1 has ended.", u"Η σύνδεση με %1 έληξε."};
constexpr TextPair kCallAgain = {u"Call again", u"Επανάληψη κλήσης"};
// %1 RemoteHost, %2 RemotePort
constexpr TextPair kCallAgainToolTip = {u"Call %1 on port %2", u"Κλήση του %1 στη θύρα %2"};
constexpr TextPair kWaitAgain = {u"Wait again", u"Επανάληψη αναμονής"};
// %1 LocalPort
constexpr TextPair kWaitAgainToolTip = {u"Wait for a call on port %1",
                                        u"Αναμονή για κλήση στη θύρα %1"};

}  // namespace

void OfferAgain(AppState& state, const Platform& platform) {
  state.OffersAgain = true;
  ShowAgainBar(state, platform);
}

void WithdrawAgain(AppState& state, const Platform& platform) {
  if (!state.OffersAgain) return;
  state.OffersAgain = false;
  const AgainBar& bar = platform.frmMain.againBar;
  if (bar.fraAgain.HasFocus()) platform.frmMain.rtbCommands.SetFocus();
  bar.fraAgain.SetVisible(false);
}

void ShowAgainBar(const AppState& state, const Platform& platform) {
  if (!state.OffersAgain) return;
  const AgainBar& bar = platform.frmMain.againBar;
  const bool isGreek = state.IsGreek;
  const bool hasNickname = !state.RemoteNickname.empty();
  std::u16string text =
      kHasEnded.Fill(isGreek, {hasNickname ? state.RemoteNickname : state.RemoteAddress});
  const std::size_t lost = state.Undelivered.CountFor(state.Undelivered.Current());
  if (lost > 0) text += u" " + UndeliveredText(lost, isGreek);
  bar.lblAgain.SetCaption(text);
  bar.fraAgain.SetAccessibleName(text);
  bar.cmdAgain.SetCaption((state.HasCalled ? kCallAgain : kWaitAgain).In(isGreek));
  bar.cmdAgain.SetToolTip(
      state.HasCalled
          ? kCallAgainToolTip.Fill(isGreek, {state.RemoteHost, DecimalText(state.RemotePort)})
          : kWaitAgainToolTip.Fill(isGreek, {DecimalText(state.LocalPort)}));
  bar.fraAgain.SetVisible(true);
}

std::vector<FixedText> AgainBarTexts(const AgainBar& bar) {
  Button& close = bar.cmdAgainClose;
  return {{[&close](std::u16string_view text) { close.SetCaption(text); }, {u"Close", u"Κλείσιμο"}},
          {[&close](std::u16string_view text) { close.SetToolTip(text); },
           {u"Close this bar (Esc)", u"Κλείσιμο της γραμμής (Esc)"}}};
}

}  // namespace verlume
