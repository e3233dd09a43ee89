// The About box, frmAbout, as the logic sees it: references to its controls, by name.
#pragma once

#include "platform/control.h"
#include "platform/window.h"

namespace verlume {

struct AboutWindow {
  Window& window;
  Picture& picIcon;
  Label& lblTitle;
  Label& lblVersion;
  Label& lblDescription;
  Label& lblDisclaimer;
  Label& lblCredit;
  Button& cmdOK;  // the default button
  Button& cmdSysInfo;
};

}  // namespace verlume
