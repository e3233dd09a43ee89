#include "macros/store/macro_store.h"

#include <algorithm>

#include "shell/folder_choice.h"
#include "shell/folder_texts.h"
#include "shell/folders.h"
#include "shell/setting_names.h"

namespace verlume {
namespace {

constexpr TextPair kSuggestedMacrosFolder = {u"Verlume macros", u"Μακροεντολές Verlume"};

constexpr TextPair kMacrosFolderDialogTitle = {
    u"Select the folder that will hold your macros",
    u"Επιλέξτε τον φάκελλο που θα περιέχει τις μακροεντολές σας"};

}  // namespace

bool IsValidMacroName(std::u16string_view name) {
  return name.find_first_of(u"\\/:*?\"<>|. ") == name.npos;
}

void MacroStore::ChooseMacrosFolder() {
  errors_.Guard(Procedure::ChooseMacrosFolder, [this] {
    const auto folder =
        ChooseFolder(platform_, kMacrosFolderDialogTitle.In(state_.IsGreek), state_.MacrosFolder,
                     kSuggestedMacrosFolder.In(state_.IsGreek));
    if (!folder) return;
    state_.MacrosFolder = *folder;
    settings_.WriteSetting(setting_section::kGeneral, setting_key::kMacrosFolder, *folder);
  });
  platform_.frmMain.rtbCommands.SetFocus();
}

bool MacroStore::EnsureMacrosFolder(const TextPair& refusalText, const TextPair& refusalTitle) {
  while (!FolderExists(platform_.files, state_.MacrosFolder)) {
    const Message question = Question(kMacrosFolderTexts.question.In(state_.IsGreek),
                                      kMacrosFolderTexts.title.In(state_.IsGreek), Answer::Yes);
    if (platform_.dialogs.ShowMessage(question) == Answer::Yes) {
      ChooseMacrosFolder();
      continue;
    }
    state_.MacrosFolder.clear();
    platform_.dialogs.ShowMessage(
        Note(refusalText.In(state_.IsGreek), refusalTitle.In(state_.IsGreek)));
    return false;
  }
  return true;
}

std::vector<std::u16string> MacroStore::ListMacroNames() const {
  const char16_t separator = platform_.files.Separator();
  std::vector<std::u16string> names = platform_.files.ListFiles(
      WithTrailingSeparator(state_.MacrosFolder, separator), kMacroExtension);
  for (std::u16string& name : names) name.resize(name.size() - kMacroExtension.size());
  std::erase_if(names, [&](const std::u16string& name) { return !CanNameAMacro(name, separator); });
  return names;
}

bool MacroStore::MacroExists(std::u16string_view name) const {
  return verlume::MacroExists(state_, platform_.files, name);
}

std::u16string MacroStore::MacroPath(std::u16string_view name) const {
  return verlume::MacroPath(state_, platform_.files, name);
}

std::u16string MacroStore::StoredName(std::u16string_view name) const {
  const std::vector<std::u16string> names = ListMacroNames();
  if (std::find(names.begin(), names.end(), name) != names.end()) return std::u16string(name);
  const std::u16string upper = platform_.locale.UpperCase(name);
  const auto same = std::find_if(names.begin(), names.end(), [&](const std::u16string& one) {
    return platform_.locale.UpperCase(one) == upper;
  });
  return same != names.end() ? *same : std::u16string(name);
}

}  // namespace verlume
