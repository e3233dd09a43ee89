// Keeps keys from a box that appears under the user's hands.
#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QWidget>

namespace verlume::qt {

// For half a second from the box's first showing no key reaches it; the mouse does. Lives as long
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
