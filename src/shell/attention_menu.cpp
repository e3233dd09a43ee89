#include "shell/attention_menu.h"

#include "shell/conversions.h"
#include "shell/setting_names.h"

namespace verlume {

void AttentionSwitches::ShowState() {
  const AttentionMenu& menu = platform_.frmMain.attentionMenu;
  const bool canNotify = platform_.attention.CanNotify();
  menu.mnuAttentionLines.SetEnabled(canNotify);
  menu.mnuAttentionText.SetEnabled(canNotify && state_.NotifyLines);
}

void AttentionSwitches::mnuAttentionLines_Click() {
  Switch(platform_.frmMain.attentionMenu.mnuAttentionLines, state_.NotifyLines,
         setting_key::kNotifyLines);
  if (!state_.NotifyLines) platform_.attention.Withdraw();
}

void AttentionSwitches::mnuAttentionText_Click() {
  Switch(platform_.frmMain.attentionMenu.mnuAttentionText, state_.NotifyText,
         setting_key::kNotifyText);
}

void AttentionSwitches::mnuAttentionSound_Click() {
  Switch(platform_.frmMain.attentionMenu.mnuAttentionSound, state_.NotifySound,
         setting_key::kNotifySound);
}

void AttentionSwitches::mnuAttentionCount_Click() {
  Switch(platform_.frmMain.attentionMenu.mnuAttentionCount, state_.NotifyCount,
         setting_key::kNotifyCount);
  if (!state_.NotifyCount) platform_.attention.SetCount(0);
}

void AttentionSwitches::Switch(MenuEntry& entry, bool& field, std::u16string_view key) {
  errors_.Guard(Procedure::Attention, [&] {
    field = !field;
    entry.SetChecked(field);
    ShowState();
    settings_.WriteSetting(setting_section::kGeneral, key, BooleanText(field));
  });
  platform_.frmMain.rtbCommands.SetFocus();
}

}  // namespace verlume
