// A label's widget: plain text, cut with an ellipsis where it does not fit. Where there is no tool
// tip of its own, resting on a cut text shows the whole of it.
#pragma once

#include <QLabel>

namespace verlume::qt {

class ElidedLabel : public QLabel {
 public:
  explicit ElidedLabel(QWidget* parent);

  // Draws the text paler than the values beside it.
  void SetMuted(bool muted) { muted_ = muted; }

  QSize sizeHint() const override;
  // The height of a line, and no width: what does not fit is cut.
  QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;
  bool event(QEvent* event) override;

 private:
  // The lines as they are drawn; `cut` tells whether they are less than the whole text.
  QStringList VisibleLines(bool& cut) const;

  bool muted_ = false;
};

}  // namespace verlume::qt
