#include "shell/about_box.h"

#include "shell/about_texts.h"
#include "shell/conversions.h"
#include "shell/language_texts.h"
#include "shell/maker_texts.h"
#include "shell/system_info.h"
#include "shell/version.h"

namespace verlume {

std::u16string VersionText() {
  return ZeroPaddedText(version::kMajor, 4) + u"." + ZeroPaddedText(version::kMinor, 4) + u"." +
         ZeroPaddedText(version::kRevision, 4);
}

void AboutBox::mnuHelpAbout_Click() {
  // After a failure the box is shown without what could not be set.
  errors_.Guard(Procedure::frmAbout_Load, [this] { Load(); });
  if (platform_.application.HasEnded()) return;
  platform_.frmAbout.window.ShowModal();
  platform_.frmMain.rtbCommands.SetFocus();
}

void AboutBox::Load() {
  const AboutWindow& frmAbout = platform_.frmAbout;
  const bool isGreek = state_.IsGreek;
  frmAbout.window.SetTitle(about_texts::kCaption.In(isGreek));
  frmAbout.picIcon.SetAccessibleName(about_texts::kIconName.In(isGreek));
  frmAbout.lblTitle.SetCaption(kMainWindowTitle.In(isGreek));
  frmAbout.lblVersion.SetCaption(about_texts::kVersion.Fill(isGreek, {VersionText()}));
  frmAbout.lblDescription.SetCaption(about_texts::kDescription.In(isGreek));
  frmAbout.lblDisclaimer.SetCaption(about_texts::kDisclaimer.In(isGreek));
  frmAbout.lblCredit.SetCaption(kMakersCredit.In(isGreek));
  frmAbout.cmdOK.SetCaption(about_texts::kOk.In(isGreek));
  frmAbout.cmdSysInfo.SetCaption(about_texts::kSystemInfo.In(isGreek));
  frmAbout.cmdOK.SetFocus();
}

void AboutBox::lblCopyright_MouseDown(MouseButton button) {
  if (button != MouseButton::Right) mnuHelpAbout_Click();
}

void AboutBox::cmdOK_Click() {
  platform_.frmAbout.window.Unload();
}

void AboutBox::cmdSysInfo_Click() {
  StartSysInfo(state_, platform_);
}

}  // namespace verlume
