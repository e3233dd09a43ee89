// Any UTF-8 typed into the command pane and followed by Enter, first without a peer, then with one.
// Carriage returns and other control characters in it are keys like any other.
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "fuzz/check.h"
#include "fuzz/costs.h"
#include "fuzz/coverage.h"
#include "fuzz/fuzzed_copy.h"
#include "richtext/code_pages.h"
#include "richtext/rtf_reader.h"

namespace verlume::fuzz {
namespace {

constexpr CostLimits kLimits = {.nanoseconds = 1'000'000, .heapBytes = 0};  // per key, not per byte

void CheckSent(const FuzzedCopy& copy) {
  const std::u16string& marker = copy.program.State().ProtocolMarker;
  for (const std::u16string& text : copy.platform.socket.sent) {
    const bool isMessage = text.starts_with(marker) || richtext::LooksLikeRtf(text);
    Check(isMessage, "what is sent is a message of the protocol or rich text");
  }
}

// A line without commands and placeholders is sent exactly as it is in the pane.
bool IsPlainLine(std::u16string_view line) {
  return !line.empty() && !line.starts_with(u'/') && line.find(u'$') == line.npos;
}

void Enter(FuzzedCopy& copy, const std::u16string& keys) {
  copy.platform.socket.sent.clear();
  copy.Type(keys);
  copy.network.RunUntilIdle();
  if (copy.HasEnded()) return;
  const std::u16string line = copy.Pane();
  const bool isConnected = copy.IsConnected();
  copy.Type(u"\r");
  copy.network.RunUntilIdle();
  CheckSent(copy);
  if (!isConnected || !IsPlainLine(line)) return;
  const std::vector<std::u16string>& sent = copy.platform.socket.sent;
  Check(!sent.empty(), "a line is sent");
  Check(richtext::ReadRtf(sent.back()).text == line, "a line goes out as it stands");
  Check(copy.Pane().empty(), "a line that is sent leaves the pane");
}

}  // namespace
}  // namespace verlume::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace verlume;
  using namespace verlume::fuzz;
  const std::string_view bytes(reinterpret_cast<const char*>(data), size);
  const std::u16string keys = richtext::DecodeUtf8OrGreek(bytes);
  const Costs costs(size, kLimits);
  static FuzzedCopy alone;
  alone.StartAgain();
  alone.platform.files.files[u"/macros/hello.rtf"] = "{\\rtf1\\b Hello, \\b0 $r}";
  static FuzzedCopy connected;
  connected.StartAgain();
  connected.Connect(Role::Callee);
  connected.ShakeHands(Role::Callee, "Bob");
  ForgetCoverage();
  Enter(alone, keys);
  Enter(connected, keys);
  return 0;
}
