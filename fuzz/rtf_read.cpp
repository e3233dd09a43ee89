// Any bytes, read as a file and as text from the wire, where TCP may have joined documents; and cut
// in two, as a document that is too long is.
#include <cstdint>
#include <string>
#include <string_view>

#include "fuzz/check_document.h"
#include "fuzz/costs.h"
#include "richtext/code_pages.h"
#include "richtext/rtf_cut.h"
#include "richtext/rtf_documents.h"
#include "richtext/rtf_reader.h"

namespace verlume::fuzz {
namespace {

constexpr CostLimits kLimits = {.nanoseconds = 2'000, .heapBytes = 64};

bool IsOnlyLineEnds(std::u16string_view text) {
  return text.find_first_not_of(std::u16string_view(u"\r\n\0", 3)) == text.npos;
}

// Only line ends are left out.
void CheckDocuments(std::u16string_view text) {
  const char16_t* end = text.data();
  for (const auto& [source, document] : richtext::ReadRtfDocuments(text)) {
    Check(source.data() >= end, "documents come in order");
    const auto skipped = static_cast<std::size_t>(source.data() - end);
    Check(IsOnlyLineEnds({end, skipped}), "what stands between two documents is one of them");
    CheckSound(document);
    Check(document.text == richtext::ReadRtf(source).text, "a document is what its source says");
    end = source.data() + source.size();
  }
  const auto rest = static_cast<std::size_t>(text.data() + text.size() - end);
  Check(IsOnlyLineEnds({end, rest}), "what stands behind the documents is the last of them");
}

// A cut gives two documents, which together are longer than the whole by full tables at most. What
// they show is checked by the target rtf_cut.
void CheckCut(std::string_view bytes) {
  constexpr std::size_t kLongestOpening = 512 * 1024;
  if (!richtext::LooksLikeRtf(bytes)) return;
  const richtext::CutDocument cut = richtext::CutRtf(bytes, bytes.size() / 2);
  CheckSound(richtext::ReadRtf(cut.before));
  CheckSound(richtext::ReadRtf(cut.behind));
  Check(richtext::LooksLikeRtf(cut.before), "what comes before a cut is a document");
  Check(cut.behind.size() <= bytes.size() + kLongestOpening, "openings are short");
}

}  // namespace
}  // namespace verlume::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace verlume;
  const std::string_view bytes(reinterpret_cast<const char*>(data), size);
  const fuzz::Costs costs(size, fuzz::kLimits);
  const richtext::Document document = richtext::ReadRtf(bytes);
  costs.CheckHeap();
  fuzz::CheckSound(document);
  const std::u16string text = richtext::DecodeGreek(bytes);
  fuzz::Check(richtext::EncodeGreek(text) == bytes, "decoding and encoding gives the same bytes");
  fuzz::CheckSound(richtext::ReadRtf(text));
  fuzz::CheckDocuments(text);
  fuzz::CheckCut(bytes);
  return 0;
}
