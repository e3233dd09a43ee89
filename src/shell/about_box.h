// The About box.
#pragma once

#include "platform/platform.h"
#include "shell/app_state.h"
#include "shell/error_report.h"

namespace verlume {

class AboutBox {
 public:
  AboutBox(AppState& state, Platform& platform, ErrorReport& errors)
      : state_(state), platform_(platform), errors_(errors) {}

  // Shows the box, in the language in force, until the user closes it.
  void mnuHelpAbout_Click();
  // Also handles picCopyright: any button but the right one shows the box.
  void lblCopyright_MouseDown(MouseButton button);

  void cmdOK_Click();
  void cmdSysInfo_Click();

 private:
  void Load();

  AppState& state_;
  Platform& platform_;
  ErrorReport& errors_;
};

// The program's major, minor and revision numbers, as in "0001.0000.0000".
std::u16string VersionText();

}  // namespace verlume
