#include "richtext/rtf_reading.h"

#include <utility>

#include "richtext/characters.h"
#include "richtext/rtf_reader.h"

namespace verlume::richtext {
namespace {

constexpr std::size_t kPartLength = 64 * 1024;

// Whether what stands before and behind belongs together.
bool IsOneThing(char16_t before, char16_t behind) {
  return IsSurrogatePair(before, behind) || (before == u'\r' && behind == u'\n');
}

}  // namespace

RtfReading::RtfReading(std::u16string rtf) : rtf_(std::move(rtf)) {
  if (!LooksLikeRtf(rtf_)) return;
  parser_.emplace(rtf_.data(), rtf_.data() + rtf_.size(), std::size_t{0});
}

Document RtfReading::Next(std::size_t length) {
  if (!parser_) return ReadPlainText(NextPlainText(length));
  parser_->ReadOn(length);
  return parser_->GetListener().TakePart();
}

std::u16string_view RtfReading::NextPlainText(std::size_t length) {
  std::u16string_view part = std::u16string_view(rtf_).substr(at_, length);
  at_ += part.size();
  const bool cuts = !part.empty() && at_ < rtf_.size() && IsOneThing(part.back(), rtf_[at_]);
  if (!cuts) return part;
  ++at_;
  return {part.data(), part.size() + 1};
}

void AppendRtfText(std::u16string_view rtf, std::u16string& text) {
  if (!LooksLikeRtf(rtf)) {
    text += ReadPlainText(rtf).text;
    return;
  }
  // It has no more characters than that; what is not needed costs nothing.
  text.reserve(text.size() + rtf.size());
  RtfParser<char16_t, RtfContent> parser(rtf.data(), rtf.data() + rtf.size(), kPartLength);
  while (!parser.IsDone()) {
    parser.ReadOn(kPartLength);
    text += parser.GetListener().TakePart().text;
  }
}

}  // namespace verlume::richtext
