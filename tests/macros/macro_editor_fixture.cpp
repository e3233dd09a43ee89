#include "macros/macro_editor_fixture.h"

namespace verlume {

MacroEditorTest::MacroEditorTest() {
  fake.files.MakeFolder(u"/macros");
  state.MacrosFolder = u"/macros/";
  state.Font.Name = u"Arial";
  state.Font.Size = 10;
  fake.files.files[u"/macros/bye.rtf"] = "{\\rtf1 See you}";
  fake.files.files[u"/macros/hello.rtf"] = "{\\rtf1{\\colortbl;\\red255;}\\b\\cf1 Good morning}";
  fake.files.files[u"/macros/plain.rtf"] = "no rich text";

  window.window.onQueryUnload = [this](bool& cancel, UnloadMode mode) {
    editor.Form_QueryUnload(cancel, mode);
  };
  list.onClick = [this] { editor.lstMacroNames_Click(); };
  text.onGotFocus = [this] { editor.rtbMacroText_GotFocus(); };
  text.onKeyDown = [this](int& code, int shift) { editor.rtbMacroText_KeyDown(code, shift); };
  text.onKeyPress = [this](int& code) { style.rtbMacroText_KeyPress(code); };
  text.onSelChange = [this] { style.rtbMacroText_SelChange(); };
  window.cmdAdd.onClick = [this] { editor.cmdAdd_Click(); };
  window.cmdEdit.onClick = [this] { editor.cmdEdit_Click(); };
  window.cmdSave.onClick = [this] { editor.cmdSave_Click(); };
  window.cmdSaveAs.onClick = [this] { editor.cmdSaveAs_Click(); };
  window.cmdCancel.onClick = [this] { editor.cmdCancel_Click(); };
  window.cmdDelete.onClick = [this] { editor.cmdDelete_Click(); };
  window.cmdRun.onClick = [this] { editor.cmdRun_Click(); };
  window.cmdClose.onClick = [this] { editor.cmdClose_Click(); };
  window.chkBold.onClick = [this] { style.chkBold_Click(); };
  window.chkItalics.onClick = [this] { style.chkItalics_Click(); };
  window.chkUnderlined.onClick = [this] { style.chkUnderlined_Click(); };
  window.lblColour.onMouseDown = [this](MouseButton b) { style.lblColour_MouseDown(b); };
}

MacroEditorTest::~MacroEditorTest() = default;

}  // namespace verlume
