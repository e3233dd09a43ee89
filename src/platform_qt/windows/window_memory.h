// The main window's last place, size and maximised state, kept in a file of its own. If the file
// cannot be read or written, nothing happens.
#pragma once

#include <QObject>
#include <QString>
#include <QWidget>

namespace verlume::qt {

class QtWindowMemory : public QObject {
 public:
  // Puts the form where the file says, on a screen that exists; does nothing without such a file.
  // Writes the file when the form is hidden.
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
