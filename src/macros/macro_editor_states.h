// The four states of the macro editor, in one table: everything that follows from the state of the
// window is set from its row and from nowhere else.
#pragma once

#include <string_view>

#include "platform/macro_window.h"

namespace verlume {

enum class MacroEditorState {
  Empty,    // no macro is chosen
  Showing,  // a macro is shown
  New,      // one is being written that has no file yet
  Editing,  // one is being changed
};

// Sets the eight buttons, the read-only switch of the text box, and both markers.
void EnterState(const MacroWindow& frmMacros, MacroEditorState state);

// Whether a marker says "no", in any letter case. That of the text box says so while macros are
// looked through; that of the list while it is pinned to the macro that is written or changed, and
// while it is empty.
bool SaysNo(std::u16string_view marker);

}  // namespace verlume
