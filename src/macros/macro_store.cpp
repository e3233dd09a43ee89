#include "macros/macro_store.h"

#include "macros/folder_choice.h"
#include "shell/text_pair.h"

namespace verlume {
namespace {

constexpr TextPair kMacrosFolderDialogTitle = {
    u"Select the folder that will hold your macros",
    u"Επιλέξτε τον φάκελλο που θα περιέχει τις μακροεντολές σας"};

}  // namespace

void MacroStore::ChooseMacrosFolder() {
  errors_.Guard(Procedure::ChooseMacrosFolder, [this] {
    const auto folder =
        ChooseFolder(platform_, kMacrosFolderDialogTitle.In(state_.IsGreek), state_.MacrosFolder);
    if (!folder) return;
    state_.MacrosFolder = *folder;
    settings_.WriteSetting(u"General", u"Macrosfolder", *folder);
  });
  platform_.frmMain.rtbCommands.SetFocus();
}

}  // namespace verlume
