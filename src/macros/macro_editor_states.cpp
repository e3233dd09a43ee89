#include "macros/macro_editor_states.h"

#include <array>

namespace verlume {
namespace {

constexpr std::u16string_view kNo = u"no";

struct Row {
  bool add, edit, save, saveAs, cancel, remove, run, close;
  bool editable;  // the text box; the list is pinned then
};

constexpr bool on = true;
constexpr bool off = false;

// In the order of MacroEditorState.
constexpr std::array<Row, 4> kRows = {{
    // add, edit, save, saveAs, cancel, delete, run, close, editable
    {on, off, off, off, off, off, off, on, off},  // Empty
    {on, on, off, off, off, on, on, on, off},     // Showing
    {off, off, on, off, on, off, off, off, on},   // New
    {off, off, on, on, on, off, off, off, on},    // Editing
}};

}  // namespace

void EnterState(const MacroWindow& frmMacros, MacroEditorState state) {
  const Row& row = kRows[static_cast<std::size_t>(state)];
  frmMacros.rtbMacroText.SetLocked(!row.editable);
  frmMacros.rtbMacroText.SetTag(row.editable ? u"" : kNo);
  frmMacros.lstMacroNames.SetTag(row.editable || frmMacros.lstMacroNames.Count() == 0 ? kNo : u"");
  frmMacros.cmdAdd.SetEnabled(row.add);
  frmMacros.cmdEdit.SetEnabled(row.edit);
  frmMacros.cmdSave.SetEnabled(row.save);
  frmMacros.cmdSaveAs.SetEnabled(row.saveAs);
  frmMacros.cmdCancel.SetEnabled(row.cancel);
  frmMacros.cmdDelete.SetEnabled(row.remove);
  frmMacros.cmdRun.SetEnabled(row.run);
  frmMacros.cmdClose.SetEnabled(row.close);
}

bool SaysNo(std::u16string_view marker) {
  return marker.size() == 2 && (marker[0] == u'n' || marker[0] == u'N') &&
         (marker[1] == u'o' || marker[1] == u'O');
}

}  // namespace verlume
