// What reaches the user elsewhere, in memory.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/attention.h"

namespace verlume::fake {

class FakeAttention : public Attention {
 public:
  bool IsListenedTo() const override { return listenedTo; }
  void Announce(std::u16string_view text) override {
    if (listenedTo) announced.emplace_back(text);
  }
  bool CanNotify() const override { return canNotify; }
  void Notify(const Notification& notification) override {
    shown = notification;
    ++timesNotified;
  }
  void Withdraw() override { shown.reset(); }
  void Beep() override { ++beeps; }
  void SetCount(int value) override { count = value; }

  bool listenedTo = false;
  bool canNotify = true;
  std::vector<std::u16string> announced;
  std::optional<Notification> shown;
  int timesNotified = 0;
  int beeps = 0;
  int count = 0;
};

}  // namespace verlume::fake
