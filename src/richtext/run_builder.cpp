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

Document RunBuilder::Finish() {
  CloseRun();
  const bool endsWithParagraph = paragraphEnd_ != 0 && paragraphEnd_ == text_.size();
  if (endsWithParagraph) {
    text_.pop_back();
    if (--runs_.back().length == 0) runs_.pop_back();
  }
  return {std::move(text_), std::move(runs_), {}};
}

void RunBuilder::CloseRun() {
  const std::size_t length = text_.size() - runStart_;
  if (length == 0) return;
  runs_.push_back({length, format_});
  runStart_ = text_.size();
}

}  // namespace verlume::richtext
