#include "macros/macro_saving.h"

#include "macros/macro_name_question.h"
#include "macros/macro_name_texts.h"
#include "macros/macro_saving_texts.h"

namespace verlume {

void MacroSaving::SaveCommandPaneAsMacro() {
  errors_.Guard(Procedure::SaveCommandPaneAsMacro, [this] {
    if (!store_.EnsureMacrosFolder(macro_saving_texts::kNoFolder, macro_saving_texts::kTitle))
      return;
    if (platform_.frmMain.rtbCommands.TextLength() == 0) {
      OfferTheEditor();
    } else {
      SaveUnderAName();
    }
  });
  platform_.frmMain.rtbCommands.SetFocus();
}

void MacroSaving::SaveUnderAName() {
  const std::u16string name = AskName();
  if (name.empty()) return;
  RichTextBox& pane = platform_.frmMain.rtbCommands;
  pane.SaveFile(store_.MacroPath(name), TextFileFormat::RichText);
  pane.SetText(u"");
}

void MacroSaving::OfferTheEditor() {
  Message question = Question(macro_saving_texts::kNothingTyped.In(state_.IsGreek),
                              macro_saving_texts::kTitle.In(state_.IsGreek), Answer::Yes);
  question.icon = MessageIcon::Information;
  if (platform_.dialogs.ShowMessage(question) != Answer::No) {
    platform_.frmMain.mnuToolsEditMacros.Click();
  }
}

// "" when the user gives up.
std::u16string MacroSaving::AskName() {
  std::u16string name;
  while (!platform_.application.HasEnded()) {
    name = AskMacroName(state_, platform_, macro_saving_texts::kNameTitle,
                        macro_saving_texts::kNamePrompt.In(state_.IsGreek), name);
    if (name.empty()) {
      if (platform_.application.HasEnded() || GivesUpSaving()) return {};
    } else if (!store_.MacroExists(name) || WantsToReplace(name)) {
      return name;
    }
  }
  return {};
}

bool MacroSaving::GivesUpSaving() {
  const Message question = Question(macro_saving_texts::kNoName.In(state_.IsGreek),
                                    macro_saving_texts::kTitle.In(state_.IsGreek), Answer::Yes);
  return platform_.dialogs.ShowMessage(question) == Answer::Yes;
}

bool MacroSaving::WantsToReplace(std::u16string_view name) {
  Message question = Question(macro_name_texts::kReplace.Fill(state_.IsGreek, {name}),
                              macro_saving_texts::kNameTitle.In(state_.IsGreek), Answer::No);
  question.icon = MessageIcon::Stop;
  return platform_.dialogs.ShowMessage(question) == Answer::Yes;
}

}  // namespace verlume
