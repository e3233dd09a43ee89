// Keeps the keyboard where it is when a box comes up.
#pragma once

#include <QObject>
#include <QWidget>

namespace verlume::qt {

// Until the box is on the screen its window tells the window manager that it takes no keyboard;
// from then on the user may go to it. Qt's own WA_ShowWithoutActivating has no effect on a modal
// window under X11. Made before the box is shown; its work done, it goes.
class FocusRefusal : public QObject {
 public:
  explicit FocusRefusal(QWidget* box);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  QWidget* box_;
};

}  // namespace verlume::qt
