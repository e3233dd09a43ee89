// A menu within a menu, in memory.
#pragma once

#include "platform/choice_menu.h"

namespace verlume::fake {

class FakeChoiceMenu : public ChoiceMenu {
 public:
  void SetCaption(std::u16string_view text) override { caption = text; }
  std::u16string Caption() const override { return caption; }
  void SetChoices(const std::vector<std::u16string>& texts, std::u16string_view lastText) override {
    choices = texts;
    last = texts.empty() ? u"" : lastText;
  }

  // As the user would; nothing while the entry is missing.
  void Choose(std::size_t index) {
    if (index < choices.size() && onChoose) onChoose(index);
  }
  void ChooseLast() {
    if (!choices.empty() && onLast) onLast();
  }

  std::u16string caption;
  std::vector<std::u16string> choices;
  std::u16string last;
};

}  // namespace verlume::fake
