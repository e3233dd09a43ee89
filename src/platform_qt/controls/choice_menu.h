// A menu within a menu, implemented with Qt.
#pragma once

#include <QMenu>

#include "platform/choice_menu.h"

namespace verlume::qt {

class QtChoiceMenu : public ChoiceMenu {
 public:
  // Adds the menu, behind a line, to the end of another one. It starts grey.
  QtChoiceMenu(QMenu* parent, const char* name);

  void SetCaption(std::u16string_view text) override;
  std::u16string Caption() const override { return caption_; }
  void SetChoices(const std::vector<std::u16string>& choices, std::u16string_view last) override;

 private:
  QMenu* menu_;
  std::u16string caption_;
};

}  // namespace verlume::qt
