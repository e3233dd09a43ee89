// Asks routers in one language, on a thread of its own, and keeps what they have promised.
#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>
#include <mutex>
#include <thread>

#include "platform/router.h"
#include "platform_qt/os/wake_up.h"
#include "platform_qt/router/port_asker.h"

namespace verlume::qt {

struct RouterTimes {
  // For how long a port is asked for. It is asked for anew at half of what was promised.
  std::chrono::seconds lease = std::chrono::minutes(20);
  // When it is asked for again after it was not granted.
  std::chrono::seconds again = std::chrono::minutes(5);
};

// What the user wants of the router; a later wish takes the place of an earlier one.
struct RouterWish {
  int number = 0;          // every wish has another
  std::uint16_t port = 0;  // 0 for none
  bool wantsAddress = false;
  bool isEnd = false;
};

class RouterWorker {
 public:
  // `onAnswer` is raised on the worker's thread, which begins with the first wish, with the number
  // of the wish that it answers; more than once for a port. It may be raised from inside Wish.
  using OnAnswer = std::function<void(int number, const RouterReport& report)>;

  RouterWorker(std::unique_ptr<PortAsker> asker, const RouterTimes& times, OnAnswer onAnswer);
  // Gives the port back, which takes 2 s at most.
  ~RouterWorker();

  // What is being asked for another wish is broken off at once.
  void Wish(const RouterWish& wish);
  // Begins what the destructor waits for.
  void BeginEnd();

 private:
  void Run();
  RouterWish TakeWish();
  void KeepAsking(const RouterWish& wish);
  std::chrono::milliseconds TimeUntilNext(const PortAnswer& answer) const;

  const std::unique_ptr<PortAsker> asker_;
  const RouterTimes times_;
  const OnAnswer onAnswer_;
  const WakeUp wake_;  // rings when there is a new wish
  std::mutex mutex_;
  RouterWish wish_;
  std::thread thread_;
};

}  // namespace verlume::qt
