// Lets the user type although the focus is in a pane that only shows text: what is typed there goes
// to the pane for typing, and the focus with it. Keys that move, select or copy stay with the pane
// that has them, and so does every key with Ctrl or Alt.
#pragma once

#include <QKeyEvent>
#include <QObject>
#include <QPlainTextEdit>
#include <QPointer>

namespace verlume::qt {

class TypingRelay : public QObject {
 public:
  // Belongs to `shown`. `typed` may be deleted before it.
  TypingRelay(QPlainTextEdit& shown, QPlainTextEdit& typed);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  bool RelayInputMethod(QInputMethodEvent& event);
  void AcceptInputMethods();

  QPlainTextEdit& shown_;
  QPointer<QPlainTextEdit> typed_;
};

}  // namespace verlume::qt
