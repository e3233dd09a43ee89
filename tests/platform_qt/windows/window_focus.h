// Waits for what the window manager does when it gets round to it.
#pragma once

#include <QApplication>
#include <QTest>
#include <QWidget>
#include <QWindow>

namespace verlume::qt {

// Waits until the window has the keyboard; false when it does not get it. To
// QTest::qWaitForWindowActive a box is active as soon as the window is that it belongs to.
inline bool WaitForFocus(const QWidget& window) {
  return QTest::qWaitFor([&] { return QApplication::activeWindow() == &window; }, 10000);
}

// Shows a window that boxes are opened over, and waits until it has its frame and the keyboard: if
// it came to them later, it would take the keyboard from the box.
inline bool ShowAndWait(QWidget& window) {
  window.show();
  const auto hasFrame = [&] { return !window.windowHandle()->frameMargins().isNull(); };
  return WaitForFocus(window) && QTest::qWaitFor(hasFrame, 10000);
}

}  // namespace verlume::qt
