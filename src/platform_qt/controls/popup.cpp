#include "platform_qt/controls/popup.h"

#include <QMenu>

#include "platform_qt/controls/mnemonics.h"
#include "platform_qt/convert/text.h"

namespace verlume::qt {

void OpenPopup(QWidget& widget, const QPoint& globalPosition,
               const std::vector<PopupEntry>& entries) {
  if (entries.empty()) return;
  auto* menu = new QMenu(&widget);
  menu->setAttribute(Qt::WA_DeleteOnClose);
  QStringList captions;
  for (const PopupEntry& entry : entries) captions.append(ToQt(entry.caption));
  const std::vector<qsizetype> letters = ChooseMnemonics(captions);
  for (std::size_t i = 0; i < entries.size(); ++i) {
    const PopupEntry& entry = entries[i];
    if (entry.separatorBefore) menu->addSeparator();
    QAction* action = menu->addAction(WithMnemonic(ToQt(entry.caption), letters[i]));
    action->setEnabled(entry.enabled);
    QObject::connect(action, &QAction::triggered, &widget, entry.perform);
  }
  menu->popup(globalPosition);
}

}  // namespace verlume::qt
