// What is sent over a connection that accepts and acknowledges as it likes. The bytes are steps,
// with a byte 0x1E between them: the first byte of a step says what happens, the others are a text
// or a number. A peer in memory reads late: all that has arrived, at the last moment at which the
// queue expects it to have read.
#include <algorithm>
#include <chrono>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "fuzz/check.h"
#include "fuzz/costs.h"
#include "stream/send_queue.h"

namespace verlume::fuzz {
namespace {

using std::chrono::milliseconds;
using stream::SendQueue;

// A text without a byte takes 44 bytes in the queue, and 2 in the input.
constexpr CostLimits kLimits = {.nanoseconds = 20'000, .heapBytes = 32, .heapOfAny = 64 << 10};

// What is put into the queue, and how much of it has arrived: what the queue must agree with.
class Expected {
 public:
  explicit Expected(std::size_t mostTexts) { texts_.reserve(mostTexts); }

  void Add(std::string_view bytes, TextKind kind) {
    const Text text{bytes, kind};
    const bool isQueuedAlready =
        kind == TextKind::Signal && taken_ < texts_.size() && texts_.back() == text;
    if (!isQueuedAlready) texts_.push_back(text);
  }

  void Take(std::string_view bytes) {
    Check(IsAcknowledged(), "a text is sent when those before it are acknowledged");
    Check(taken_ < texts_.size(), "no text is sent twice");
    Check(bytes == texts_[taken_++].bytes, "texts are sent whole and in their order");
    sent_ += bytes.size();
  }

  // The peer's machine has so many more bytes, or all.
  void Acknowledge(std::size_t bytes) { acknowledged_ += std::min(bytes, sent_ - acknowledged_); }

  bool IsAcknowledged() const { return acknowledged_ == sent_; }
  bool IsDone() const { return IsAcknowledged() && taken_ == texts_.size(); }
  std::size_t Arrived() const { return acknowledged_; }
  // Where in the stream the text begins that was sent last.
  std::size_t LastText() const { return taken_ == 0 ? 0 : sent_ - texts_[taken_ - 1].bytes.size(); }
  std::size_t Queued() const { return texts_.size() - taken_; }

  std::size_t LinesWaiting() const {
    const std::size_t arrived = IsAcknowledged() ? taken_ : taken_ - 1;
    const auto first = texts_.begin() + static_cast<std::ptrdiff_t>(arrived);
    const auto isLine = [](const Text& text) { return text.kind == TextKind::Line; };
    return static_cast<std::size_t>(std::count_if(first, texts_.end(), isLine));
  }

 private:
  struct Text {
    std::string_view bytes;
    TextKind kind;

    bool operator==(const Text&) const = default;
  };

  std::vector<Text> texts_;
  std::size_t taken_ = 0;  // texts
  std::size_t sent_ = 0;   // bytes
  std::size_t acknowledged_ = 0;
};

// The program's end of a connection, the two systems, and the peer's program.
class Conversation {
 public:
  explicit Conversation(std::size_t mostTexts) : expected_(mostTexts) {}

  void Add(std::string_view bytes, TextKind kind) {
    if (kind == TextKind::Line) ++lines_;
    queue_.Add({std::string(bytes), kind});
    expected_.Add(bytes, kind);
  }

  // What the program does whenever it looks at the connection.
  void Poll() {
    CheckAcknowledgement();
    while (isOpen_) {
      const std::optional<std::string> bytes = queue_.Take(now_);
      if (!bytes) break;
      expected_.Take(*bytes);
      CheckAcknowledgement();
    }
    CheckCounts();
  }

  // So many more bytes arrive at the peer's machine.
  void Arrive(std::size_t bytes) {
    if (!isOpen_) return;
    const std::size_t before = expected_.Arrived();
    expected_.Acknowledge(bytes);
    if (expected_.Arrived() == before) return;
    arrivedAt_ = now_;
    Check(read_ >= expected_.LastText() || expected_.Arrived() <= expected_.LastText(),
          "no text arrives before the one before it is read");
  }

  void Pass(milliseconds time) {
    now_ += time;
    if (now_ - arrivedAt_ >= SendQueue::kReadingTime) read_ = expected_.Arrived();
  }

  void Close() { isOpen_ = false; }

  // Whatever is queued arrives, in no more time than it takes.
  void Finish() {
    for (std::size_t texts = expected_.Queued(); texts > 0; --texts) {
      Arrive(kEverything);
      Poll();
      Pass(SendQueue::kReadingTime);
      Poll();
    }
    Arrive(kEverything);
    Poll();
    Check(!isOpen_ || queue_.IsDone(), "every text is sent, each as soon as it may be");
  }

  static constexpr std::size_t kEverything = ~std::size_t{0};

 private:
  void CheckAcknowledgement() {
    const std::size_t waited = queue_.LinesWaiting();
    if (expected_.IsAcknowledged()) queue_.Acknowledge(now_);
    Check(queue_.LinesWaiting() <= waited, "no line waits again");
    told_ += waited - queue_.LinesWaiting();
  }

  void CheckCounts() const {
    Check(told_ + queue_.LinesWaiting() == lines_, "every line waits or is acknowledged");
    Check(queue_.IsDone() == expected_.IsDone(), "the queue is done when everything has arrived");
    if (expected_.Queued() < kMostCounted) {
      Check(queue_.LinesWaiting() == expected_.LinesWaiting(), "a line waits until it has arrived");
    }
  }

  // Counting takes time for each text that waits.
  static constexpr std::size_t kMostCounted = 100;

  SendQueue queue_;
  Expected expected_;
  stream::TimePoint now_;
  stream::TimePoint arrivedAt_;
  std::size_t read_ = 0;   // bytes
  std::size_t lines_ = 0;  // added
  std::size_t told_ = 0;   // of them, as acknowledged
  bool isOpen_ = true;
};

// The number that these bytes are; everything, if there are none.
std::size_t NumberOf(std::string_view bytes) {
  if (bytes.empty()) return Conversation::kEverything;
  std::size_t number = 0;
  for (const char byte : bytes.substr(0, 3))
    number = number << 8 | static_cast<unsigned char>(byte);
  return number;
}

void RunStep(Conversation& conversation, char what, std::string_view rest) {
  switch (what) {
    case 's':
      return conversation.Add(rest, TextKind::Signal);
    case 'f':  // a peer that asks and asks
      for (int time = 0; time < 50; ++time) conversation.Add(rest, TextKind::Signal);
      return;
    case 'a':
      return conversation.Arrive(NumberOf(rest));
    case 't':
      return conversation.Pass(milliseconds(NumberOf(rest) % 1000));
    case 'p':
      return conversation.Poll();
    case 'c':
      return conversation.Close();
    default:
      return conversation.Add(rest, TextKind::Line);
  }
}

}  // namespace
}  // namespace verlume::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace verlume::fuzz;
  std::string_view steps(reinterpret_cast<const char*>(data), size);
  Conversation conversation(size / 2 + 1);
  const Costs costs(size, kLimits);
  while (!steps.empty()) {
    const std::string_view step = steps.substr(0, steps.find('\x1E'));
    if (!step.empty()) RunStep(conversation, step[0], step.substr(1));
    steps.remove_prefix(std::min(step.size() + 1, steps.size()));
  }
  conversation.Poll();
  costs.CheckHeap();
  conversation.Finish();
  return 0;
}
