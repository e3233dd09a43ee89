// Character codes of a key press (RichTextBox::onKeyPress).
#pragma once

namespace verlume::char_code {

// What a handler sets a code to, so that the box does not see the key. The same goes for the key
// code of onKeyDown.
inline constexpr int kSwallowed = 0;

// Ctrl+A to Ctrl+Z are 1 to 26.
inline constexpr int kCtrlA = 1;
inline constexpr int kCtrlB = 2;
inline constexpr int kCtrlC = 3;
inline constexpr int kCtrlF = 6;
inline constexpr int kCtrlI = 9;  // and Tab
inline constexpr int kCtrlEnter = 10;
inline constexpr int kCtrlK = 11;
inline constexpr int kEnter = 13;
inline constexpr int kCtrlS = 19;
inline constexpr int kCtrlU = 21;
inline constexpr int kDelete = 127;  // types nothing

}  // namespace verlume::char_code
