// Adds what a spell checker offers to the menu of its pane.
#pragma once

#include <QContextMenuEvent>
#include <QObject>
#include <QPlainTextEdit>

#include "platform_qt/spelling/spell_checker.h"

namespace verlume::qt {

class SpellingMenu : public QObject {
 public:
  // Belongs to the pane. The checker must outlive it.
  SpellingMenu(QPlainTextEdit& pane, QtSpellChecker& checker);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  bool OpenMenu(const QContextMenuEvent& event);

  QPlainTextEdit& pane_;
  QtSpellChecker& checker_;
};

}  // namespace verlume::qt
