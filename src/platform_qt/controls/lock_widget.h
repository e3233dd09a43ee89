// The widget of the small lock at the end of the status line.
#pragma once

#include <functional>

#include "platform/lock_label.h"
#include "platform_qt/controls/controls_label.h"

namespace verlume::qt {

// The picture, and the sentence beside it in as many lines as there is room for, at the right end
// of its place. Assistive tools know it as a button whose name is the sentence.
class LockWidget : public ElidedLabel {
 public:
  explicit LockWidget(QWidget* parent);

  void SetPicture(LockPicture picture);
  LockPicture Picture() const { return picture_; }

  // Enter, the space bar, or an assistive tool has pressed it.
  void Press() {
    if (onPressed) onPressed();
  }
  std::function<void()> onPressed;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  void KeepRoomForPicture();

  LockPicture picture_ = LockPicture::Becoming;
};

}  // namespace verlume::qt
