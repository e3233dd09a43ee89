// The four states of the macro editor, in one table: everything that depends on the state of the
// window is set from its row and nowhere else.
#pragma once

#include <string_view>

#include "platform/macro_window.h"

namespace verlume {

enum class MacroEditorState {
  Empty,    // no macro is chosen
  Showing,  // a macro is shown
  New,      // a new macro is being written; it has no file yet
  Editing,  // a macro is being changed
};

// Sets the eight buttons, the text box's read-only switch, and both markers.
void EnterState(const MacroWindow& frmMacros, MacroEditorState state);

// Whether a marker is "no", in any letter case. The text box's marker is "no" while no macro is
// being written or changed. The list's marker is "no" while one is, because the list then stays on
// that macro, and while the list is empty.
bool SaysNo(std::u16string_view marker);

}  // namespace verlume
