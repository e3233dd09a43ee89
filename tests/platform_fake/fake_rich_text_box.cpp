#include "platform_fake/fake_rich_text_box.h"

#include <algorithm>
#include <utility>

#include "richtext/links.h"
#include "richtext/rtf_reader.h"
#include "richtext/rtf_writer.h"

namespace verlume::fake {
namespace {

// The unit that a real box would store for this one: it reserves some units for its own use.
char16_t SafeUnit(char16_t unit, bool singleLine) {
  if (unit >= u' ' && unit < 0x80) return unit;
  if (unit == u'\n' || unit == u'\r' || unit == u'\u2028' || unit == u'\u2029') {
    return singleLine ? u' ' : u'\n';
  }
  const bool isMark = unit == 0 || unit == 0xFFFC || (unit >= 0xFDD0 && unit <= 0xFDEF);
  return isMark ? u'\uFFFD' : unit;
}

constexpr std::uint16_t kUnused = 0xFFFF;

}  // namespace

std::u16string FakeRichTextBox::Text() const {
  std::u16string text(cells_.size(), u'\0');
  std::ranges::transform(cells_, text.begin(), &Cell::character);
  return text;
}

void FakeRichTextBox::ReadInTurns(TextReader read) {
  reader = std::move(read);
  if (!readsLater) reader(0, Text(), true);
}

std::u16string FakeRichTextBox::LinkAt(std::size_t position) const {
  const std::u16string text = Text();
  const auto link = richtext::LinkAt(text, position);
  return link ? richtext::AddressOf(text.substr(link->start, link->length)) : std::u16string();
}

void FakeRichTextBox::SetText(std::u16string_view text) {
  ReplaceAll(CellsOf(text));
}

void FakeRichTextBox::SetRtf(std::u16string_view rtf) {
  if (rtfFails) throw RunTimeFailure(*rtfFails);
  ReplaceAll(CellsOf(richtext::ReadRtf(rtf)));
}

void FakeRichTextBox::ReplaceAll(std::vector<Cell> cells, Author author) {
  cells_ = std::move(cells);
  authors.assign(LineBreaks(cells_, 0, cells_.size()) + 1, author);
  rules.clear();
  unreadFrom.reset();
  if (onEndShown) onEndShown();
  selStart_ = selLength_ = 0;
  if (cells_.empty()) {
    const std::u16string font = std::exchange(fontNames_, {u"Arial"})[insertionLook_.font];
    insertionLook_.font = FontOf(font);
  } else {
    insertionLook_ = cells_.front().look;
  }
  RaiseSelChange();
  RaiseChange();
}

std::u16string FakeRichTextBox::Rtf() const {
  if (rtfFails) throw RunTimeFailure(*rtfFails);
  richtext::Document document;
  document.text = Text();
  // In the order of their first use.
  std::vector<std::uint16_t> places(fontNames_.size(), kUnused);
  const auto placeOf = [&](std::uint32_t font) {
    if (places[font] == kUnused) {
      places[font] = static_cast<std::uint16_t>(document.fonts.size());
      document.fonts.push_back({fontNames_[font], charset_});
    }
    return places[font];
  };
  const Look* before = nullptr;
  for (const auto& [character, look] : cells_) {
    if (before && *before == look) {
      ++document.runs.back().length;
      continue;
    }
    before = &look;
    richtext::CharFormat format;
    format.font = placeOf(look.font);
    format.halfPoints = static_cast<std::uint16_t>(look.fontSize * 2);
    format.color = look.color;
    format.bold = look.bold;
    format.italic = look.italic;
    format.underline = look.underline;
    format.strikethrough = look.strikethrough;
    if (document.runs.empty() || document.runs.back().format != format) {
      document.runs.push_back({0, format});
    }
    ++document.runs.back().length;
  }
  return richtext::WriteRtf(document);
}

void FakeRichTextBox::Select(std::size_t start, std::size_t length) {
  selStart_ = std::min(start, cells_.size());
  selLength_ = std::min(length, cells_.size() - selStart_);
  TakeInsertionLook();
  RaiseSelChange();
}

void FakeRichTextBox::TakeInsertionLook() {
  const auto isBreak = [this](std::size_t at) { return cells_[at].character == u'\n'; };
  const bool startsLine = selStart_ == 0 || isBreak(selStart_ - 1);
  if (startsLine && selStart_ < cells_.size() && !isBreak(selStart_)) {
    insertionLook_ = cells_[selStart_].look;
  } else if (selStart_ > 0) {
    insertionLook_ = cells_[selStart_ - 1].look;
  }
}

SelectionFormat FakeRichTextBox::SelFormat() const {
  if (formatReadFails) throw RunTimeFailure(*formatReadFails);
  if (formatIsMixed) return {};
  const Look& first = selLength_ > 0 ? cells_[selStart_].look : insertionLook_;
  const auto shown = [](Color color) { return std::max<Color>(color, 0); };
  SelectionFormat format{.fontName = fontNames_[first.font],
                         .fontSize = first.fontSize,
                         .color = shown(first.color),
                         .bold = first.bold,
                         .italic = first.italic,
                         .underline = first.underline,
                         .strikethrough = first.strikethrough};
  for (std::size_t i = selStart_; i < selStart_ + selLength_; ++i) {
    const Look& look = cells_[i].look;
    if (look.font != first.font) format.fontName.reset();
    if (look.fontSize != first.fontSize) format.fontSize.reset();
    if (shown(look.color) != shown(first.color)) format.color.reset();
    if (look.bold != first.bold) format.bold.reset();
    if (look.italic != first.italic) format.italic.reset();
    if (look.underline != first.underline) format.underline.reset();
    if (look.strikethrough != first.strikethrough) format.strikethrough.reset();
  }
  return format;
}

void FakeRichTextBox::SetSelFormat(const SelectionFormat& format) {
  if (formatFails) throw RunTimeFailure(*formatFails);
  std::optional<std::uint32_t> font;
  if (format.fontName) font = FontOf(*format.fontName);
  const auto apply = [&](Look& look) {
    if (font) look.font = *font;
    look.fontSize = format.fontSize.value_or(look.fontSize);
    look.color = format.color.value_or(look.color);
    look.bold = format.bold.value_or(look.bold);
    look.italic = format.italic.value_or(look.italic);
    look.underline = format.underline.value_or(look.underline);
    look.strikethrough = format.strikethrough.value_or(look.strikethrough);
  };
  if (selLength_ == 0) return apply(insertionLook_);
  for (std::size_t i = selStart_; i < selStart_ + selLength_; ++i) apply(cells_[i].look);
}

void FakeRichTextBox::SetSelText(std::u16string_view text) {
  Insert(CellsOf(text));
  RaiseChange();
}

void FakeRichTextBox::SetSelDocument(richtext::Document document) {
  Insert(CellsOf(document));
  RaiseChange();
}

std::size_t FakeRichTextBox::LineBreaks(const std::vector<Cell>& cells, std::size_t start,
                                        std::size_t length) {
  const auto isBreak = [](const Cell& cell) { return cell.character == u'\n'; };
  const auto first = cells.begin() + static_cast<std::ptrdiff_t>(start);
  return static_cast<std::size_t>(
      std::count_if(first, first + static_cast<std::ptrdiff_t>(length), isBreak));
}

std::size_t FakeRichTextBox::ParagraphOf(std::size_t position) const {
  return position == cells_.size() ? authors.size() - 1 : LineBreaks(cells_, 0, position);
}

void FakeRichTextBox::SetSelAuthor(Author author) {
  const std::size_t first = ParagraphOf(selStart_);
  const std::size_t last = first + LineBreaks(cells_, selStart_, selLength_);
  for (std::size_t i = first; i <= last; ++i) authors[i] = author;
}

void FakeRichTextBox::ChangeAuthor(Author author, Author other, std::size_t skipped,
                                   std::size_t count) {
  for (auto at = authors.rbegin(); at != authors.rend() && count > 0; ++at) {
    if (*at != author) continue;
    if (skipped > 0) {
      --skipped;
    } else {
      *at = other;
      --count;
    }
  }
}

void FakeRichTextBox::BeginUpdate(Reader whoReads) {
  if (updateDepth_++ > 0) return;
  reader_ = whoReads;
  keptStart_ = selStart_;
  keptLength_ = selLength_;
}

void FakeRichTextBox::EndUpdate() {
  if (--updateDepth_ > 0) return;
  if (reader_ == Reader::Stays) {
    selStart_ = keptStart_;
    selLength_ = keptLength_;
    selChanged_ = false;
  } else if (selChanged_) {
    showsEnd = selStart_ + selLength_ == cells_.size();
  }
  if (std::exchange(selChanged_, false)) RaiseSelChange();
  if (std::exchange(changed_, false)) RaiseChange();
}

void FakeRichTextBox::RaiseSelChange() {
  if (updateDepth_ > 0) {
    selChanged_ = true;
  } else if (onSelChange) {
    onSelChange();
  }
}

void FakeRichTextBox::RaiseChange() {
  if (updateDepth_ > 0) {
    changed_ = true;
  } else if (onChange) {
    onChange();
  }
}

void FakeRichTextBox::Insert(const std::vector<Cell>& cells) {
  const std::size_t paragraph = ParagraphOf(selStart_);
  const Author author = authors[paragraph];
  const auto behind = authors.begin() + static_cast<std::ptrdiff_t>(paragraph) + 1;
  const auto removed = static_cast<std::ptrdiff_t>(LineBreaks(cells_, selStart_, selLength_));
  authors.insert(authors.erase(behind, behind + removed), LineBreaks(cells, 0, cells.size()),
                 author);
  const auto at = cells_.begin() + static_cast<std::ptrdiff_t>(selStart_);
  const auto next = cells_.erase(at, at + static_cast<std::ptrdiff_t>(selLength_));
  cells_.insert(next, cells.begin(), cells.end());
  if (!cells.empty()) insertionLook_ = cells.back().look;
  selStart_ += cells.size();
  selLength_ = 0;
}

std::vector<FakeRichTextBox::Cell> FakeRichTextBox::CellsOf(std::u16string_view text) const {
  const Look& look = selLength_ > 0 ? cells_[selStart_].look : insertionLook_;
  std::vector<Cell> cells;
  cells.reserve(text.size());
  for (std::size_t i = 0; i < text.size(); ++i) {
    const char16_t c = text[i];
    if (c == u'\r' && i + 1 < text.size() && text[i + 1] == u'\n') continue;
    cells.push_back({SafeUnit(c, lines_ == Lines::Single), look});
  }
  return cells;
}

std::uint32_t FakeRichTextBox::FontOf(std::u16string_view name) {
  const auto found = std::ranges::find(fontNames_, name);
  const auto font = static_cast<std::uint32_t>(found - fontNames_.begin());
  if (found == fontNames_.end()) fontNames_.emplace_back(name);
  return font;
}

std::vector<FakeRichTextBox::Cell> FakeRichTextBox::CellsOf(const richtext::Document& document) {
  std::vector<Cell> cells(document.text.size());
  std::size_t at = 0;
  for (const richtext::Run& run : document.runs) {
    Look look;
    const std::u16string& name = document.fonts[run.format.font].name;
    if (!name.empty()) look.font = FontOf(name);
    look.fontSize = run.format.halfPoints / 2.0;
    look.color = run.format.color;
    look.bold = run.format.bold;
    look.italic = run.format.italic;
    look.underline = run.format.underline;
    look.strikethrough = run.format.strikethrough;
    for (std::size_t end = at + run.length; at < end; ++at) {
      cells[at] = {SafeUnit(document.text[at], lines_ == Lines::Single), look};
    }
  }
  return cells;
}

void FakeRichTextBox::LoadFile(std::u16string_view path, TextFileFormat format) {
  if (format == TextFileFormat::PlainText) {
    const std::u16string text = files_.ReadText(path);
    selLength_ = 0;
    insertionLook_ = Look();
    return ReplaceAll(CellsOf(text), Author::File);
  }
  ReplaceAll(CellsOf(richtext::ReadRtf(files_.ReadBytes(path))), Author::File);
}

void FakeRichTextBox::SaveFile(std::u16string_view path, TextFileFormat format) const {
  const bool isPlain = format == TextFileFormat::PlainText;
  files_.ReplaceText(path, isPlain ? Text() : richtext::WriteRtfFile(richtext::ReadRtf(Rtf())));
}

void FakeRichTextBox::Type(std::u16string_view keys) {
  for (const char16_t key : keys) {
    if (!PressKey(key_code::kOther)) continue;
    int charCode = key;
    if (onKeyPress) onKeyPress(charCode);
    if (charCode == 0 || locked) continue;
    const char16_t typed[] = {static_cast<char16_t>(charCode)};
    Insert(CellsOf({typed, 1}));
    RaiseSelChange();
    RaiseChange();
  }
}

bool FakeRichTextBox::PressKey(int keyCode, int shift) {
  int code = keyCode;
  if (onKeyDown) onKeyDown(code, shift);
  return code != 0;
}

}  // namespace verlume::fake
