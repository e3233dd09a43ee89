#include "stream/send_queue.h"

namespace verlume::stream {

void SendQueue::Add(OutgoingText text) {
  const bool isSignal = text.kind == TextKind::Signal;
  if (isSignal && !texts_.empty() && texts_.back() == text) return;
  if (!isSignal) ++linesWaiting_;
  texts_.push_back(std::move(text));
}

void SendQueue::Acknowledge(std::int64_t now) {
  if (!onItsWay_) return;
  if (onItsWay_ == TextKind::Line) --linesWaiting_;
  onItsWay_.reset();
  acknowledged_ = now;
}

std::optional<std::string> SendQueue::Take(std::int64_t now) {
  const bool isRead = !acknowledged_ || now - *acknowledged_ >= kReadingTime;
  if (onItsWay_ || !isRead || texts_.empty()) return std::nullopt;
  OutgoingText text = std::move(texts_.front());
  texts_.pop_front();
  onItsWay_ = text.kind;
  return std::move(text.bytes);
}

}  // namespace verlume::stream
