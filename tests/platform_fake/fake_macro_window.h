// The macro editor's window in memory.
#pragma once

#include "platform/macro_window.h"
#include "platform_fake/fake_controls.h"
#include "platform_fake/fake_rich_text_box.h"

namespace verlume::fake {

struct FakeMacroWindow {
  explicit FakeMacroWindow(FakeFileSystem& files);
  ~FakeMacroWindow();

  FakeWindow window;
  FakeListBox lstMacroNames;
  FakeRichTextBox rtbMacroText;
  FakeButton cmdAdd;
  FakeButton cmdEdit;
  FakeButton cmdSave;
  FakeButton cmdSaveAs;
  FakeButton cmdCancel;
  FakeButton cmdDelete;
  FakeButton cmdRun;
  FakeButton cmdClose;
  FakeLabel lblColour;
  FakeCheckBox chkBold;
  FakeCheckBox chkItalics;
  FakeCheckBox chkUnderlined;

  // The logic's view of the window.
  MacroWindow frmMacros;
};

}  // namespace verlume::fake
