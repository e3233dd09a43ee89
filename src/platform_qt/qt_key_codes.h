// Qt's keys as the codes of a rich-text box's key events.
#pragma once

#include <QKeyEvent>

namespace verlume::qt {

// The code for onKeyDown; 0 for a key without one of its own.
int KeyCodeOf(const QKeyEvent& event);
// Shift 1, Ctrl 2, Alt 4.
int ShiftOf(const QKeyEvent& event);
// The character for onKeyPress; 0 for a key that types none.
int CharCodeOf(const QKeyEvent& event);

// Enter, wherever it is on the keyboard.
bool IsEnter(const QKeyEvent& event);

}  // namespace verlume::qt
