// Functions that give an element of a window one of its texts.
#pragma once

#include <functional>
#include <string_view>

#include "platform/control.h"
#include "platform/window.h"

namespace verlume {

using TextSetter = std::function<void(std::u16string_view)>;

inline TextSetter Title(Window& window) {
  return [&window](std::u16string_view text) { window.SetTitle(text); };
}

template <class Element>
TextSetter Caption(Element& element) {
  return [&element](std::u16string_view text) { element.SetCaption(text); };
}

template <class Element>
TextSetter ToolTip(Element& element) {
  return [&element](std::u16string_view text) { element.SetToolTip(text); };
}

inline TextSetter AccessibleName(Control& control) {
  return [&control](std::u16string_view text) { control.SetAccessibleName(text); };
}

}  // namespace verlume
