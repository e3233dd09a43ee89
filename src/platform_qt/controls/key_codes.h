// Converts Qt's keys to the codes of a rich-text box's key events.
#pragma once

#include <QKeyEvent>

namespace verlume::qt {

// The code for onKeyDown; kOther for a key that has none.
int KeyCodeOf(const QKeyEvent& event);
// Shift 1, Ctrl 2, Alt 4.
int ShiftOf(const QKeyEvent& event);
// The character for onKeyPress; 0 if the key types none. With Ctrl, a Greek letter counts as the
// Latin letter on the same key.
int CharCodeOf(const QKeyEvent& event);

// The Latin letter on the key of a Greek letter; any other key is returned as it is.
Qt::Key LatinKeyOf(const QKeyEvent& event);

// Either Enter key of the keyboard.
bool IsEnter(const QKeyEvent& event);

}  // namespace verlume::qt
