// Protects a box that nobody at this keyboard asked for from being answered by what is being typed.
#pragma once

#include <QElapsedTimer>
#include <QMessageBox>
#include <QObject>

#include "platform_qt/dialogs/key_clock.h"
#include "platform_qt/dialogs/late_modality.h"
#include "platform_qt/dialogs/typing_target.h"

namespace verlume::qt {

// What is typed goes on into the control that had the keyboard. Enter, Escape, Alt with a letter,
// and a blank on a button that was reached by Tab or an arrow answer the box, each only after a
// second without keys. If the control holds text, the first such Enter only moves the keyboard to
// the box; Tab and the arrows move it too. For half a second after the box appears neither key nor
// mouse answers it. Create it when the box has its buttons, before it is shown. Lives as long as
// the box.
class TypingGuard : public QObject {
 public:
  TypingGuard(QMessageBox* box, const KeyClock& clock);

  // The control that had the keyboard.
  const TypingTarget& Target() const { return target_; }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  // Each returns true if the widget does not get the event.
  bool FilterBelow(QEvent& event);
  bool FilterMouse();
  bool FilterShortcut(QKeyEvent& key);
  bool FilterPress(QKeyEvent& key);
  bool FilterEnter();
  bool FilterMove(QKeyEvent& key);
  void FilterInputMethod(QInputMethodEvent& event);

  bool IsOldEnough() const;
  bool MayAnswer() const { return IsOldEnough() && clock_.WasAtRest(); }
  // Whether the keyboard is at the box, and no longer at the control below it.
  bool HasKeyboard() const { return box_->focusWidget() != relay_; }
  void TakeKeyboard();
  void GiveKeyboardBack();

  QMessageBox* box_;
  const KeyClock& clock_;
  TypingTarget target_;
  LateModality modality_;
  QWidget* relay_;  // has the focus of the box while what is typed goes to the control
  QElapsedTimer sinceShown_;
  bool isReachedByKey_ = false;  // the button that has the focus
};

}  // namespace verlume::qt
