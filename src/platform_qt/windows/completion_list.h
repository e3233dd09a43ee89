// The list beside the command pane, implemented with Qt: it is shown over other controls, as large
// as its rows need, and never takes the keyboard focus.
#pragma once

#include <QFrame>
#include <QPointer>

#include "platform_qt/controls/list_box.h"
#include "platform_qt/windows/completion_rows.h"

namespace verlume::qt {

class CompletionFrame : public QFrame {
 public:
  // Starts hidden. It and its list have the names of CompletionList's members.
  explicit CompletionFrame(QWidget* area);
  ~CompletionFrame() override;

  // When shown, it is directly above or below the pane, where there is more room. The pane must
  // have the same parent.
  void PlaceBeside(QWidget* pane);

 protected:
  bool event(QEvent* event) override;
  void showEvent(QShowEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void Place();

  ListWidget* list_;
  CompletionRows* rows_;
  QPointer<QWidget> pane_;
};

}  // namespace verlume::qt
