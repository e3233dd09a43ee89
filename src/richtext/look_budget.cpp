#include "richtext/look_budget.h"

namespace verlume::richtext {
namespace {

using namespace look_budget;

void LimitFormatChanges(std::vector<Run>& runs) {
  std::size_t kept = 0;
  std::size_t characters = 0;
  for (const Run& run : runs) {
    const bool isFree = kept <= kFreeFormatChanges + characters / kCharactersPerFormatChange;
    const bool isChange = kept == 0 || runs[kept - 1].format != run.format;
    characters += run.length;
    if (isChange && isFree) {
      runs[kept++] = run;
    } else {
      runs[kept - 1].length += run.length;
    }
  }
  runs.resize(kept);
}

bool IsLineBreak(char16_t c) {
  return c == u'\n' || c == u'\r' || c == u'\u2028' || c == u'\u2029';
}

void LimitParagraphs(std::u16string& text) {
  std::size_t paragraphs = 1;
  for (char16_t& c : text) {
    if (IsLineBreak(c) && ++paragraphs > kMostParagraphs) c = u' ';
  }
}

}  // namespace

void KeepWithinBudget(Document& document) {
  LimitFormatChanges(document.runs);
  LimitParagraphs(document.text);
}

}  // namespace verlume::richtext
