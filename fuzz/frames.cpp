// What a private conversation reads and writes. The first byte says what the rest is: 't' the first
// words of a peer, behind the marker; 'q' texts for the queue, with a byte 0x1E between them, each
// sent whole to a reader; anything else frames behind a hello, in pieces as long as the second byte
// says.
#include <algorithm>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "fuzz/check.h"
#include "fuzz/costs.h"
#include "platform/protocol_marker.h"
#include "stream/frames.h"
#include "stream/private_queue.h"
#include "stream/tail.h"
#include "stream/text_count.h"
#include "stream/text_joiner.h"
#include "stream/utf8_text.h"

namespace verlume::fuzz {
namespace {

using namespace stream;
using Tail = FirstWords::Tail;

// A frame without a body takes 5 bytes of the input, and a piece of it may be a byte.
constexpr CostLimits kLimits = {.nanoseconds = 20'000, .heapBytes = 64, .heapOfAny = 512 << 10};

void CheckFirstWords(std::string_view behindMarker) {
  const std::string bytes = std::string(kMarkerBytes) + std::string(behindMarker);
  for (const Greeting wanted : {Greeting::Start, Greeting::Confirm}) {
    const FirstWords first = ReadFirstWords(bytes, wanted);
    if (!first.nickname.empty()) {
      Check(first.nickname.find('\0') == first.nickname.npos, "a nickname ends before its NUL");
    }
    if (first.tail != Tail::Private) continue;
    Check(first.length <= bytes.size(), "a tail ends where the bytes end, or before");
    const std::size_t start = kMarkerLength + 1 + first.nickname.size() + 1;
    const std::string_view tail = std::string_view(bytes).substr(start, first.length - start);
    Check(tail.size() <= kLongestTail, "a tail is short");
    Check(tail.starts_with('+') && tail.find('\0') == tail.size() - 1, "a tail has its ends");
    Check(tail.find("secure/1") != tail.npos, "a tail of a private peer says so");
    const FirstWords cut = ReadFirstWords(bytes.substr(0, first.length - 1), wanted);
    Check(cut.tail == Tail::Incomplete, "a tail without its end is waited for");
  }
}

std::string SomeHello() {
  return WriteHello({.role = Role::Caller, .transcript = {}, .nickname = "Bob"});
}

// A reader, and what it makes of frames that are texts.
class Receiver {
 public:
  void Read(std::string_view bytes) {
    while (auto frame = reader_.Read(bytes)) Take(*frame);
    Check(bytes.empty() || reader_.IsBroken(), "all is read, or the peer is at fault");
  }
  bool IsBroken() const { return reader_.IsBroken(); }
  const std::vector<Frame>& Frames() const { return frames_; }
  const std::u16string& Text() const { return text_; }
  std::uint64_t Texts() const { return texts_; }

 private:
  void Take(const Frame& frame) {
    Check(frame.body.size() <= kLongestBody, "no body is longer than a frame");
    Check(frames_.empty() == (frame.kind == FrameKind::Hello), "the first frame is the hello");
    const bool isEnd = frame.kind == FrameKind::Text;
    if (isEnd || frame.kind == FrameKind::TextPart) {
      joiner_.Add(frame.body, isEnd);
      while (const auto text = joiner_.Take()) {
        text_ += *text;
        if (!text->empty()) count_.AddArrival();
      }
      if (isEnd) count_.EndText();
      texts_ += isEnd ? 1 : 0;
    }
    if (frame.kind == FrameKind::Acknowledgement) ReadAcknowledgement(frame.body);
    if (frame.kind == FrameKind::Hello) ReadHello(frame.body);
    frames_.push_back({frame.kind, ""});
    count_.TakeInAll();
    Check(count_.TextsTakenIn() == texts_, "every text is counted, once");
  }

  FrameReader reader_;
  TextJoiner joiner_;
  TextCount count_;
  std::vector<Frame> frames_;
  std::u16string text_;
  std::uint64_t texts_ = 0;
};

void CheckFrames(std::string_view bytes) {
  const std::string stream =
      SomeHello() + std::string(bytes.substr(std::min<std::size_t>(1, bytes.size())));
  const std::size_t length = bytes.empty() ? 1 : static_cast<unsigned char>(bytes[0]) + 1u;
  Receiver whole;
  whole.Read(stream);
  Receiver pieces;
  for (std::size_t at = 0; at < stream.size() && !pieces.IsBroken(); at += length)
    pieces.Read(std::string_view(stream).substr(at, length));
  Check(whole.IsBroken() == pieces.IsBroken(), "pieces break where the whole does");
  Check(whole.Text() == pieces.Text(), "pieces say what the whole says");
  Check(whole.Frames().size() == pieces.Frames().size(), "pieces are the frames of the whole");
}

void CheckQueue(std::string_view steps) {
  PrivateQueue queue;
  Receiver peer;
  peer.Read(SomeHello());
  std::u16string expected;
  while (!steps.empty()) {
    const std::string_view step = steps.substr(0, steps.find('\x1E'));
    steps.remove_prefix(std::min(step.size() + 1, steps.size()));
    // A letter in front says how often it is repeated: long texts are several frames.
    const std::size_t times = step.empty() ? 1 : std::size_t{1} << (step[0] & 7) * 2;
    std::string text;
    for (std::size_t i = 0; i < times && text.size() < (200 << 10); ++i) text += step;
    expected += DecodeUtf8(text);
    queue.Add(text, TextKind::Line);
    const std::uint64_t before = peer.Texts();
    while (const auto frame = queue.TakeFrame()) peer.Read(*frame);
    Check(peer.Texts() == before + 1, "a text is a text to the peer");
    Check(queue.LinesWaiting() == 1, "a line waits until it is acknowledged");
    Check(!queue.Acknowledge(before + 2), "nobody has taken in more than was sent");
    Check(queue.Acknowledge(before + 1) && queue.IsDone(), "what is taken in no longer waits");
    Check(!queue.Acknowledge(before), "nobody gives a text back");
  }
  Check(!peer.IsBroken(), "what is written can be read");
  Check(peer.Text() == expected, "every text arrives as it was");
}

}  // namespace
}  // namespace verlume::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace verlume::fuzz;
  const std::string_view bytes(reinterpret_cast<const char*>(data), size);
  if (bytes.empty()) return 0;
  if (bytes[0] == 'q') {
    CheckQueue(bytes.substr(1));
    return 0;
  }
  const Costs costs(size, kLimits);
  if (bytes[0] == 't') {
    CheckFirstWords(bytes.substr(1));
  } else {
    CheckFrames(bytes.substr(1));
  }
  costs.CheckHeap();
  return 0;
}
