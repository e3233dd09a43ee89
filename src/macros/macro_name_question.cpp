#include "macros/macro_name_question.h"

#include "macros/macro_name_texts.h"
#include "macros/store/macro_store.h"

namespace verlume {
namespace {

// Why a macro cannot have the name; "" if it can.
std::u16string RefusalOf(std::u16string_view name, const FileSystem& files, bool isGreek) {
  if (!IsValidMacroName(name)) return std::u16string(macro_name_texts::kWrongName.In(isGreek));
  if (!files.IsNameOfDevice(name)) return {};
  return macro_name_texts::kNameOfDevice.Fill(isGreek, {name});
}

}  // namespace

std::u16string AskMacroName(const AppState& state, Platform& platform, const TextPair& title,
                            std::u16string_view prompt, std::u16string_view proposed) {
  const bool isGreek = state.IsGreek;
  const std::u16string whole = std::u16string(prompt).append(macro_name_texts::kAvoid.In(isGreek));
  std::u16string name(proposed);
  while (!platform.application.HasEnded()) {
    name = platform.dialogs.AskText(whole, title.In(isGreek), name);
    const std::u16string refusal = RefusalOf(name, platform.files, isGreek);
    if (refusal.empty()) return name;
    platform.dialogs.ShowMessage(Refusal(refusal, title.In(isGreek)));
  }
  return {};
}

}  // namespace verlume
