#include "network/relay.h"

#include <poll.h>
#include <sys/eventfd.h>

#include <algorithm>

namespace verlume::network {

Relay::Relay(TapDevice& left, TapDevice& right, const LinkQuality& quality, std::uint64_t seed)
    : directions_{{{left, right, LinkModel(quality, 2 * seed)},
                   {right, left, LinkModel(quality, 2 * seed + 1)}}},
      wake_(Checked(::eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK), "eventfd")),
      thread_([this] { Run(); }) {}

Relay::~Relay() {
  isEnding_ = true;
  ::eventfd_write(wake_.Number(), 1);
  thread_.join();
}

Time Relay::Now() {
  return std::chrono::duration_cast<Time>(std::chrono::steady_clock::now().time_since_epoch());
}

void Relay::Stall(Time duration) {
  const std::lock_guard lock(mutex_);
  for (Direction& direction : directions_) direction.model.StallUntil(Now() + duration);
}

void Relay::Mend() {
  const std::lock_guard lock(mutex_);
  for (Direction& direction : directions_) direction.model.Mend();
}

void Relay::Cut() {
  const std::lock_guard lock(mutex_);
  for (Direction& direction : directions_) direction.model.Cut();
}

std::string Relay::Account() {
  const std::lock_guard lock(mutex_);
  std::string account;
  for (const Direction& direction : directions_) {
    account += (account.empty() ? "" : " and ") + std::to_string(direction.model.Lost()) + " of " +
               std::to_string(direction.model.Added());
  }
  return account + " frames lost";
}

void Relay::Run() {
  while (!isEnding_) {
    std::array<pollfd, 3> waiting = {{{directions_[0].from.DescriptorNumber(), POLLIN, 0},
                                      {directions_[1].from.DescriptorNumber(), POLLIN, 0},
                                      {wake_.Number(), POLLIN, 0}}};
    ::poll(waiting.data(), waiting.size(), TimeToNextDelivery());
    const std::lock_guard lock(mutex_);
    for (Direction& direction : directions_) Carry(direction);
  }
}

void Relay::Carry(Direction& direction) {
  while (std::optional<Frame> frame = direction.from.Read()) {
    direction.model.Add(std::move(*frame), Now());
  }
  for (const Frame& frame : direction.model.TakeDue(Now())) direction.to.Write(frame);
}

int Relay::TimeToNextDelivery() {
  const std::lock_guard lock(mutex_);
  std::optional<Time> next;
  for (const Direction& direction : directions_) {
    const std::optional<Time> each = direction.model.NextDelivery();
    if (each) next = std::min(*each, next.value_or(*each));
  }
  if (!next) return -1;
  const auto left = std::chrono::ceil<std::chrono::milliseconds>(*next - Now());
  return static_cast<int>(std::max<std::chrono::milliseconds::rep>(0, left.count()));
}

}  // namespace verlume::network
