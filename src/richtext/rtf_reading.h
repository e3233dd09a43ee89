// A text that is read part by part, so that whoever shows it need not hold all of it, nor do it all
// at once.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "richtext/document.h"
#include "richtext/rtf_parser.h"

namespace verlume::richtext {

// Reads what ReadRtf(std::u16string_view) reads. The parts joined are that document, but that each
// has the fonts that have been declared by then. No pair of surrogates is in two parts.
class RtfReading {
 public:
  explicit RtfReading(std::u16string rtf);
  // The parser points into the text.
  RtfReading(const RtfReading&) = delete;
  RtfReading& operator=(const RtfReading&) = delete;

  bool IsDone() const { return parser_ ? parser_->IsDone() : at_ == rtf_.size(); }
  // What the next characters hold, about so many of them; it may be nothing.
  Document Next(std::size_t length);

 private:
  std::u16string_view NextPlainText(std::size_t length);

  std::u16string rtf_;
  std::size_t at_ = 0;                                     // in plain text
  std::optional<RtfParser<char16_t, RtfContent>> parser_;  // of what is no plain text
};

// Appends the characters of a text without their formats: ReadRtf(rtf).text.
void AppendRtfText(std::u16string_view rtf, std::u16string& text);

}  // namespace verlume::richtext
