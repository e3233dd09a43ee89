// Lets a box appear without taking the keyboard.
#pragma once

#include <QObject>
#include <QWidget>

namespace verlume::qt {

// Until the box is on the screen, its window tells the window manager that it takes no keyboard
// focus; after that the user can give it the focus. (Qt's WA_ShowWithoutActivating has no effect on
// modal windows under X11.) Create it before the box is shown; it deletes itself when done.
class FocusRefusal : public QObject {
 public:
  explicit FocusRefusal(QWidget* box);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  QWidget* box_;
};

}  // namespace verlume::qt
