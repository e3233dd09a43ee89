// The arrival queue between two threads, as a connection uses it: also a test for ThreadSanitizer
// (tools/thread_check).
#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <mutex>
#include <optional>
#include <string>
#include <thread>
#include <utility>

#include "stream/arrival_queue.h"

namespace verlume::stream {
namespace {

constexpr int kArrivals = 2'000;
constexpr std::chrono::seconds kStall{20};

std::u16string Number(int i) {
  const std::string digits = std::to_string(i);
  return {digits.begin(), digits.end()};
}

// What one thread waits for and the other raises. It stays raised until it has been waited for.
class Signal {
 public:
  void Raise() {
    const std::lock_guard lock(mutex_);
    isRaised_ = true;
    raised_.notify_one();
  }
  // False when it is not raised in time.
  bool Wait() {
    std::unique_lock lock(mutex_);
    const bool wasRaised = raised_.wait_for(lock, kStall, [this] { return isRaised_; });
    isRaised_ = false;
    return wasRaised;
  }

 private:
  std::mutex mutex_;
  std::condition_variable raised_;
  bool isRaised_ = false;
};

// A reader thread, which stops while the queue is full until it is told to resume, and a consumer,
// which sleeps while the queue is empty until it is told of an arrival. Neither polls: a signal
// that gets lost stalls them both.
class Conversation {
 public:
  explicit Conversation(std::size_t limit) : queue_(limit), reader_([this] { Read(); }) {}
  ~Conversation() { reader_.join(); }

  // The next arrival; nothing at the end, or after a stall.
  std::optional<std::u16string> Next() {
    while (!queue_.IsOver()) {
      if (auto taken = queue_.Take()) {
        if (taken->madeRoom) resume_.Raise();
        return std::move(taken->arrival);
      }
      if (!arrived_.Wait()) break;
    }
    return std::nullopt;
  }
  bool IsOver() const { return queue_.IsOver(); }
  std::size_t TimesStopped() const { return timesStopped_; }

 private:
  void Read() {
    for (int i = 0; i < kArrivals; ++i) {
      while (queue_.IsFull()) {
        ++timesStopped_;
        if (!resume_.Wait()) return;
      }
      if (queue_.Add(Number(i))) arrived_.Raise();
    }
    queue_.End();
    arrived_.Raise();
  }

  ArrivalQueue queue_;
  Signal resume_;
  Signal arrived_;
  std::atomic<std::size_t> timesStopped_ = 0;
  std::thread reader_;  // the last member: it uses the others
};

void ExpectEveryArrivalInOrder(Conversation& conversation) {
  int next = 0;
  while (const auto arrival = conversation.Next()) {
    ASSERT_EQ(*arrival, Number(next));
    ++next;
  }
  EXPECT_EQ(next, kArrivals);
  EXPECT_TRUE(conversation.IsOver());
}

TEST(ArrivalQueueThreads, EveryArrivalComesThroughInOrder) {
  Conversation conversation(ArrivalQueue::kLimit);
  ExpectEveryArrivalInOrder(conversation);
  EXPECT_EQ(conversation.TimesStopped(), 0u);
}

TEST(ArrivalQueueThreads, NoResumeGetsLostWhenEachArrivalFillsTheQueue) {
  Conversation conversation(1);
  ExpectEveryArrivalInOrder(conversation);
  EXPECT_GT(conversation.TimesStopped(), 0u);
}

TEST(ArrivalQueueThreads, NoResumeGetsLostWhenSeveralArrivalsFillTheQueue) {
  Conversation conversation(16);
  ExpectEveryArrivalInOrder(conversation);
  EXPECT_GT(conversation.TimesStopped(), 0u);
}

// The reader fills the queue and stops right after the consumer has seen that it is not full, and
// before the consumer takes: only what Take tells can make the reader resume.
TEST(ArrivalQueueThreads, AReaderThatStopsJustBeforeATakeResumes) {
  ArrivalQueue queue(1);
  Signal go, stopped, resume, arrived;
  std::thread reader([&] {
    if (!go.Wait()) return;
    queue.Add(u"first");
    EXPECT_TRUE(queue.IsFull());
    stopped.Raise();
    if (!resume.Wait()) return;
    queue.Add(u"second");
    arrived.Raise();
  });
  EXPECT_FALSE(queue.IsFull());
  go.Raise();
  EXPECT_TRUE(stopped.Wait());
  const auto first = queue.Take();
  if (first && first->madeRoom) resume.Raise();
  EXPECT_TRUE(arrived.Wait()) << "the reader has stalled";
  reader.join();
}

}  // namespace
}  // namespace verlume::stream
