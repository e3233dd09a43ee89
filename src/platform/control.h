// The controls of a window, each a small role. A control raises its events by calling the function
// stored in the event's member, on the user-interface thread; an empty function is no handler.
// Setting a property raises no event unless the operation says so.
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

  // The tool tip; it is also the control's description for assistive tools.
  virtual void SetToolTip(std::u16string_view text) = 0;
  virtual std::u16string ToolTip() const = 0;
  // The name that assistive tools read; a control with a caption of its own needs none.
  virtual void SetAccessibleName(std::u16string_view name) = 0;
  // Takes the keyboard focus inside its window; never raises a window above other programs'.
  virtual void SetFocus() = 0;
  // Opens the control's own paragraph of the help file in force.
  virtual void ShowContextHelp() = 0;

  std::function<void(MouseButton)> onMouseDown;
  std::function<void(MouseButton)> onMouseUp;
};

// A line of text. What it shows is never markup.
class Label : public Control {
 public:
  virtual void SetCaption(std::u16string_view text) = 0;
  virtual std::u16string Caption() const = 0;
  // The spare text property: kept, never shown.
  virtual void SetTag(std::u16string_view text) = 0;
  virtual std::u16string Tag() const = 0;
  virtual void SetBackColor(Color color) = 0;
  // Height in the units of Picture::Height.
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
  // 0 or 1. A change of value raises onClick, whoever made it; setting the same value does not.
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

  // Does what the user's press of the button does: nothing while it is disabled.
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

// A list of texts, of which the user selects one at a time. Items are counted from 0.
class ListBox : public Control {
 public:
  virtual void Clear() = 0;
  // Behind the last item. What is selected stays so.
  virtual void Append(std::u16string_view text) = 0;
  // When the item was the selected one, none is afterwards. Both do nothing where there is no such
  // item; Item is "" there.
  virtual void Remove(int index) = 0;
  virtual int Count() const = 0;
  virtual std::u16string Item(int index) const = 0;
  // -1 is none, also to Select; an item that is not there is none.
  virtual void Select(int index) = 0;
  virtual int SelectedIndex() const = 0;
  // Makes the item the uppermost one in view, or as near to it as the list is long.
  virtual void ScrollToTop(int index) = 0;
  // The spare text property: kept, never shown.
  virtual void SetTag(std::u16string_view text) = 0;
  virtual std::u16string Tag() const = 0;

  // The user has selected an item, by the mouse or a key, or clicked the one that was selected.
  std::function<void()> onClick;
};

// How far something has come, in per cent. It is there only while there is something to tell of.
class ProgressBar : public Control {
 public:
  virtual void SetValue(int percent) = 0;
  virtual int Value() const = 0;
  virtual void SetVisible(bool visible) = 0;
  virtual bool Visible() const = 0;
};

// A part of a window that is there only while it is asked for.
class Panel {
 public:
  virtual ~Panel() = default;
  virtual void SetVisible(bool visible) = 0;
  virtual bool Visible() const = 0;
  // Whether one of its controls is the one of its window that keys go to.
  virtual bool HasFocus() const = 0;
};

// One entry of a menu. Choosing it changes nothing by itself: the tick is set by the program.
class MenuEntry {
 public:
  virtual ~MenuEntry() = default;
  virtual void SetCaption(std::u16string_view text) = 0;
  virtual std::u16string Caption() const = 0;
  // Shown while the pointer rests on the entry; "" is none.
  virtual void SetToolTip(std::u16string_view text) = 0;
  virtual std::u16string ToolTip() const = 0;
  virtual void SetChecked(bool checked) = 0;
  virtual bool Checked() const = 0;

  // Does what the user's choice of the entry does.
  void Click() {
    if (onClick) onClick();
  }

  std::function<void()> onClick;
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

// Keeps every control's relative place and size while its window is resized.
class LayoutControl {
 public:
  virtual ~LayoutControl() = default;

  // Raised once, after the window has been shown and laid out for the first time.
  std::function<void()> onPostLayout;
};

}  // namespace verlume
