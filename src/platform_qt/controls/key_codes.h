// Qt's keys as the codes of a rich-text box's key events.
#pragma once

#include <QKeyEvent>

namespace verlume::qt {

// The code for onKeyDown; kOther for a key without one of its own.
int KeyCodeOf(const QKeyEvent& event);
// Shift 1, Ctrl 2, Alt 4.
int ShiftOf(const QKeyEvent& event);
// The character for onKeyPress; 0 for a key that types none. With Ctrl a Greek letter is the Latin
// one of its key.
int CharCodeOf(const QKeyEvent& event);

// The Latin letter on the key of a Greek one; the key itself where it is not Greek.
Qt::Key LatinKeyOf(const QKeyEvent& event);

// Enter, wherever it is on the keyboard.
bool IsEnter(const QKeyEvent& event);

}  // namespace verlume::qt
