#include "stream/private_queue.h"

#include <utility>

#include "stream/frames.h"
#include "stream/utf8_text.h"

namespace verlume::stream {

void PrivateQueue::Add(std::string bytes, TextKind kind) {
  Text text{std::move(bytes), kind};
  const bool isSignal = kind == TextKind::Signal;
  const bool hasLastBegun = texts_.size() == 1 && begun_ > 0;
  if (isSignal && !texts_.empty() && !hasLastBegun && texts_.back() == text) return;
  if (!isSignal) ++linesWaiting_;
  texts_.push_back(std::move(text));
}

std::optional<std::string> PrivateQueue::TakeFrame() {
  if (texts_.empty()) return std::nullopt;
  const std::string_view rest = std::string_view(texts_.front().bytes).substr(begun_);
  const std::string_view body = CutUtf8(rest, kLongestBody);
  begun_ += body.size();
  if (body.size() < rest.size()) return WriteFrame(FrameKind::TextPart, body);
  std::string frame = WriteFrame(FrameKind::Text, body);
  ++sent_;
  if (texts_.front().kind == TextKind::Line) sentLines_.push_back(sent_);
  texts_.pop_front();
  begun_ = 0;
  return frame;
}

bool PrivateQueue::Acknowledge(std::uint64_t texts) {
  if (texts < acknowledged_ || texts > sent_) return false;
  acknowledged_ = texts;
  while (!sentLines_.empty() && sentLines_.front() <= acknowledged_) {
    sentLines_.pop_front();
    --linesWaiting_;
  }
  return true;
}

}  // namespace verlume::stream
