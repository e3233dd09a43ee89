#include "platform_fake/fake_main_window.h"

namespace verlume::fake {

FakeMainWindow::FakeMainWindow(FakeFileSystem& files)
    : rtbData(files),
      rtbCommands(files, FakeRichTextBox::Lines::Single),
      rtbRemote(files),
      frmMain(MainWindowOf(*this)) {
  fraPanel.visible = true;
}

FakeMainWindow::~FakeMainWindow() = default;

}  // namespace verlume::fake
