// A label's widget: plain text, cut with an ellipsis if it does not fit. Without a tool tip of its
// own, it shows a cut text in full as its tool tip. Letters that no font of this computer shows are
// drawn as boxes: a peer chooses some of the texts, and looking for fonts in vain takes long.
#pragma once

#include <QLabel>
#include <QTimer>

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
  // Has the fonts looked at, in turns, if that takes to know how the text is drawn.
  void LookAtFonts();
  // The lines as they are drawn; `cut` tells whether some of the text is missing.
  QStringList VisibleLines(bool& cut) const;

 private:
  // One paragraph, and boxes for what cannot be drawn.
  QString DrawnText() const;
  void RunTurn();

  bool muted_ = false;
  QTimer nextTurn_;
};

}  // namespace verlume::qt
