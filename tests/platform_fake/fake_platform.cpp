#include "platform_fake/fake_platform.h"

namespace verlume::fake {

FakePlatform::FakePlatform(FakeNetwork& network)
    : window(files),
      macros(files),
      socket(network),
      platform{
          .frmMain = window.frmMain,
          .frmAbout = about.frmAbout,
          .frmMacros = macros.frmMacros,
          .frmPeople = people.frmPeople,
          .frmVerify = verify.frmVerify,
          .frmReach = reach.frmReach,
          .sckControl = socket,
          .privacy = socket.privacy,
          .router = router,
          .network = addresses,
          .dialogs = dialogs,
          .dlgControl = commonDialog,
          .files = files,
          .clock = clock,
          .locale = locale,
          .application = application,
          .help = help,
          .tools = tools,
          .clipboard = clipboard,
          .links = links,
          .attention = attention,
      } {
  files.MakeFolder(u"/verlume");
}

FakePlatform::~FakePlatform() = default;

}  // namespace verlume::fake
