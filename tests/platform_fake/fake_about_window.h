// The About box in memory.
#pragma once

#include "platform/about_window.h"
#include "platform_fake/fake_controls.h"

namespace verlume::fake {

struct FakeAboutWindow {
  FakeAboutWindow();
  ~FakeAboutWindow();

  FakeWindow window;
  FakePicture picIcon;
  FakeLabel lblTitle;
  FakeLabel lblVersion;
  FakeLabel lblDescription;
  FakeLabel lblDisclaimer;
  FakeLabel lblCredit;
  FakeButton cmdOK;
  FakeButton cmdSysInfo;

  // The logic's view of the window.
  AboutWindow frmAbout;
};

}  // namespace verlume::fake
