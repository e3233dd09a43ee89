// The list below the command pane, made real: it lies over what stands there, as large as its rows
// need, and never takes the keyboard.
#pragma once

#include <QFrame>
#include <QPointer>

#include "platform_qt/controls/list_box.h"

namespace verlume::qt {

class CompletionFrame : public QFrame {
 public:
  // Hidden. It and its list bear the names of CompletionList.
  explicit CompletionFrame(QWidget* area);
  ~CompletionFrame() override;

  // Stands directly below the pane, which has the same parent, whenever it is shown.
  void StandBelow(QWidget* pane);

 protected:
  bool event(QEvent* event) override;
  void showEvent(QShowEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void Place();

  ListWidget* list_;
  QPointer<QWidget> pane_;
};

}  // namespace verlume::qt
