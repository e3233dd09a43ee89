#include <gtest/gtest.h>
#include <malloc.h>

#include "stream/private_queue.h"

// Of AddressSanitizer, whose allocator mallinfo2 does not know.
extern "C" [[gnu::weak]] std::size_t __sanitizer_get_current_allocated_bytes();

namespace verlume::stream {
namespace {

std::size_t AllocatedBytes() {
  return __sanitizer_get_current_allocated_bytes ? __sanitizer_get_current_allocated_bytes()
                                                 : mallinfo2().uordblks;
}

TEST(PrivateQueueMemoryTest, SignalsThatAreNeverAcknowledgedTakeNoMemory) {
  PrivateQueue queue;
  constexpr std::uint64_t kSignals = 200'000;
  const std::size_t before = AllocatedBytes();
  for (std::uint64_t i = 0; i < kSignals; ++i) {
    queue.Add("name", TextKind::Signal);
    ASSERT_TRUE(queue.TakeFrame());
  }
  EXPECT_LT(AllocatedBytes(), before + 10'000);
  queue.Add("line", TextKind::Line);
  queue.TakeFrame();
  EXPECT_TRUE(queue.Acknowledge(kSignals));
  EXPECT_EQ(queue.LinesWaiting(), 1u);
  EXPECT_TRUE(queue.Acknowledge(kSignals + 1));
  EXPECT_TRUE(queue.IsDone());
}

}  // namespace
}  // namespace verlume::stream
