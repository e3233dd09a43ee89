// The main window's last place, size and maximised state, and how it shows what is in it, kept in a
// file of its own. If the file cannot be read or written, nothing happens.
#pragma once

#include <QObject>
#include <QString>
#include <QWidget>

#include "platform_qt/windows/main_window.h"

namespace verlume::qt {

class QtWindowMemory : public QObject {
 public:
  // Puts the window where the file says, on a screen that exists; does nothing without such a file.
  // Writes the file when the window is hidden. The window outlives this object.
  QtWindowMemory(QtMainWindow& window, const QString& file);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void Restore();
  void RestoreView(const QByteArray& view);
  void Keep();
  QByteArray View() const;

  MainWindow& view_;
  QWidget* form_;
  QString file_;
};

}  // namespace verlume::qt
