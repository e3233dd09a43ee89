#include "platform_qt/dialogs/key_clock.h"

#include <QCoreApplication>
#include <QInputMethodEvent>
#include <chrono>

namespace verlume::qt {
namespace {

constexpr std::chrono::milliseconds kRest{1000};

bool EntersText(const QInputMethodEvent& event) {
  return !event.commitString().isEmpty() || !event.preeditString().isEmpty();
}

}  // namespace

KeyClock::KeyClock() {
  QCoreApplication::instance()->installEventFilter(this);
}

bool KeyClock::eventFilter(QObject* watched, QEvent* event) {
  switch (event->type()) {
    // The first event of every key press, also of a shortcut. The window gets it once; its widgets
    // may get it several times.
    case QEvent::ShortcutOverride:
      if (watched->isWindowType()) NotePress(*static_cast<QKeyEvent*>(event));
      break;
    case QEvent::InputMethod:
      if (EntersText(*static_cast<QInputMethodEvent*>(event))) NoteActivity(0);
      break;
    case QEvent::ApplicationActivate:
      NoteActivity(0);
      break;
    default:
      break;
  }
  return false;
}

void KeyClock::NotePress(const QKeyEvent& press) {
  const bool isAtRest = IsAtRest(press.timestamp());
  const bool hasItsAlt = altCameAtRest_ && press.modifiers().testFlag(Qt::AltModifier);
  wasAtRest_ = isAtRest || hasItsAlt;
  altCameAtRest_ = press.key() == Qt::Key_Alt && isAtRest;
  NoteActivity(press.timestamp());
}

void KeyClock::NoteActivity(quint64 timestamp) {
  sinceLast_.start();
  lastTimestamp_ = timestamp;
}

// Keys may have waited while the program was busy. Then the window system knows better when they
// were pressed.
bool KeyClock::IsAtRest(quint64 timestamp) const {
  if (sinceLast_.isValid() && !sinceLast_.hasExpired(kRest.count())) return false;
  const bool areKnown = timestamp > lastTimestamp_ && lastTimestamp_ > 0;
  return !areKnown || timestamp - lastTimestamp_ >= static_cast<quint64>(kRest.count());
}

}  // namespace verlume::qt
