#include "richtext/rtf_opening.h"

#include <algorithm>
#include <string_view>

#include "richtext/code_pages.h"
#include "richtext/rtf_limits.h"

namespace verlume::richtext {
namespace {

class OpeningWriter {
 public:
  explicit OpeningWriter(const RtfState& state)
      : state_(state), groups_(state.OuterGroups()), fonts_(state.Fonts().Declarations()) {
    groups_.push_back(state.Group());
  }

  std::string Write();

 private:
  void Word(std::string_view name) { rtf_.append("\\").append(name).append(" "); }
  void Word(std::string_view name, int number) {
    rtf_.append("\\").append(name).append(std::to_string(number)).append(" ");
  }
  void Switch(std::string_view name, bool on) { on ? Word(name) : Word(name, 0); }

  void WriteCodePage();
  void WriteColors();
  void WriteFontsTo(std::size_t count);
  void WriteFontGroup(std::size_t count);
  void WriteGroup(const GroupState& outer, const GroupState& group);
  void WriteFormat(const CharFormat& outer, const CharFormat& format);
  void WriteEastAsianFormat(const GroupState& outer, const GroupState& group);
  void WriteFallbackCount(Destination& destination, int count);
  void WriteInnermost(const GroupState& group);
  int ColorNumber(Color color) const;

