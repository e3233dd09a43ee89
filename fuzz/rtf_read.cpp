// Any bytes, read as a file and as text from the wire, whole and part by part; and the cutting of
// what TCP has joined and of what is too long.
#include <cstdint>
#include <string>
#include <string_view>

#include "fuzz/check_document.h"
#include "richtext/code_pages.h"
#include "richtext/rtf_cut.h"
#include "richtext/rtf_documents.h"
#include "richtext/rtf_reader.h"
#include "richtext/rtf_reading.h"

namespace verlume::fuzz {
namespace {

bool IsOnlyLineEnds(std::u16string_view text) {
  return text.find_first_not_of(std::u16string_view(u"\r\n\0", 3)) == text.npos;
}

// Nothing is left out but line ends.
void CheckPieces(std::u16string_view text) {
  const char16_t* end = text.data();
  for (const std::u16string_view piece : richtext::SplitRtfDocuments(text)) {
    Check(piece.data() >= end, "pieces come in order");
    const auto skipped = static_cast<std::size_t>(piece.data() - end);
    Check(IsOnlyLineEnds({end, skipped}), "what stands between two pieces is in one of them");
    CheckSound(richtext::ReadRtf(piece));
    end = piece.data() + piece.size();
  }
  const auto rest = static_cast<std::size_t>(text.data() + text.size() - end);
  Check(IsOnlyLineEnds({end, rest}), "what stands behind the pieces is in the last of them");
}

void CheckParts(std::u16string_view text) {
  constexpr std::size_t kPartLength = 16;
  const std::u16string whole = richtext::ReadRtf(text).text;
  std::u16string joined;
  richtext::RtfReading reading{std::u16string(text)};
  while (!reading.IsDone()) {
    const richtext::Document part = reading.Next(kPartLength);
    CheckSound(part);
    joined += part.text;
  }
  Check(joined == whole, "parts add up to the text");
  std::u16string appended;
  richtext::AppendRtfText(text, appended);
  Check(appended == whole, "the text alone is the text");
}

// Two documents, of which the second does not begin with more than full tables. What they show is
// the affair of the target rtf_cut.
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
  fuzz::CheckSound(richtext::ReadRtf(bytes));
  const std::u16string text = richtext::DecodeGreek(bytes);
  fuzz::Check(richtext::EncodeGreek(text) == bytes, "decoding and encoding gives the same bytes");
  fuzz::CheckSound(richtext::ReadRtf(text));
  fuzz::CheckPieces(text);
  fuzz::CheckParts(text);
  fuzz::CheckCut(bytes);
  return 0;
}
