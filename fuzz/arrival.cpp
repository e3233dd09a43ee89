// Bytes that arrive from a peer. The first byte says how: bit 0 whether the program called or was
// called, bit 1 whether the handshake is done, bit 2 whether the pieces arrive slowly, the other
// bits how long each piece is (0: all in one). The remaining bytes are the stream.
#include <algorithm>
#include <chrono>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "fuzz/check.h"
#include "fuzz/costs.h"
#include "fuzz/coverage.h"
#include "fuzz/fuzzed_copy.h"
#include "fuzz/stream_checks.h"
#include "stream/arrival_assembler.h"

namespace verlume::fuzz {
namespace {

constexpr std::chrono::milliseconds kQuick{1};

constexpr CostLimits kLimits = {.nanoseconds = 20'000, .heapBytes = 200};

// Each may be a line of the pane in memory, which takes much more than its text.
constexpr std::size_t kMostPieces = 2'000;
// One read returns no more.
constexpr std::size_t kLongestRead = 256 << 10;
// A part of a document that is too long to be held back: what was held back, one read more, and
// what brings a reader to the state at the cut.
constexpr std::size_t kLongestPart =
    stream::ArrivalAssembler::kLongestHeldBack + kLongestRead + (512 << 10);

struct Delivery {
  explicit Delivery(std::uint8_t how)
      : role(how & 1 ? Role::Caller : Role::Callee),
        shakesHands((how & 2) == 0),
        pause(how & 4 ? stream::ArrivalAssembler::kTimeout : kQuick),
        length(how >> 3 ? how >> 3 : kLongestRead) {}

  Role role;
  bool shakesHands;
  std::chrono::milliseconds pause;
  std::size_t length;
};

template <class Arrive>
void TakeAll(stream::ArrivalAssembler& assembler, stream::TimePoint now, const Arrive& arrive) {
  while (const auto bytes = assembler.Take(now)) arrive(bytes);
}

// Delivers the stream as the socket does, and returns all that was delivered.
std::string Deliver(std::string_view stream, const Delivery& how, FuzzedCopy& copy) {
  stream::ArrivalAssembler assembler;
  std::string delivered;
  const auto arrive = [&](const std::optional<std::string>& bytes) {
    if (!bytes) return;
    Check(bytes->size() <= kLongestPart, "no arrival is longer than what is held back");
    delivered += *bytes;
    copy.Receive(*bytes);
  };
  stream::TimePoint now;
  const std::size_t length = std::max(how.length, stream.size() / kMostPieces);
  while (!stream.empty()) {
    const std::string_view piece = stream.substr(0, length);
    stream.remove_prefix(piece.size());
    assembler.Add(piece, now);
    TakeAll(assembler, now, arrive);
    now += how.pause;
    TakeAll(assembler, now, arrive);
    Check(how.pause == kQuick || !assembler.Deadline(), "what has timed out is not held back");
  }
  arrive(assembler.Flush());
  Check(!assembler.Deadline(), "at the end nothing waits");
  return delivered;
}

}  // namespace
}  // namespace verlume::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace verlume::fuzz;
  if (size == 0) return 0;
  const std::string_view stream(reinterpret_cast<const char*>(data + 1), size - 1);
  const Delivery how(data[0]);
  static FuzzedCopy copy;
  copy.StartAgain();
  copy.Connect(how.role);
  if (how.shakesHands) copy.ShakeHands(how.role, "Bob");
  copy.Type(u"half a line");
  ForgetCoverage();
  const Costs costs(size, kLimits);
  const std::string delivered = Deliver(stream, how, copy);
  if (stream.size() < verlume::stream::ArrivalAssembler::kLongestHeldBack)
    CheckNothingLost(stream, delivered);
  costs.CheckHeap();
  CheckHarmless(copy, u"half a line");
  CheckNicknameIsLiteral(copy);
  return 0;
}
