// Every document that can be read is the same after it has been written and read back.
#include <algorithm>
#include <cstdint>
#include <string>
#include <string_view>

#include "fuzz/check_document.h"
#include "fuzz/costs.h"
#include "richtext/rtf_reader.h"
#include "richtext/rtf_writer.h"

namespace verlume::fuzz {
namespace {

constexpr CostLimits kLimits = {.nanoseconds = 5'000, .heapBytes = 64};

void CheckWritten(const richtext::Document& document, const std::u16string& rtf) {
  const auto isAscii = [](char16_t unit) { return unit > 0 && unit < 0x80; };
  Check(std::all_of(rtf.begin(), rtf.end(), isAscii), "what is written is ASCII");
  const richtext::Document again = richtext::ReadRtf(rtf);
  CheckSound(again);
  Check(ShowTheSame(document, again), "what is written reads back the same");
  const std::string bytes(rtf.begin(), rtf.end());
  Check(richtext::ReadRtf(bytes) == again, "it reads the same from a file");
}

void CheckRoundTrip(const richtext::Document& document) {
  CheckWritten(document, richtext::WriteRtf(document));
  CheckWritten(document, richtext::WriteRtfFile(document));
}

// Text inserted into a document is shown unchanged.
void CheckEscaped(const std::u16string& text) {
  const std::u16string rtf = u"{\\rtf1\\ansi\\ansicpg1253<" + richtext::EscapeForRtf(text) + u">}";
  Check(richtext::ReadRtf(rtf).text == u"<" + text + u">", "escaped text shows as it is");
}

}  // namespace
}  // namespace verlume::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace verlume;
  const std::string_view bytes(reinterpret_cast<const char*>(data), size);
  const fuzz::Costs costs(size, fuzz::kLimits);
  const richtext::Document document = richtext::ReadRtf(bytes);
  costs.CheckHeap();
  fuzz::CheckRoundTrip(document);
  fuzz::CheckEscaped(document.text);
  // Any UTF-16 units as text: fuzzed RTF seldom produces them.
  std::u16string units;
  for (std::size_t i = 0; i + 1 < size; i += 2) {
    units.push_back(static_cast<char16_t>(data[i] | data[i + 1] << 8));
  }
  const richtext::Document plain = richtext::ReadRtf(units);
  if (!richtext::LooksLikeRtf(units)) fuzz::CheckRoundTrip(plain);
  return 0;
}
