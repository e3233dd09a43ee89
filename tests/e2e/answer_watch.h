// How long a program's window takes to answer, as a window manager finds out: it asks the window
// whether it is alive, and the program's event loop answers.
#pragma once

#include <sys/types.h>

#include <atomic>
#include <cstdint>
#include <thread>

namespace verlume::e2e {

class AnswerWatch {
 public:
  // Asks from now on, again and again. `window` is the X server's number of it.
  AnswerWatch(std::uint32_t window, pid_t program);
  ~AnswerWatch();
  AnswerWatch(const AnswerWatch&) = delete;
  AnswerWatch& operator=(const AnswerWatch&) = delete;

  struct Answers {
    int count = 0;
    // The longest time between a question and its answer, in milliseconds; and the longest without
    // the time in which the program, the X server or this watch were ready to run but the machine
    // had no processor for them.
    double worst = 0;
    double worstOfItsOwn = 0;
  };

  // Those so far; a question that is still open counts as answered now.
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
