#include "platform_fake/fake_macro_window.h"

namespace verlume::fake {

FakeMacroWindow::FakeMacroWindow(FakeFileSystem& files)
    : rtbMacroText(files, FakeRichTextBox::Lines::Single),
      frmMacros{
          .window = window,
          .lstMacroNames = lstMacroNames,
          .rtbMacroText = rtbMacroText,
          .cmdAdd = cmdAdd,
          .cmdEdit = cmdEdit,
          .cmdSave = cmdSave,
          .cmdSaveAs = cmdSaveAs,
          .cmdCancel = cmdCancel,
          .cmdDelete = cmdDelete,
          .cmdRun = cmdRun,
          .cmdClose = cmdClose,
          .lblColour = lblColour,
          .chkBold = chkBold,
          .chkItalics = chkItalics,
          .chkUnderlined = chkUnderlined,
      } {}

FakeMacroWindow::~FakeMacroWindow() = default;

}  // namespace verlume::fake
