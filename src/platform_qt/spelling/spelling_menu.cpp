#include "platform_qt/spelling/spelling_menu.h"

#include <QMenu>

namespace verlume::qt {

SpellingMenu::SpellingMenu(QPlainTextEdit& pane, QtSpellChecker& checker)
    : QObject(&pane), pane_(pane), checker_(checker) {
  // The mouse asks the viewport for the menu, the keyboard the pane.
  pane.installEventFilter(this);
  pane.viewport()->installEventFilter(this);
}

bool SpellingMenu::eventFilter(QObject*, QEvent* event) {
  return event->type() == QEvent::ContextMenu && OpenMenu(*static_cast<QContextMenuEvent*>(event));
}

// False if there is nothing to add: the menu is then the pane's own.
bool SpellingMenu::OpenMenu(const QContextMenuEvent& event) {
  const bool byMouse = event.reason() == QContextMenuEvent::Mouse;
  const QPoint place = byMouse ? pane_.viewport()->mapFromGlobal(event.globalPos())
                               : pane_.cursorRect().bottomLeft();
  QMenu* menu = pane_.createStandardContextMenu(place);
  menu->setAttribute(Qt::WA_DeleteOnClose);
  const QTextCursor cursor = byMouse ? pane_.cursorForPosition(place) : pane_.textCursor();
  const QList<QAction*> offered = checker_.SpellingActions(cursor, menu);
  if (offered.isEmpty()) {
    delete menu;
    return false;
  }
  menu->insertActions(menu->actions().value(0), offered);
  menu->popup(pane_.viewport()->mapToGlobal(place));
  return true;
}

}  // namespace verlume::qt
