#include "stream/send_queue.h"

namespace verlume::stream {

void SendQueue::Add(OutgoingText text) {
  const bool isSignal = text.kind == TextKind::Signal;
  if (isSignal && !texts_.empty() && texts_.back() == text) return;
  if (!isSignal) ++linesWaiting_;
  texts_.push_back(std::move(text));
}

void SendQueue::Acknowledge(TimePoint now) {
  if (!inFlight_) return;
  if (inFlight_ == TextKind::Line) --linesWaiting_;
  inFlight_.reset();
  acknowledged_ = now;
}

std::optional<std::string> SendQueue::Take(TimePoint now) {
  const bool isRead = !acknowledged_ || now - *acknowledged_ >= kReadingTime;
  if (inFlight_ || !isRead || texts_.empty()) return std::nullopt;
  OutgoingText text = std::move(texts_.front());
  texts_.pop_front();
  inFlight_ = text.kind;
  return std::move(text.bytes);
}

}  // namespace verlume::stream
