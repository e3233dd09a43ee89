// Context help: every control and menu entry of the program's windows gets, as its What's-This
// text, the paragraph that the help book has under its name. Windows made later get theirs when
// they are first shown.
#pragma once

#include <QObject>

#include "platform_qt/help/help_book.h"

class QAction;
class QWidget;

namespace verlume::qt {

class QtContextHelp : public QObject {
 public:
  // `book` outlives this object; Apply is called whenever another has been put in its place. Needs
  // a QApplication.
  explicit QtContextHelp(const HelpBook& book);

  // Gives the book's texts to all that exists by now.
  void Apply();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void Explain(QWidget* widget);
  QString TextFor(const QString& name) const;

  const HelpBook& book_;
};

}  // namespace verlume::qt
