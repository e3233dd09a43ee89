// What the modal windows are put together from.
#pragma once

#include <QLabel>
#include <QPushButton>

namespace verlume::qt {

// A plain text over as many lines as it needs, which can be selected and copied by mouse and
// keyboard.
QLabel* NewFormText(QWidget* form, const char* name);
// A plain text in one line.
QLabel* NewFormCaption(QWidget* form, const char* name);
QPushButton* NewFormButton(QWidget* form, const char* name);
// The width for a table of so many average characters, in pixels; in every font a window with it
// fits on a screen that is 640 wide.
int FormTableWidth(const QWidget& form, int columns);

}  // namespace verlume::qt
