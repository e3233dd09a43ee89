// Has assistive tools read out what is no control: a line that arrived, a change of state.
#pragma once

#include <QTimer>
#include <QWidget>
#include <array>

namespace verlume::qt {

// Shows each announcement as a notification that only assistive tools perceive: a child of the
// window, one pixel large, that paints nothing. That a notification appears is what such tools wait
// for; Qt 6.4 has no event that carries a text.
class Announcer {
 public:
  explicit Announcer(QWidget* window);

  // Does nothing while no assistive tool listens.
  void Announce(const QString& text);

 private:
  // A tool may ask for the text only when the next announcement has been made.
  std::array<QWidget*, 4> notifications_;
  std::size_t next_ = 0;
  QTimer* hide_;
};

}  // namespace verlume::qt
