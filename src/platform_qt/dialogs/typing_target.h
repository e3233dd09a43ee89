// The control that the user was typing into when a box appeared.
#pragma once

#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QPointer>
#include <QWidget>

namespace verlume::qt {

// Keys go to the control itself: no shortcut, menu or dialog button sees them.
class TypingTarget {
 public:
  // `control` may be null, and may be deleted later.
  explicit TypingTarget(QWidget* control = nullptr) : control_(control) {}

  // Whether the user can type text into it.
  bool TakesText() const;
  bool HoldsText() const;
  // Whether the key types or edits text there. Enter, Escape and commands do not.
  bool Takes(const QKeyEvent& key) const;
  void Press(const QKeyEvent& key);
  // What an input method enters, and what it asks about the control. `asked` is the widget that the
  // input method believes to have the focus.
  void Enter(QInputMethodEvent& event);
  void Answer(QInputMethodQueryEvent& event, const QWidget& asked) const;

  QString AccessibleName() const { return control_ ? control_->accessibleName() : QString(); }

 private:
  QPointer<QWidget> control_;
};

}  // namespace verlume::qt
