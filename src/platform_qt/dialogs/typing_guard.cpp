#include "platform_qt/dialogs/typing_guard.h"

#include <QAbstractButton>
#include <QCoreApplication>
#include <QPushButton>
#include <chrono>

#include "platform_qt/controls/key_codes.h"

namespace verlume::qt {
namespace {

constexpr std::chrono::milliseconds kShortestTimeToRead{500};

bool IsPlain(const QKeyEvent& key) {
  return (key.modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
}

bool IsMove(const QKeyEvent& key) {
  switch (key.key()) {
    case Qt::Key_Backtab:
      return true;
    case Qt::Key_Tab:
    case Qt::Key_Left:
    case Qt::Key_Right:
    case Qt::Key_Up:
    case Qt::Key_Down:
      return IsPlain(key);
    default:
      return false;
  }
}

// Under a box that is guarded itself, what is typed goes to that box's control.
TypingTarget TargetBelow(const QWidget& box) {
  const QWidget* below = box.parentWidget() ? box.parentWidget()->window() : nullptr;
  if (!below) return TypingTarget();
  for (const QObject* child : below->children()) {
    if (const auto* guard = dynamic_cast<const TypingGuard*>(child)) return guard->Target();
  }
  return TypingTarget(below->focusWidget());
}

// A widget that nobody sees.
QWidget* NewRelay(QWidget* box) {
  auto* relay = new QWidget(box);
  relay->setObjectName(QStringLiteral("typingRelay"));
  relay->setGeometry(0, 0, 1, 1);
  relay->setAttribute(Qt::WA_TransparentForMouseEvents);
  relay->setFocusPolicy(Qt::ClickFocus);  // Tab passes it by
  return relay;
}

}  // namespace

TypingGuard::TypingGuard(QMessageBox* box, const KeyClock& clock)
    : QObject(box),
      box_(box),
      clock_(clock),
      target_(TargetBelow(*box)),
      modality_(box),
      relay_(NewRelay(box)) {
  relay_->setAccessibleName(target_.AccessibleName());
  // Input methods and dead keys go on working, wherever in the box the focus is.
  relay_->setAttribute(Qt::WA_InputMethodEnabled);
  for (QAbstractButton* button : box->findChildren<QAbstractButton*>()) {
    button->setAttribute(Qt::WA_InputMethodEnabled);
  }
  relay_->setFocus();
  // On the application, because the box gets only what its buttons leave.
  QCoreApplication::instance()->installEventFilter(this);
}

bool TypingGuard::eventFilter(QObject* watched, QEvent* event) {
  auto* widget = qobject_cast<QWidget*>(watched);
  if (!widget) return false;
  if (widget->window() != box_) return modality_.IsPending() && FilterBelow(*event);
  switch (event->type()) {
    case QEvent::Paint:
      if (!sinceShown_.isValid()) sinceShown_.start();
      return false;
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
      return FilterMouse();
    case QEvent::Close:
      // The close button of its frame, not the program.
      if (!event->spontaneous() || IsOldEnough()) return false;
      event->ignore();
      return true;
    case QEvent::ShortcutOverride:
      return FilterShortcut(*static_cast<QKeyEvent*>(event));
    case QEvent::KeyPress:
      return FilterPress(*static_cast<QKeyEvent*>(event));
    case QEvent::KeyRelease:
      return !HasKeyboard();
    case QEvent::InputMethod:
      FilterInputMethod(*static_cast<QInputMethodEvent*>(event));
      return true;
    case QEvent::InputMethodQuery:
      target_.Answer(*static_cast<QInputMethodQueryEvent*>(event), *widget);
      return true;
    default:
      return false;
  }
}

// While the box is appearing, typing goes on in the window below it, and nothing else does.
bool TypingGuard::FilterBelow(QEvent& event) {
  switch (event.type()) {
    case QEvent::ShortcutOverride:
      event.accept();
      return true;
    case QEvent::KeyPress:
      return !target_.Takes(static_cast<QKeyEvent&>(event));
    default:
      return false;
  }
}

bool TypingGuard::FilterMouse() {
  if (!IsOldEnough()) return true;
  isReachedByKey_ = false;
  return false;
}

// A key that is no shortcut comes again as a key press.
bool TypingGuard::FilterShortcut(QKeyEvent& key) {
  const bool isMnemonic = key.modifiers().testFlag(Qt::AltModifier) && MayAnswer();
  if (isMnemonic) return false;
  key.accept();
  return true;
}

bool TypingGuard::FilterPress(QKeyEvent& key) {
  if (IsEnter(key) && IsPlain(key)) return FilterEnter();
  if (key.key() == Qt::Key_Escape && IsPlain(key)) return !MayAnswer();
  if (IsMove(key) && (HasKeyboard() || MayAnswer())) return FilterMove(key);
  if (HasKeyboard()) {
    const bool isBlank = key.key() == Qt::Key_Space && IsPlain(key);
    if (isBlank && isReachedByKey_) return !MayAnswer();
    if (key.matches(QKeySequence::Copy)) return false;  // copies the text of the box
  }
  if (!target_.Takes(key)) return true;
  GiveKeyboardBack();
  target_.Press(key);
  return true;
}

void TypingGuard::FilterInputMethod(QInputMethodEvent& event) {
  const bool hasTyped = !event.commitString().isEmpty();
  target_.Enter(event);
  // Later, because the input method is not done with the widget that has the focus.
  if (hasTyped && target_.TakesText()) {
    QMetaObject::invokeMethod(
        this, [this] { GiveKeyboardBack(); }, Qt::QueuedConnection);
  }
}

bool TypingGuard::FilterEnter() {
  if (!MayAnswer()) return true;
  if (HasKeyboard() || !target_.HoldsText()) return false;
  TakeKeyboard();
  return true;
}

bool TypingGuard::FilterMove(QKeyEvent& key) {
  isReachedByKey_ = true;
  if (HasKeyboard()) return false;
  TakeKeyboard();
  QCoreApplication::sendEvent(box_->focusWidget(), &key);
  return true;
}

bool TypingGuard::IsOldEnough() const {
  return sinceShown_.isValid() && sinceShown_.hasExpired(kShortestTimeToRead.count());
}

void TypingGuard::TakeKeyboard() {
  box_->defaultButton()->setFocus();
}

void TypingGuard::GiveKeyboardBack() {
  isReachedByKey_ = false;
  relay_->setFocus();
}

}  // namespace verlume::qt
