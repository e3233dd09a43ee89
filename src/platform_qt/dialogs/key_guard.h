// Protects a box that appears unexpectedly from keys that the user is typing.
#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QWidget>

namespace verlume::qt {

// For half a second after the box is first shown, no key reaches it; the mouse does. Lives as long
// as the box.
class KeyGuard : public QObject {
 public:
  explicit KeyGuard(QWidget* box);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  QWidget* box_;
  QElapsedTimer sinceShown_;
};

}  // namespace verlume::qt
