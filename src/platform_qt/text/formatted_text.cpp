#include "platform_qt/text/formatted_text.h"

#include <algorithm>
#include <utility>

#include "platform_qt/convert/text.h"
#include "platform_qt/text/look_count.h"
#include "platform_qt/text/text_format.h"

namespace verlume::qt {
namespace {

// Qt ends blocks, frames and tables with these units, and uses U+FFFC for objects.
char16_t SafeUnit(char16_t unit, Lines lines) {
  switch (unit) {
    case u'\n':
    case u'\r':
    case u'\u2028':
    case u'\u2029':
      return lines == Lines::Single ? u' ' : u'\n';
    case u'\0':
    case u'\uFFFC':
      return u'\uFFFD';
    default:
      return unit >= 0xFDD0 && unit <= 0xFDEF ? u'\uFFFD' : unit;
  }
}

// Drops no unit, since the lengths of the runs count every one.
QString SafeUnits(std::u16string_view text, Lines lines) {
  QString safe = ToQt(text);
  for (QChar& c : safe) c = SafeUnit(c.unicode(), lines);
  return safe;
}

}  // namespace

QString SafeText(std::u16string_view text, Lines lines) {
  std::u16string joined;
  joined.reserve(text.size());
  for (std::size_t i = 0; i < text.size(); ++i) {
    const bool first = text[i] == u'\r' && i + 1 < text.size() && text[i + 1] == u'\n';
    if (!first) joined += text[i];
  }
  return SafeUnits(joined, lines);
}

FormattedText::FormattedText(std::u16string_view plain, const QTextCharFormat& format, Lines lines)
    : text(SafeText(plain, lines)), pieces{{text.size(), format}} {}

FormattedText::FormattedText(richtext::Document document, Lines lines, TextFormats* formats)
    : FormattedText(DocumentParts(std::move(document), lines, formats)
                        .Next(std::u16string::npos, std::u16string::npos)) {}

DocumentParts::DocumentParts(richtext::Document document, Lines lines, TextFormats* formats)
    : document_(std::move(document)), lines_(lines), boxFormats_(formats) {}

FormattedText DocumentParts::Next(std::size_t units, std::size_t looks) {
  const std::size_t end = EndOfPart(units);
  LookCount count(looks);
  FormattedText part;
  const std::u16string_view text = document_.text;
  const std::size_t begin = at_;
  while (at_ < end) {
    const richtext::Run& run = document_.runs[run_];
    const std::size_t wanted = std::min(run.length - inRun_, end - at_);
    const std::size_t length = count.LengthWithin(text.substr(at_, wanted), run.format);
    if (length > 0) part.pieces.push_back({static_cast<qsizetype>(length), FormatOf(run.format)});
    at_ += length;
    inRun_ += length;
    if (inRun_ < run.length) break;
    ++run_;
    inRun_ = 0;
  }
  part.text = SafeUnits(text.substr(begin, at_ - begin), lines_);
  return part;
}

std::size_t DocumentParts::EndOfPart(std::size_t units) const {
  const std::size_t size = document_.text.size();
  const std::size_t end = at_ + std::min(units, size - at_);
  const bool splitsPair =
      end > at_ && end < size && QChar::isHighSurrogate(document_.text[end - 1]);
  return splitsPair ? end + 1 : end;
}

const QTextCharFormat& DocumentParts::FormatOf(const richtext::CharFormat& format) {
  const auto known = formats_.find(format);
  if (known != formats_.end()) return known->second;
  const QTextCharFormat converted =
      boxFormats_ ? boxFormats_->Of(format, document_.fonts) : ToQt(format, document_.fonts);
  return formats_.emplace(format, converted).first->second;
}

}  // namespace verlume::qt
