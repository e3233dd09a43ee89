// Tells whether the keyboard was at rest before a key was pressed.
#pragma once

#include <QElapsedTimer>
#include <QKeyEvent>
#include <QObject>

namespace verlume::qt {

// Watches every key press in the program's windows, and every text that an input method enters.
class KeyClock : public QObject {
 public:
  KeyClock();

  // Whether no key was pressed in the second before the press that is being handled. An Alt that is
  // held for that press does not count. Coming back to the program from another one counts like a
  // key press, because the keys pressed there are unknown.
  bool WasAtRest() const { return wasAtRest_; }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void NotePress(const QKeyEvent& press);
  void NoteActivity(quint64 timestamp);
  bool IsAtRest(quint64 timestamp) const;

  QElapsedTimer sinceLast_;
  quint64 lastTimestamp_ = 0;  // of the window system, in milliseconds; 0 if unknown
  bool wasAtRest_ = true;
  bool altCameAtRest_ = false;
};

}  // namespace verlume::qt
