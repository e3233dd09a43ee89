// A menu within a menu whose entries come and go.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/control.h"

namespace verlume {

class ChoiceMenu : public Menu {
 public:
  // Replaces all entries: the choices, and behind a line one more entry, `last`. Without choices
  // there are none, and the menu is grey. The texts are plain text.
  virtual void SetChoices(const std::vector<std::u16string>& choices, std::u16string_view last) = 0;

  // The user has chosen; from the event loop, so that the entries may be replaced.
  std::function<void(std::size_t index)> onChoose;
  std::function<void()> onLast;
};

}  // namespace verlume
