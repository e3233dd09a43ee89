// What has been read of an RTF document: its text and runs, and what is in force behind them.
#pragma once

#include <cstddef>

#include "richtext/document.h"
#include "richtext/rtf_state.h"
#include "richtext/run_builder.h"

namespace verlume::richtext {

// The listener of RtfParser that keeps the text. The functions that have the name of one of
// RtfState are called instead of it.
class RtfContent : public RtfState {
 public:
  // `expectedLength` of a part's text.
  explicit RtfContent(std::size_t expectedLength) : builder_(expectedLength) {}

  void CloseGroup() {
    RtfState::CloseGroup();
    if (!Ended()) builder_.SetFormat(FormatInForce());
  }

  template <typename Ch>
  void Append(const Ch* begin, const Ch* end) {
    if (!InBody()) return RtfState::Append(begin, end);
    builder_.Append(begin, end);
  }

  void Append(char16_t unit) {
    if (!InBody()) return AppendToTable(unit);
    builder_.Append(unit == u'\r' ? u'\n' : unit);
  }

  // A character of one or two units.
  void AppendCodePoint(char32_t codePoint);
  // A line break; one that ends a paragraph adds no empty line at the document's end.
  void AppendBreak(bool endsParagraph);
  void Apply(const ControlToken& token) {
    if (RtfState::Apply(token)) builder_.SetFormat(FormatInForce());
  }

  // What has been read since the last part. Text in the document's default font has the font that
  // is known as such by now.
  Document TakePart();

 private:
  RunBuilder builder_;
};

}  // namespace verlume::richtext
