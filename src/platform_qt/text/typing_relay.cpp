#include "platform_qt/text/typing_relay.h"

#include <QCoreApplication>
#include <QInputMethodEvent>

namespace verlume::qt {
namespace {

bool TypesACharacter(const QKeyEvent& key) {
  const QString text = key.text();
  if (text.isEmpty() || key.modifiers() & (Qt::ControlModifier | Qt::AltModifier)) return false;
  return text.front().isPrint() || text.front().isSurrogate();
}

}  // namespace

TypingRelay::TypingRelay(QPlainTextEdit& shown, QPlainTextEdit& typed)
    : QObject(&shown), shown_(shown), typed_(&typed) {
  shown.installEventFilter(this);
  AcceptInputMethods();
}

// A dead key goes through an input method, and a box that cannot be changed gets none by itself.
void TypingRelay::AcceptInputMethods() {
  shown_.setAttribute(Qt::WA_InputMethodEnabled);
}

bool TypingRelay::eventFilter(QObject*, QEvent* event) {
  if (!typed_ || !shown_.isReadOnly()) return false;
  switch (event->type()) {
    case QEvent::KeyPress:
      if (!TypesACharacter(*static_cast<QKeyEvent*>(event))) return false;
      typed_->setFocus(Qt::OtherFocusReason);
      QCoreApplication::sendEvent(typed_, event);
      return true;
    case QEvent::InputMethod:
      return RelayInputMethod(*static_cast<QInputMethodEvent*>(event));
    case QEvent::InputMethodQuery:
      // Where the text will go is where its suggestions are to be shown.
      QCoreApplication::sendEvent(typed_, event);
      return true;
    case QEvent::ReadOnlyChange:
      AcceptInputMethods();
      return false;
    default:
      return false;
  }
}

// The focus follows when the text is complete: an input method drops what it is composing when it
// loses the focus.
bool TypingRelay::RelayInputMethod(QInputMethodEvent& event) {
  const bool isComplete = !event.commitString().isEmpty();
  QCoreApplication::sendEvent(typed_, &event);
  if (isComplete && typed_) typed_->setFocus(Qt::OtherFocusReason);
  return true;
}

}  // namespace verlume::qt
