#include "macros/macro_name_question.h"

#include "macros/macro_name_texts.h"
#include "macros/store/macro_store.h"

namespace verlume {

std::u16string AskMacroName(const AppState& state, Platform& platform, const TextPair& title,
                            std::u16string_view prompt, std::u16string_view proposed) {
  const bool isGreek = state.IsGreek;
  const std::u16string whole = std::u16string(prompt).append(macro_name_texts::kAvoid.In(isGreek));
  std::u16string name(proposed);
  while (!platform.application.HasEnded()) {
    name = platform.dialogs.AskText(whole, title.In(isGreek), name);
    if (name.empty() || IsValidMacroName(name)) return name;
    platform.dialogs.ShowMessage(
        Refusal(macro_name_texts::kWrongName.In(isGreek), title.In(isGreek)));
  }
  return {};
}

}  // namespace verlume
