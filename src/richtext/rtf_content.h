// What has been read of an RTF document: its text and runs, its tables, and the groups that are
// open. Knows what text and control words do; the parser knows how they are written.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "richtext/document.h"
#include "richtext/font_table.h"
#include "richtext/rtf_tokens.h"
#include "richtext/run_builder.h"

namespace verlume::richtext {

// Where the text of a group goes.
enum class Destination : std::uint8_t { kBody, kFontTable, kColorTable };

// What a group inherits from the one around it and loses at its end.
struct GroupState {
  CharFormat format;           // its font is an index of FontTable
  CharFormat eastAsianFormat;  // of text behind \dbch; it differs where associated words say so
  bool isEastAsian = false;    // such text follows
  Destination destination = Destination::kBody;
  std::uint8_t fallbackCount = 1;  // \uc: how many characters stand behind \u for older readers
};

class RtfContent {
 public:
  explicit RtfContent(std::size_t expectedLength);

  void OpenGroup();
  void CloseGroup();
  bool Ended() const { return ended_; }  // the document's own brace was closed

  // Text that needs no decoding: characters of a string, or ASCII bytes.
  template <typename Ch>
  void Append(const Ch* begin, const Ch* end) {
    if (InBody()) return builder_.Append(begin, end);
    for (; begin != end; ++begin) AppendToTable(static_cast<char16_t>(*begin));
  }

  void Append(char16_t unit) {
    if (!InBody()) return AppendToTable(unit);
    builder_.Append(unit == u'\r' ? u'\n' : unit);
  }

  // The characters of the bytes 0x80 to 0xFF in the font in force.
  const char16_t* UpperHalf() const {
    return InBody() ? fonts_.UpperHalfOf(state_.format.font) : fonts_.UpperHalfOfName();
  }

  void AppendCodePoint(char32_t codePoint);
  void AppendBreak(bool endsParagraph);

  // Does what a control word says of formats, the document and its tables; other words do nothing.
  void Apply(const ControlToken& token);

  // Sends the text of the group to a table. False where the group is too deep to be kept: it has to
  // be passed over.
  bool OpenTable(Destination table);

  bool EndsInsidePair() const { return builder_.EndsInsidePair(); }

  int FallbackCount() const { return state_.fallbackCount; }
  bool IsUtf8() const { return utf8_; }  // the document declares its bytes as UTF-8

  // What has been read since the last part.
  Document TakePart();

 private:
  bool InBody() const { return state_.destination == Destination::kBody; }
  void AppendToTable(char16_t unit);
  bool ApplyFormat(const ControlToken& token);
  bool ApplyAssociated(const ControlToken& token);
  template <typename T>
  void Set(T CharFormat::*member, T value) {
    state_.format.*member = value;
    state_.eastAsianFormat.*member = value;
  }
  const CharFormat& FormatInForce() const {
    return state_.isEastAsian ? state_.eastAsianFormat : state_.format;
  }
  void ApplyToDocument(const ControlToken& token);
  void ApplyToFonts(const ControlToken& token);
  void ApplyToColors(const ControlToken& token);
  void SetFallbackCount(int count);
  void SetColorPart(int shift, int value);
  Color ColorOf(int number) const;

  RunBuilder builder_;
  FontTable fonts_;
  std::vector<Color> colors_;
  Color newColor_ = kAutomaticColor;  // the one that is being declared

  GroupState state_;
  std::vector<GroupState> outerGroups_;
  std::size_t excessDepth_ = 0;  // groups open beyond the depth that is kept
  bool utf8_ = false;
  bool ended_ = false;
};

}  // namespace verlume::richtext
