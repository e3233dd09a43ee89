// Any bytes, read as a file and as text from the wire; and the cutting of what TCP has joined.
#include <cstdint>
#include <string>
#include <string_view>

#include "fuzz/check_document.h"
#include "richtext/code_pages.h"
#include "richtext/rtf_documents.h"
#include "richtext/rtf_reader.h"

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
  return 0;
}
