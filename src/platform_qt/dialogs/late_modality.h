// Lets a box appear without losing a key that is pressed meanwhile.
#pragma once

#include <QEvent>
#include <QObject>
#include <QPointer>
#include <QTimer>
#include <QWidget>
#include <QWindow>

namespace verlume::qt {

// A modal box blocks the other windows at once, but the window manager gives it the keyboard only
// some milliseconds later, and Qt drops the keys that arrive at a blocked window. With this the box
// blocks them soon after it has got the keyboard, or after a second. If no window of the program
// has the keyboard, it blocks them at once. Create it before the box is shown; lives as long as the
// box.
class LateModality : public QObject {
 public:
  explicit LateModality(QWidget* box);

  // Whether the other windows still get keys.
  bool IsPending() const { return limit_.isActive(); }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void BlockOthers();

  QWidget* box_;
  QPointer<QWindow> below_;
  QTimer limit_;
};

}  // namespace verlume::qt
