// Where the main window stood when the program ended last: its place, its size and whether it was
// maximised, in a file of its own. A file that cannot be read or written is no matter.
#pragma once

#include <QObject>
#include <QString>
#include <QWidget>

namespace verlume::qt {

class QtWindowMemory : public QObject {
 public:
  // Puts the form where the file says it was, on a screen that exists; leaves it where it is when
  // the file says nothing. The file is written when the form goes off the screen.
  QtWindowMemory(QWidget* form, const QString& file);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void Restore();
  void Keep();

  QWidget* form_;
  QString file_;
};

}  // namespace verlume::qt
