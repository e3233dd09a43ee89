// Measures how long a program's window takes to answer, in the way of a window manager: it pings
// the window, and the program's event loop answers.
#pragma once

#include <sys/types.h>

#include <atomic>
#include <cstdint>
#include <thread>

namespace verlume::e2e {

class AnswerWatch {
 public:
  // Starts asking, repeatedly. `window` is the window's id in the X server.
  AnswerWatch(std::uint32_t window, pid_t program);
  ~AnswerWatch();
  AnswerWatch(const AnswerWatch&) = delete;
  AnswerWatch& operator=(const AnswerWatch&) = delete;

  struct Answers {
    int count = 0;
    // The longest time between a question and its answer, in milliseconds; and the longest when the
    // time is left out in which the program, the X server or this watch waited for a processor.
    double worst = 0;
    double worstOfItsOwn = 0;
  };

  // Stops asking and returns the results; a question still open counts as answered now.
  Answers Stop();

 private:
  void Watch();

  const std::uint32_t window_;
  const pid_t program_;
  Answers answers_;
  std::atomic<bool> ends_ = false;
  std::thread thread_;
};

}  // namespace verlume::e2e
