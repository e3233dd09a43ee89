#include "richtext/rtf_writer.h"

#include <algorithm>
#include <unordered_map>
#include <vector>

#include "richtext/rtf_escape.h"

namespace verlume::richtext {
namespace {

constexpr std::u16string_view kEndOfLine = u"\r\n";

// The number that fonts or colours have in the table that is written: what is used, in the order of
// its first use.
template <typename T>
class Numbering {
 public:
  void Use(T item) {
    if (numbers_.try_emplace(item, inOrder_.size()).second) inOrder_.push_back(item);
  }
  int NumberOf(T item) const { return static_cast<int>(numbers_.at(item)); }
  const std::vector<T>& InOrder() const { return inOrder_; }

 private:
  std::unordered_map<T, std::size_t> numbers_;
  std::vector<T> inOrder_;
};

class RtfWriter {
 public:
  explicit RtfWriter(const Document& document);

  // `settings` are control words for the whole document.
  std::u16string Write(std::u16string_view settings);

 private:
  const Font& FontOf(std::size_t index) const;
  void WriteFontTable();
  void WriteColorTable();
  void WriteRun(const Run& run, std::u16string_view text);
  void WriteChanges(const CharFormat& to);
  void WriteSwitch(std::u16string_view word, std::u16string_view offWord, bool from, bool to);

  const Document& document_;
  const Font nameless_;
  Numbering<std::uint16_t> fonts_;
  Numbering<Color> colors_;
  CharFormat format_;       // in force where the writing stands
  bool fontKnown_ = false;  // font and size are said once even where they are RTF's defaults
  std::u16string rtf_;
};

RtfWriter::RtfWriter(const Document& document) : document_(document) {
  for (const Run& run : document.runs) {
    fonts_.Use(run.format.font);
    if (run.format.color >= 0) colors_.Use(run.format.color);
  }
  if (document.runs.empty()) fonts_.Use(0);
}

std::u16string RtfWriter::Write(std::u16string_view settings) {
  constexpr std::size_t kHeaderSize = 256;
  rtf_.reserve(kHeaderSize + document_.text.size() * 3);
  rtf_ += u"{\\rtf1\\ansi\\ansicpg1253\\deff0";
  WriteFontTable();
  WriteColorTable();
  rtf_ += u"\\viewkind4\\uc1";
  rtf_ += settings;
  rtf_ += u"\\pard";
  std::u16string_view text = document_.text;
  for (const Run& run : document_.runs) {
    WriteRun(run, text.substr(0, run.length));
    text.remove_prefix(std::min(run.length, text.size()));
  }
  rtf_ += u"\\par\r\n}";
  return std::move(rtf_);
}

const Font& RtfWriter::FontOf(std::size_t index) const {
  return index < document_.fonts.size() ? document_.fonts[index] : nameless_;
}

void RtfWriter::WriteFontTable() {
  rtf_ += u"{\\fonttbl";
  for (const std::uint16_t index : fonts_.InOrder()) {
    const Font& font = FontOf(index);
    rtf_ += u"{\\f";
    AppendNumber(rtf_, fonts_.NumberOf(index));
    rtf_ += u"\\fnil\\fcharset";
    AppendNumber(rtf_, font.charset);
    rtf_ += u' ';
    AppendFontName(rtf_, font);
    rtf_ += u";}";
  }
  rtf_ += u"}";
  rtf_ += kEndOfLine;
}

// Number 0 is the automatic colour.
void RtfWriter::WriteColorTable() {
  if (colors_.InOrder().empty()) return;
  rtf_ += u"{\\colortbl ;";
  for (const Color color : colors_.InOrder()) {
    rtf_ += u"\\red";
    AppendNumber(rtf_, color & 0xFF);
    rtf_ += u"\\green";
    AppendNumber(rtf_, color >> 8 & 0xFF);
    rtf_ += u"\\blue";
    AppendNumber(rtf_, color >> 16 & 0xFF);
    rtf_ += u';';
  }
  rtf_ += u"}";
  rtf_ += kEndOfLine;
}

void RtfWriter::WriteRun(const Run& run, std::u16string_view text) {
  const std::size_t before = rtf_.size();
  WriteChanges(run.format);
  const bool afterWord = rtf_.size() != before;
  AppendEscaped(rtf_, text, FontOf(run.format.font).charset, afterWord);
}

void RtfWriter::WriteChanges(const CharFormat& to) {
  if (to.color != format_.color) {
    rtf_ += u"\\cf";
    AppendNumber(rtf_, to.color < 0 ? 0 : colors_.NumberOf(to.color) + 1);
  }
  WriteSwitch(u"\\b", u"\\b0", format_.bold, to.bold);
  WriteSwitch(u"\\i", u"\\i0", format_.italic, to.italic);
  WriteSwitch(u"\\ul", u"\\ulnone", format_.underline, to.underline);
  WriteSwitch(u"\\strike", u"\\strike0", format_.strikethrough, to.strikethrough);
  if (!fontKnown_ || to.font != format_.font) {
    rtf_ += u"\\f";
    AppendNumber(rtf_, fonts_.NumberOf(to.font));
  }
  if (!fontKnown_ || to.halfPoints != format_.halfPoints) {
    rtf_ += u"\\fs";
    AppendNumber(rtf_, to.halfPoints);
  }
  fontKnown_ = true;
  format_ = to;
}

void RtfWriter::WriteSwitch(std::u16string_view word, std::u16string_view offWord, bool from,
                            bool to) {
  if (from != to) rtf_ += to ? word : offWord;
}

}  // namespace

std::u16string WriteRtf(const Document& document) {
  return RtfWriter(document).Write(u"");
}

std::u16string WriteRtfFile(const Document& document) {
  return RtfWriter(document).Write(u"\\dntblnsbdb");
}

std::u16string EscapeForRtf(std::u16string_view text) {
  std::u16string escaped;
  escaped.reserve(text.size() * 2);
  AppendEscaped(escaped, text, kGreekCharset, false);
  return escaped;
}

}  // namespace verlume::richtext
