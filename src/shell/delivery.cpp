#include "shell/delivery.h"

#include "shell/language_texts.h"
#include "shell/text_pair.h"

namespace verlume {
namespace {

constexpr TextPair kWaiting = {u"%1 waiting", u"%1 σε αναμονή"};
constexpr TextPair kOneUndelivered = {u"%1 line was not delivered.",
                                      u"%1 γραμμή δεν παραδόθηκε."};
constexpr TextPair kUndelivered = {u"%1 lines were not delivered.",
                                   u"%1 γραμμές δεν παραδόθηκαν."};

}  // namespace

std::u16string UndeliveredText(std::size_t lines, bool isGreek) {
  const TextPair& text = lines == 1 ? kOneUndelivered : kUndelivered;
  return text.Fill(isGreek, {DecimalText(static_cast<long long>(lines))});
}

void ShowDelivery(const AppState& state, const MainWindow& frmMain) {
  const bool isGreek = state.IsGreek;
  frmMain.lblWaiting.SetCaption(
      state.LinesWaiting == 0
          ? std::u16string()
          : kWaiting.Fill(isGreek, {DecimalText(static_cast<long long>(state.LinesWaiting))}));
  std::u16string toolTip(kStatusToolTip.In(isGreek));
  if (state.LinesUndelivered > 0) {
    toolTip += u": " + UndeliveredText(state.LinesUndelivered, isGreek);
  }
  frmMain.lblStatus.SetToolTip(toolTip);
}

}  // namespace verlume