  const RtfState& state_;
  std::vector<GroupState> groups_;  // the first is what is in force before the document
  std::span<const FontDeclaration> fonts_;
  std::size_t fontCount_ = 0;  // how many of them have been written
  std::string rtf_;
};

// A font's number may be declared again further on, so that each group's font is set before that:
// where a group is set to a font, the fonts as far as that one have been declared, and no others.
std::string OpeningWriter::Write() {
  rtf_ = R"({\rtf1 )";
  WriteCodePage();
  if (state_.Fonts().DefaultNumber() != 0) Word("deff", state_.Fonts().DefaultNumber());
  WriteColors();
  const std::size_t depth = groups_.size() - 1;
  for (std::size_t i = 1; i <= depth; ++i) {
    const GroupState& group = groups_[i];
    // In the deepest group there is no other for a table: whatever was declared was so before it.
    const bool isDeepest = i == limits::kMaxGroupDepth && group.destination == Destination::kBody;
    WriteFontGroup(isDeepest ? fonts_.size() : group.format.font);
    if (i > 1) rtf_ += '{';
    WriteGroup(groups_[i - 1], group);
  }
  WriteInnermost(groups_.back());
  return std::move(rtf_);
}

void OpeningWriter::WriteCodePage() {
  constexpr int kAnsiPage = 1252;
  constexpr int kUtf8Page = 65001;
  const int page = CodePageOf(state_.Fonts().DocumentUpperHalf());
  if (state_.IsUtf8()) Word("ansicpg", kUtf8Page);
  if (page == kAnsiPage) return;
  // Words that leave it to the document whether it is UTF-8.
  if (page == 437) return Word("pc");
  if (page == 850) return Word("pca");
  if (page == 10000) return Word("mac");
  Word("ansicpg", page);
}

void OpeningWriter::WriteColors() {
  if (state_.Colors().empty() && state_.NewColor() == kAutomaticColor) return;
  const auto write = [&](Color color) {
    if (color == kAutomaticColor) return;
    Word("red", color & 0xFF);
    Word("green", color >> 8 & 0xFF);
    Word("blue", color >> 16 & 0xFF);
  };
  rtf_ += R"({\colortbl )";
  for (const Color color : state_.Colors()) {
    write(color);
    rtf_ += ';';
  }
  write(state_.NewColor());
  rtf_ += '}';
}

// In a font table.
void OpeningWriter::WriteFontsTo(std::size_t count) {
  Word("uc", 0);
  for (; fontCount_ < count; ++fontCount_) {
    rtf_ += WriteFont(fonts_[fontCount_]);
    const bool isOpen = fontCount_ + 1 == fonts_.size() && state_.Fonts().IsOpen();
    if (!isOpen) rtf_ += ';';
  }
}

void OpeningWriter::WriteFontGroup(std::size_t count) {
  if (fontCount_ >= count) return;
  rtf_ += R"({\fonttbl)";
  WriteFontsTo(count);
  rtf_ += '}';
}

void OpeningWriter::WriteGroup(const GroupState& outer, const GroupState& group) {
  WriteFormat(outer.format, group.format);
  WriteEastAsianFormat(outer, group);
  Destination destination = outer.destination;
  if (group.fallbackCount != outer.fallbackCount) {
    WriteFallbackCount(destination, group.fallbackCount);
  }
  if (group.destination == destination) return;
  Word(group.destination == Destination::kFontTable ? "fonttbl" : "colortbl");
}

void OpeningWriter::WriteFormat(const CharFormat& outer, const CharFormat& format) {
  if (format.bold != outer.bold) Switch("b", format.bold);
  if (format.italic != outer.italic) Switch("i", format.italic);
  if (format.underline != outer.underline) Switch("ul", format.underline);
  if (format.strikethrough != outer.strikethrough) Switch("strike", format.strikethrough);
  if (format.halfPoints != outer.halfPoints) Word("fs", format.halfPoints);
  if (format.color != outer.color) Word("cf", ColorNumber(format.color));
  if (format.font == outer.font) return;
  // No font has the number -1.
  Word("f", format.font == FontTable::kDefaultFont ? -1 : fonts_[format.font - 1u].number);
}

// What was written of the format counts for both kinds of text.
void OpeningWriter::WriteEastAsianFormat(const GroupState& outer, const GroupState& group) {
  const CharFormat& to = group.eastAsianFormat;
  const auto inForce = [&](auto CharFormat::*member) {
    const bool isWritten = group.format.*member != outer.format.*member;
    return isWritten ? group.format.*member : outer.eastAsianFormat.*member;
  };
  bool isEastAsian = outer.isEastAsian;
  const auto begin = [&] {
    if (!isEastAsian) Word("dbch");
    isEastAsian = true;
  };
  if (to.bold != inForce(&CharFormat::bold)) begin(), Switch("ab", to.bold);
  if (to.italic != inForce(&CharFormat::italic)) begin(), Switch("ai", to.italic);
  if (to.halfPoints != inForce(&CharFormat::halfPoints)) begin(), Word("afs", to.halfPoints);
  if (isEastAsian != group.isEastAsian) Word(group.isEastAsian ? "dbch" : "loch");
}

// A colour table knows no such word.
void OpeningWriter::WriteFallbackCount(Destination& destination, int count) {
  if (destination == Destination::kColorTable) {
    destination = Destination::kFontTable;
    Word("fonttbl");
  }
  Word("uc", count);
}

// Brings the font table to its end; a font may still be being declared.
void OpeningWriter::WriteInnermost(const GroupState& group) {
  if (fontCount_ == fonts_.size()) return;
  if (group.destination == Destination::kBody) return WriteFontGroup(fonts_.size());
  if (group.destination == Destination::kColorTable) Word("fonttbl");
  WriteFontsTo(fonts_.size());
  Word("uc", group.fallbackCount);
  if (group.destination == Destination::kColorTable) Word("colortbl");
}

int OpeningWriter::ColorNumber(Color color) const {
  const auto& colors = state_.Colors();
  const auto found = std::ranges::find(colors, color);
  // No colour has the number -1.
  return color == kAutomaticColor ? -1 : static_cast<int>(found - colors.begin());
}

}  // namespace

std::string WriteOpening(const RtfState& state) {
  return OpeningWriter(state).Write();
}

std::string WriteFont(const FontDeclaration& declaration) {
  const Font& font = declaration.font;
  std::string rtf = "\\f" + std::to_string(declaration.number);
  rtf += "\\fcharset" + std::to_string(font.charset);
  const int page = declaration.upperHalf == nullptr ? 0 : CodePageOf(declaration.upperHalf);
  if (page != CodePageOfCharset(font.charset)) rtf += "\\cpg" + std::to_string(page);
  rtf += ' ';
  for (const char16_t unit : font.name) {
    if (!IsAscii(unit)) {
      rtf += "\\u" + std::to_string(unit) + ' ';
    } else {
      if (IsMarkup(unit)) rtf += '\\';
      rtf += static_cast<char>(unit);
    }
  }
  return rtf;
}

}  // namespace verlume::richtext
