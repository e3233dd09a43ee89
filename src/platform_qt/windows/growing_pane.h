// Lets a pane for typing grow with its text: upwards, over what is above it, to at most four lines.
// Its layout knows nothing of that and moves no other control.
#pragma once

#include <QObject>
#include <QPlainTextEdit>
#include <QRect>

namespace verlume::qt {

class GrowingPane : public QObject {
 public:
  // Belongs to the pane. What the pane's layout gives it is the least that it has.
  explicit GrowingPane(QPlainTextEdit& pane);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  // At the end of what is going on: the layout may not have placed the pane for good yet, and the
  // text may not be laid out.
  void GrowSoon();
  void Grow();

  QPlainTextEdit& pane_;
  QRect cell_;   // where the layout has put the pane
  QRect grown_;  // where this has put it
  bool isGrowing_ = false;
  bool willGrow_ = false;
};

}  // namespace verlume::qt
