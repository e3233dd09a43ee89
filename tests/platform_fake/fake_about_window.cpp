#include "platform_fake/fake_about_window.h"

namespace verlume::fake {

FakeAboutWindow::FakeAboutWindow()
    : frmAbout{
          .window = window,
          .picIcon = picIcon,
          .lblTitle = lblTitle,
          .lblVersion = lblVersion,
          .lblDescription = lblDescription,
          .lblDisclaimer = lblDisclaimer,
          .lblCredit = lblCredit,
          .cmdOK = cmdOK,
          .cmdSysInfo = cmdSysInfo,
      } {}

FakeAboutWindow::~FakeAboutWindow() = default;

}  // namespace verlume::fake
