#include "shell/delivery.h"

#include <utility>

#include "shell/language_texts.h"
#include "shell/text_pair.h"

namespace verlume {
namespace {

constexpr TextPair kWaiting = {u"%1 waiting", u"%1 σε αναμονή"};
constexpr TextPair kOneUndelivered = {u"%1 line was not delivered.", u"%1 γραμμή δεν παραδόθηκε."};
constexpr TextPair kUndelivered = {u"%1 lines were not delivered.", u"%1 γραμμές δεν παραδόθηκαν."};

constexpr TextPair kOneUndeliveredBefore = {
    u"%1 line of the conversation before was not delivered.",
    u"%1 γραμμή της προηγούμενης συνομιλίας δεν παραδόθηκε."};
constexpr TextPair kUndeliveredBefore = {
    u"%1 lines of the conversation before were not delivered.",
    u"%1 γραμμές της προηγούμενης συνομιλίας δεν παραδόθηκαν."};

constexpr TextPair kOneTurnedAway = {u"Calls from %1 are turned away.",
                                     u"Οι κλήσεις από %1 απορρίπτονται."};
// %1 an address, %2 how many besides
constexpr TextPair kTurnedAway = {u"Calls from %1 and %2 more are turned away.",
                                  u"Οι κλήσεις από %1 και %2 ακόμη απορρίπτονται."};

std::u16string TurnedAwayText(const std::vector<std::u16string>& addresses, bool isGreek) {
  const auto others = static_cast<long long>(addresses.size()) - 1;
  return others == 0 ? kOneTurnedAway.Fill(isGreek, {addresses[0]})
                     : kTurnedAway.Fill(isGreek, {addresses[0], DecimalText(others)});
}

std::u16string Fill(const TextPair& one, const TextPair& several, std::size_t lines, bool isGreek) {
  return (lines == 1 ? one : several).Fill(isGreek, {DecimalText(static_cast<long long>(lines))});
}

}  // namespace

std::u16string UndeliveredText(std::size_t lines, bool isGreek) {
  return Fill(kOneUndelivered, kUndelivered, lines, isGreek);
}

void ShowDelivery(const AppState& state, const MainWindow& frmMain) {
  const bool isGreek = state.IsGreek;
  frmMain.lblWaiting.SetCaption(
      state.LinesWaiting == 0
          ? std::u16string()
          : kWaiting.Fill(isGreek, {DecimalText(static_cast<long long>(state.LinesWaiting))}));
  std::u16string toolTip(kStatusToolTip.In(isGreek));
  bool isFirst = true;
  const auto add = [&](const std::u16string& sentence) {
    toolTip += (std::exchange(isFirst, false) ? u": " : u" ") + sentence;
  };
  if (const std::u16string& note = state.ConnectionNote.In(isGreek); !note.empty()) add(note);
  if (state.LinesUndelivered > 0) {
    const std::size_t lines = state.LinesUndelivered;
    add(state.UndeliveredBefore ? Fill(kOneUndeliveredBefore, kUndeliveredBefore, lines, isGreek)
                                : UndeliveredText(lines, isGreek));
  }
  if (!state.TurnedAway.empty()) add(TurnedAwayText(state.TurnedAway, isGreek));
  frmMain.lblStatus.SetToolTip(toolTip);
}

}  // namespace verlume
