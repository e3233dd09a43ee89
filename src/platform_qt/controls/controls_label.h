// A label's widget: plain text, cut with an ellipsis if it does not fit. Without a tool tip of its
// own, it shows a cut text in full as its tool tip.
#pragma once

#include <QLabel>

namespace verlume::qt {

class ElidedLabel : public QLabel {
 public:
  explicit ElidedLabel(QWidget* parent);

  // Draws the text paler than the values.
  void SetMuted(bool muted) { muted_ = muted; }

  QSize sizeHint() const override;
  // The height of a line; no width, because text that does not fit is cut.
  QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;
  bool event(QEvent* event) override;
  // The lines as they are drawn; `cut` tells whether some of the text is missing.
  QStringList VisibleLines(bool& cut) const;

 private:
  bool muted_ = false;
};

}  // namespace verlume::qt
