#include "platform_qt/controls/choice_menu.h"

#include "platform_qt/controls/mnemonics.h"
#include "platform_qt/convert/text.h"

namespace verlume::qt {
namespace {

QAction* AddChoice(QMenu* menu, std::u16string_view text) {
  QAction* entry = menu->addAction(WithMnemonic(ToQt(text), -1));
  entry->setMenuRole(QAction::NoRole);
  return entry;
}

}  // namespace

QtChoiceMenu::QtChoiceMenu(QMenu* parent, const char* name) : menu_(new QMenu(parent)) {
  menu_->setObjectName(QLatin1String(name));
  menu_->setToolTipsVisible(true);
  parent->addSeparator();
  parent->addMenu(menu_)->setEnabled(false);
}

void QtChoiceMenu::SetCaption(std::u16string_view text) {
  caption_ = text;
  SetCaptionWithMnemonic(menu_->menuAction(), ToQt(text));
}

void QtChoiceMenu::SetChoices(const std::vector<std::u16string>& choices,
                              std::u16string_view last) {
  menu_->clear();
  menu_->menuAction()->setEnabled(!choices.empty());
  if (choices.empty()) return;
  // Queued: the handler may replace the entries, also the chosen one.
  for (std::size_t index = 0; index < choices.size(); ++index) {
    QObject::connect(
        AddChoice(menu_, choices[index]), &QAction::triggered, menu_,
        [this, index] {
          if (onChoose) onChoose(index);
        },
        Qt::QueuedConnection);
  }
  menu_->addSeparator();
  QObject::connect(
      AddChoice(menu_, last), &QAction::triggered, menu_,
      [this] {
        if (onLast) onLast();
      },
      Qt::QueuedConnection);
}

}  // namespace verlume::qt
