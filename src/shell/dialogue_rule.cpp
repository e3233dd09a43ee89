#include "shell/dialogue_rule.h"

#include <string>

#include "shell/date_time_text.h"

namespace verlume {

void AddDialogueRule(const AppState& state, const Platform& platform, const TextPair& text,
                     std::initializer_list<std::u16string_view> values) {
  const std::u16string time = u", " + TimeText(platform.clock);
  platform.frmMain.rtbData.AddRule(
      [&state, english = text.Fill(false, values) + time, greek = text.Fill(true, values) + time] {
        return state.IsGreek ? greek : english;
      });
}

}  // namespace verlume
