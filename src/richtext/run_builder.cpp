#include "richtext/run_builder.h"

#include <utility>

namespace verlume::richtext {

void RunBuilder::SetFormat(const CharFormat& format) {
  if (format == format_) return;
  CloseRun();
  format_ = format;
}

void RunBuilder::EndParagraph() {
  text_.push_back(u'\n');
  paragraphEnd_ = text_.size();
}

Document RunBuilder::TakePart() {
  CloseRun();
  Document part{std::exchange(text_, {}), std::exchange(runs_, {}), {}};
  runStart_ = 0;
  const bool endsWithParagraph = std::exchange(paragraphEnd_, 0) == part.text.size();
  if (endsWithParagraph && !part.text.empty()) KeepParagraphEnd(part);
  return part;
}

void RunBuilder::KeepParagraphEnd(Document& part) {
  Run& last = part.runs.back();
  EndParagraph();
  runs_.push_back({1, last.format});
  runStart_ = 1;
  part.text.pop_back();
  if (--last.length == 0) part.runs.pop_back();
}

void RunBuilder::CloseRun() {
  const std::size_t length = text_.size() - runStart_;
  if (length == 0) return;
  runs_.push_back({length, format_});
  runStart_ = text_.size();
}

}  // namespace verlume::richtext
