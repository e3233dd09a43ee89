// The controls of a window, one small interface each. A control raises an event by calling the
// function stored in the event's member, on the user-interface thread; an empty function is
// ignored. Setting a property raises no event unless its comment says so.
#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "richtext/document.h"

namespace verlume {

enum class MouseButton { Left, Right, Other };

// What every control can do.
class Control {
 public:
  virtual ~Control() = default;

  // The tool tip, which is also the control's description for assistive tools.
  virtual void SetToolTip(std::u16string_view text) = 0;
  virtual std::u16string ToolTip() const = 0;
  // The name that assistive tools read. A control with a caption needs none.
  virtual void SetAccessibleName(std::u16string_view name) = 0;
  // Takes the keyboard focus within its window; never raises a window above other programs'
  // windows.
  virtual void SetFocus() = 0;
  // Opens the paragraph about the control in the current help file.
  virtual void ShowContextHelp() = 0;

  std::function<void(MouseButton)> onMouseDown;
  std::function<void(MouseButton)> onMouseUp;
};

// A line of plain text, never interpreted as markup.
class Label : public Control {
 public:
  virtual void SetCaption(std::u16string_view text) = 0;
  virtual std::u16string Caption() const = 0;
  // The spare text property: kept, never shown.
  virtual void SetTag(std::u16string_view text) = 0;
  virtual std::u16string Tag() const = 0;
  virtual void SetBackColor(Color color) = 0;
  // The height, in the units of Picture::Height.
  virtual void SetHeight(int height) = 0;
};

class Picture : public Control {
 public:
  virtual int Height() const = 0;
};

// The lamp inside picShape: a filled shape with a border.
class Lamp {
 public:
  virtual ~Lamp() = default;
  virtual void SetFillColor(Color color) = 0;
  virtual void SetBorderColor(Color color) = 0;
  virtual Color FillColor() const = 0;
  virtual Color BorderColor() const = 0;
};

class CheckBox : public Control {
 public:
  virtual void SetCaption(std::u16string_view text) = 0;
  // 0 or 1. Changing the value raises onClick, even from the program; setting the same value does
  // not.
  virtual void SetValue(int value) = 0;
  virtual int Value() const = 0;

  std::function<void()> onClick;
};

class Button : public Control {
 public:
  virtual void SetCaption(std::u16string_view text) = 0;
  virtual std::u16string Caption() const = 0;
  virtual void SetEnabled(bool enabled) = 0;
  virtual bool Enabled() const = 0;

  // Does the same as a press by the user: nothing while the button is disabled.
  void Click() {
    if (Enabled() && onClick) onClick();
  }

  std::function<void()> onClick;
};

// One line of plain text for the user to fill in.
class TextField : public Control {
 public:
  virtual void SetText(std::u16string_view text) = 0;
  virtual std::u16string Text() const = 0;
  virtual void SelectAll() = 0;

  // The user has changed the text.
  std::function<void()> onChange;
};

// A list of texts, of which one at a time can be selected. Items are counted from 0.
class ListBox : public Control {
 public:
  virtual void Clear() = 0;
  // Adds the text after the last item. The selection stays.
  virtual void Append(std::u16string_view text) = 0;
  // If the item was selected, no item is selected afterwards. Remove does nothing and Item returns
  // "" if there is no such item.
  virtual void Remove(int index) = 0;
  virtual int Count() const = 0;
  virtual std::u16string Item(int index) const = 0;
  // -1 means no item. Selecting an item that does not exist selects none.
  virtual void Select(int index) = 0;
  virtual int SelectedIndex() const = 0;
  // Scrolls so that the item is the topmost one in view, as far as the list is long enough.
  virtual void ScrollToTop(int index) = 0;
  // The spare text property: kept, never shown.
  virtual void SetTag(std::u16string_view text) = 0;
  virtual std::u16string Tag() const = 0;

  // The user has selected an item by mouse or key, or clicked the selected one again.
  std::function<void()> onClick;
};

// Progress in per cent. Visible only while there is progress to show.
class ProgressBar : public Control {
 public:
  virtual void SetValue(int percent) = 0;
  virtual int Value() const = 0;
  virtual void SetVisible(bool visible) = 0;
  virtual bool Visible() const = 0;
};

// A part of a window that is visible only when needed.
class Panel {
 public:
  virtual ~Panel() = default;
  virtual void SetVisible(bool visible) = 0;
  virtual bool Visible() const = 0;
  // Whether the focus of its window is on one of its controls.
  virtual bool HasFocus() const = 0;
};

// An entry of a menu. Choosing it does not change the tick; only the program does.
class MenuEntry {
 public:
  virtual ~MenuEntry() = default;
  virtual void SetCaption(std::u16string_view text) = 0;
  virtual std::u16string Caption() const = 0;
  // Shown while the pointer rests on the entry; "" for none.
  virtual void SetToolTip(std::u16string_view text) = 0;
  virtual std::u16string ToolTip() const = 0;
  virtual void SetChecked(bool checked) = 0;
  virtual bool Checked() const = 0;
  // A disabled entry is grey, and cannot be chosen.
  virtual void SetEnabled(bool enabled) = 0;
  virtual bool Enabled() const = 0;

  // Does the same as a choice by the user: nothing while the entry is disabled.
  void Click() {
    if (Enabled() && onClick) onClick();
  }

  std::function<void()> onClick;
};

// An entry of a menu that opens on the spot.
struct PopupEntry {
  std::u16string caption;
  bool enabled = true;
  bool separatorBefore = false;
  std::function<void()> perform;  // when the user chooses it
};

// A menu of the menu bar.
class Menu {
 public:
  virtual ~Menu() = default;
  virtual void SetCaption(std::u16string_view text) = 0;
  virtual std::u16string Caption() const = 0;
};

// Raises onTimer every second from Start until the program ends, also under modal boxes.
class Timer {
 public:
  virtual ~Timer() = default;
  virtual void Start() = 0;

  std::function<void()> onTimer;
};

// Scales the positions and sizes of the controls with the window.
class LayoutControl {
 public:
  virtual ~LayoutControl() = default;

  // Raised once, when the window has been shown and laid out for the first time.
  std::function<void()> onPostLayout;
};

}  // namespace verlume
