// Waits for the window manager, which works asynchronously.
#pragma once

#include <QApplication>
#include <QTest>
#include <QWidget>
#include <QWindow>

namespace verlume::qt {

// Waits until the window has the keyboard focus; false if it does not get it.
// QTest::qWaitForWindowActive considers a box active as soon as its parent window is.
inline bool WaitForFocus(const QWidget& window) {
  return QTest::qWaitFor([&] { return QApplication::activeWindow() == &window; }, 10000);
}

// Shows a window for boxes to be opened over, and waits until it has its frame and the keyboard
// focus. Otherwise it might take the focus from the box later.
inline bool ShowAndWait(QWidget& window) {
  window.show();
  const auto hasFrame = [&] { return !window.windowHandle()->frameMargins().isNull(); };
  return WaitForFocus(window) && QTest::qWaitFor(hasFrame, 10000);
}

}  // namespace verlume::qt
