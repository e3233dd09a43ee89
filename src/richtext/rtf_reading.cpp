#include "richtext/rtf_reading.h"

#include <utility>

#include "richtext/rtf_reader.h"

namespace verlume::richtext {
namespace {

constexpr std::size_t kPartLength = 64 * 1024;

// Whether what stands before and behind belongs together.
bool IsOneThing(char16_t before, char16_t behind) {
  const bool isPair = (before & 0xFC00) == 0xD800 && (behind & 0xFC00) == 0xDC00;
  return isPair || (before == u'\r' && behind == u'\n');
}

}  // namespace

RtfReading::RtfReading(std::u16string rtf) : rtf_(std::move(rtf)) {
  if (!LooksLikeRtf(rtf_)) return;
  parser_.emplace(rtf_.data(), rtf_.data() + rtf_.size(), std::size_t{0});
}

Document RtfReading::Next(std::size_t length) {
  return parser_ ? parser_->ParsePart(length) : ReadPlainText(NextPlainText(length));
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
  RtfParser<char16_t> parser(rtf.data(), rtf.data() + rtf.size(), kPartLength);
  while (!parser.IsDone()) text += parser.ParsePart(kPartLength).text;
}

}  // namespace verlume::richtext
