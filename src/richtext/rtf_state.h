// What is in force at a place of an RTF document: its groups that are open, its tables, its code
// page. Knows what control words do; the parser (rtf_parser.h) knows how they are written.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "richtext/document.h"
#include "richtext/font_table.h"
#include "richtext/rtf_tokens.h"

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

// A listener of RtfParser that keeps no text but that of the tables. RtfContent, which keeps all of
// it, is one of these: the parser is compiled for each of the two, so no function is virtual.
class RtfState {
 public:
  RtfState();

  void OpenGroup();
  void CloseGroup();
  bool Ended() const { return ended_; }  // the document's own brace was closed

  // Text that needs no decoding: characters of a string, or ASCII bytes.
  template <typename Ch>
  void Append(const Ch* begin, const Ch* end) {
    if (InBody()) return;
    for (; begin != end; ++begin) AppendToTable(static_cast<char16_t>(*begin));
  }
  void Append(char16_t unit) {
    if (!InBody()) AppendToTable(unit);
  }
  void AppendCodePoint(char32_t codePoint);
  void AppendBreak(bool /*endsParagraph*/) {}

  // The characters of the bytes 0x80 to 0xFF in the font in force.
  const char16_t* UpperHalf() const {
    return InBody() ? fonts_.UpperHalfOf(group_.format.font) : fonts_.UpperHalfOfName();
  }

  // Does what a control word says of formats, the document and its tables; other words do nothing.
  // True when it may have changed the format in force.
  bool Apply(const ControlToken& token);

  // Sends the text of the group to a table. False where the group is too deep to be kept: it has to
  // be passed over.
  bool OpenTable(Destination table);

  bool InBody() const { return group_.destination == Destination::kBody; }
  int FallbackCount() const { return group_.fallbackCount; }
  bool IsUtf8() const { return isUtf8_; }  // the document declares its bytes as UTF-8

  // The innermost of the groups kept, those around it (the first is what is in force before the
  // document), and how many are open beyond the depth that is kept.
  const GroupState& Group() const { return group_; }
  const std::vector<GroupState>& OuterGroups() const { return outerGroups_; }
  std::size_t ExcessDepth() const { return excessDepth_; }

  const FontTable& Fonts() const { return fonts_; }
  const std::vector<Color>& Colors() const { return colors_; }
  Color NewColor() const { return newColor_; }  // the one that is being declared

 protected:
  const CharFormat& FormatInForce() const {
    return group_.isEastAsian ? group_.eastAsianFormat : group_.format;
  }
  void AppendToTable(char16_t unit);

 private:
  bool ApplyFormat(const ControlToken& token);
  bool ApplyAssociated(const ControlToken& token);
  template <typename T>
  void Set(T CharFormat::*member, T value) {
    group_.format.*member = value;
    group_.eastAsianFormat.*member = value;
  }
  void ApplyBeyondDepth(const ControlToken& token);
  void ApplyToDocument(const ControlToken& token);
  void ApplyToFonts(const ControlToken& token);
  void ApplyToColors(const ControlToken& token);
  void SetFallbackCount(int count);
  void SetColorPart(int shift, int value);
  Color ColorOf(int number) const;

  FontTable fonts_;
  std::vector<Color> colors_;
  Color newColor_ = kAutomaticColor;

  GroupState group_;
  std::vector<GroupState> outerGroups_;
  std::size_t excessDepth_ = 0;
  bool isUtf8_ = false;
  bool ended_ = false;
};

}  // namespace verlume::richtext
