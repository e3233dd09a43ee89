#include "shell/language.h"

#include "shell/again_bar.h"
#include "shell/called_hosts.h"
#include "shell/delivery.h"
#include "shell/language_texts.h"
#include "shell/lines_below.h"
#include "shell/private_texts.h"
#include "shell/reach_texts.h"
#include "shell/resend_bar.h"
#include "shell/setting_names.h"
#include "shell/settings_reader.h"
#include "shell/status_panel.h"
#include "shell/welcome_card.h"
#include "shell/who_is_who.h"

namespace verlume {

void Language::ApplyLanguage() {
  errors_.Guard(Procedure::ApplyLanguage, [this] {
    const MainWindow& frmMain = platform_.frmMain;
    const bool isGreek = state_.IsGreek;
    state_.Title = kMainWindowTitle.In(isGreek);
    for (const auto& [set, text] : MenuAndToolTipTexts(frmMain)) set(text.In(isGreek));
    for (const auto& [set, text] : PanelTexts(frmMain)) set(text.In(isGreek));
    for (const auto& [set, text] : WelcomeCardTexts(frmMain.welcomeCard)) set(text.In(isGreek));
    for (const auto& [set, text] : AgainBarTexts(frmMain.againBar)) set(text.In(isGreek));
    for (const auto& [set, text] : ResendBarTexts(frmMain.resendBar)) set(text.In(isGreek));
    for (const auto& [set, text] : PrivateTexts(frmMain)) set(text.In(isGreek));
    for (const auto& [set, text] : PeopleWindowTexts(platform_.frmPeople)) set(text.In(isGreek));
    for (const auto& [set, text] : VerifyWindowTexts(platform_.frmVerify)) set(text.In(isGreek));
    for (const auto& [set, text] : ReachTexts(frmMain)) set(text.In(isGreek));
    for (const auto& [set, text] : ReachWindowTexts(platform_.frmReach)) set(text.In(isGreek));
    ShowLamp(state_, frmMain);
    ShowDelivery(state_, frmMain);
    ShowWelcomeCard(state_, platform_);
    ShowAgainBar(state_, platform_);
    ShowResendBar(state_, platform_);
    ShowCalledHosts(state_, platform_);
    ShowLinesBelow(state_, frmMain);
    ExplainRemoteNickname(state_, frmMain);
    SetAuthorWords(frmMain.rtbData, isGreek);
    frmMain.rtbData.RefreshSigns();
    frmMain.rtbData.SetLinkHint(kLinkHint.In(isGreek));
    frmMain.mnuToolsAlwaysOnTop.SetToolTip(
        frmMain.window.CanBeTopMost() ? u"" : kNeverTopMost.In(isGreek));
    if (onApplied) onApplied();
    frmMain.mnuToolsLanguageEnglish.SetChecked(!isGreek);
    frmMain.mnuToolsLanguageGreek.SetChecked(isGreek);
    platform_.dialogs.SetLanguage(isGreek);
    platform_.help.SetHelpFile(isGreek ? state_.HelpFileGreek : state_.HelpFileEnglish, isGreek);
    settings_.WriteSetting(setting_section::kGeneral, setting_key::kLanguage, LanguageText(state_));
  });
}

void Language::mnuToolsLanguageEnglish_Click() {
  state_.IsGreek = false;
  ApplyLanguage();
  platform_.frmMain.rtbCommands.SetFocus();
}

void Language::mnuToolsLanguageGreek_Click() {
  state_.IsGreek = true;
  ApplyLanguage();
  platform_.frmMain.rtbCommands.SetFocus();
}

}  // namespace verlume
