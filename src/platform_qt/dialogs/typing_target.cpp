#include "platform_qt/dialogs/typing_target.h"

#include <QPlainTextEdit>
#include <algorithm>
#include <array>
#include <memory>

namespace verlume::qt {
namespace {

// Sends the event to the control alone; QCoreApplication::sendEvent would offer what the control
// ignores to its parents.
void SendOnlyTo(QObject& control, QEvent& event) {
  control.event(&event);
}

bool TypesText(const QKeyEvent& key) {
  const Qt::KeyboardModifiers held = key.modifiers();
  const bool hasCtrl = held.testFlag(Qt::ControlModifier);
  const bool hasAlt = held.testFlag(Qt::AltModifier);
  // Ctrl and Alt together are AltGr on some systems.
  const bool isCommand = hasCtrl != hasAlt || held.testFlag(Qt::MetaModifier);
  return !isCommand && !key.text().isEmpty() && key.text().front().isPrint();
}

bool Edits(const QKeyEvent& key) {
  constexpr std::array kEditing = {QKeySequence::Cut,  QKeySequence::Copy, QKeySequence::Paste,
                                   QKeySequence::Undo, QKeySequence::Redo, QKeySequence::SelectAll};
  if (std::any_of(kEditing.begin(), kEditing.end(),
                  [&](QKeySequence::StandardKey editing) { return key.matches(editing); })) {
    return true;
  }
  if (key.modifiers() & (Qt::AltModifier | Qt::MetaModifier)) return false;
  constexpr std::array kMovingOrDeleting = {Qt::Key_Backspace, Qt::Key_Delete, Qt::Key_Home,
                                            Qt::Key_End,       Qt::Key_Left,   Qt::Key_Right,
                                            Qt::Key_Up,        Qt::Key_Down};
  return std::find(kMovingOrDeleting.begin(), kMovingOrDeleting.end(), key.key()) !=
         kMovingOrDeleting.end();
}

bool TypesTab(const QWidget& control, const QKeyEvent& key) {
  const auto* text = qobject_cast<const QPlainTextEdit*>(&control);
  return key.key() == Qt::Key_Tab && !key.modifiers() && text && !text->tabChangesFocus();
}

QVariant Moved(const QVariant& value, QPoint by) {
  switch (value.typeId()) {
    case QMetaType::QRect:
      return value.toRect().translated(by);
    case QMetaType::QRectF:
      return value.toRectF().translated(by);
    default:
      return value;
  }
}

}  // namespace

bool TypingTarget::TakesText() const {
  return control_ && control_->isEnabled() && control_->testAttribute(Qt::WA_InputMethodEnabled) &&
         control_->inputMethodQuery(Qt::ImCursorPosition).isValid();
}

bool TypingTarget::HoldsText() const {
  if (!TakesText()) return false;
  return !control_->inputMethodQuery(Qt::ImTextBeforeCursor).toString().isEmpty() ||
         !control_->inputMethodQuery(Qt::ImTextAfterCursor).toString().isEmpty();
}

bool TypingTarget::Takes(const QKeyEvent& key) const {
  return TakesText() && (TypesText(key) || Edits(key) || TypesTab(*control_, key));
}

void TypingTarget::Press(const QKeyEvent& key) {
  if (!control_) return;
  const std::unique_ptr<QKeyEvent> copy(key.clone());
  SendOnlyTo(*control_, *copy);
}

void TypingTarget::Enter(QInputMethodEvent& event) {
  if (TakesText()) SendOnlyTo(*control_, event);
}

void TypingTarget::Answer(QInputMethodQueryEvent& event, const QWidget& asked) const {
  if (!TakesText()) return event.setValue(Qt::ImEnabled, false);
  QInputMethodQueryEvent own(event.queries());
  SendOnlyTo(*control_, own);
  const QPoint shift = asked.mapFromGlobal(control_->mapToGlobal(QPoint()));
  for (quint32 bit = 1; bit != 0; bit <<= 1) {
    const auto query = static_cast<Qt::InputMethodQuery>(bit);
    if (event.queries().testFlag(query)) event.setValue(query, Moved(own.value(query), shift));
  }
}

}  // namespace verlume::qt
