// Documents cut in two. The first two bytes say where, the next two how much of the document has
// arrived by then; the others are the document, without the "{\rtf" at its start.
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "fuzz/check_document.h"
#include "fuzz/costs.h"
#include "richtext/document_scan.h"
#include "richtext/rtf_cut.h"
#include "richtext/rtf_parser.h"
#include "richtext/rtf_reader.h"

namespace verlume::fuzz {
namespace {

constexpr CostLimits kLimits = {.nanoseconds = 5'000, .heapBytes = 64};

using richtext::CutDocument;
using richtext::Document;

// A character with its format.
struct Shown {
  char16_t unit;
  richtext::CharFormat format;
  richtext::Font font;

  bool operator==(const Shown&) const = default;
};

void Append(const Document& document, std::vector<Shown>& shown) {
  std::size_t place = 0;
  for (const richtext::Run& run : document.runs) {
    Shown character{0, run.format, document.fonts[run.format.font]};
    character.format.font = 0;  // the index differs between documents; the font itself is compared
    for (const std::size_t end = place + run.length; place < end; ++place) {
      character.unit = document.text[place];
      shown.push_back(character);
    }
  }
}

// A line break at the cut may be missing.
void CheckTextStays(const Document& before, const Document& behind, const std::u16string& whole) {
  const bool isWhole = before.text + behind.text == whole;
  Check(isWhole || before.text + u"\n" + behind.text == whole,
        "before and behind a cut is the text of the whole");
}

void CheckFormatsStay(const Document& before, const Document& behind, const Document& whole) {
  std::vector<Shown> parts;
  Append(before, parts);
  Append(behind, parts);
  std::vector<Shown> all;
  Append(whole, all);
  const bool lacksParagraphEnd = all.size() == parts.size() + 1;
  if (lacksParagraphEnd) all.erase(all.begin() + static_cast<std::ptrdiff_t>(before.text.size()));
  Check(parts == all, "before and behind a cut everything has the format it has in the whole");
}

// The part that had arrived keeps text and formats. The part that arrives later keeps its text
// only: it may declare the default font, too late for what has been shown by then.
void CheckCut(std::string_view document, std::size_t length, std::size_t arrived) {
  const std::string_view part = document.substr(0, arrived);
  const CutDocument cut = richtext::CutRtf(part, length);
  const Document before = richtext::ReadRtf(cut.before);
  const Document behind = richtext::ReadRtf(cut.behind);
  const Document whole = richtext::ReadRtf(part);
  CheckSound(before);
  CheckSound(behind);
  Check(richtext::LooksLikeRtf(cut.before), "what comes before a cut is a document");
  CheckTextStays(before, behind, whole.text);
  CheckFormatsStay(before, behind, whole);
  if (cut.behind.empty()) return;
  Check(richtext::LooksLikeRtf(cut.behind), "what comes behind a cut is a document");
  const std::string completed = cut.behind + std::string(document.substr(part.size()));
  CheckTextStays(before, richtext::ReadRtf(completed), richtext::ReadRtf(document).text);
}

// The scan for the end of a document and the reader find the same end.
void CheckEnd(std::string_view document) {
  richtext::RtfParser<char, richtext::RtfState> parser(document.data(),
                                                       document.data() + document.size());
  parser.ReadOn(document.size());
  if (!parser.GetListener().Ended()) return;
  richtext::DocumentScan scan;
  std::size_t end = std::string_view("{\\rtf").size();
  while (end < document.size() && !scan.Feed(document[end])) ++end;
  Check(end + 1 == static_cast<std::size_t>(parser.At() - document.data()),
        "a document ends where its reader says");
}

}  // namespace
}  // namespace verlume::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace verlume::fuzz;
  constexpr std::size_t kNumbers = 4;
  constexpr std::string_view kStart = "{\\rtf";
  if (size < kNumbers) return 0;
  const Costs costs(size, kLimits);
  std::string document(kStart);
  document.append(reinterpret_cast<const char*>(data) + kNumbers, size - kNumbers);
  if (document.size() > verlume::richtext::kDeepestCut) return 0;  // none is nested deeper
  const std::size_t length = data[0] | data[1] << 8;
  const std::size_t left = data[2] | data[3] << 8;
  const std::size_t arrived = document.size() - left % (document.size() - kStart.size() + 1);
  CheckCut(document, length % (document.size() + 1), arrived);
  CheckEnd(document);
  return 0;
}
