// Context help: gives every control and menu entry of the program's windows the paragraph that the
// help book has for its name, as What's-This text. Windows created later get theirs when they are
// first shown.
#pragma once

#include <QObject>

#include "platform_qt/help/help_book.h"

class QAction;
class QWidget;

namespace verlume::qt {

class QtContextHelp : public QObject {
 public:
  // `book` must outlive this object; call Apply whenever its content has been replaced. Needs a
  // QApplication.
  explicit QtContextHelp(const HelpBook& book);

  // Sets the texts of everything that exists now.
  void Apply();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void Explain(QWidget* widget);
  QString TextFor(const QString& name) const;

  const HelpBook& book_;
};

}  // namespace verlume::qt
