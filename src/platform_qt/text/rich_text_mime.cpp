#include "platform_qt/text/rich_text_mime.h"

#include <algorithm>
#include <string_view>

#include "platform_qt/convert/text.h"
#include "platform_qt/text/text_insertion.h"
#include "richtext/rtf_reader.h"
#include "richtext/rtf_writer.h"

namespace verlume::qt {
namespace {

constexpr auto kRtfTypes = {"text/rtf", "application/rtf", "text/richtext"};

// A single line is one paragraph, which is laid out as a whole with every key.
constexpr std::size_t MaxLength(Lines lines) {
  return lines == Lines::Single ? 64 * 1024 : 16 * 1024 * 1024;
}

// The most RTF that is read, in bytes per character that may be inserted.
constexpr std::size_t kRtfPerCharacter = 16;

QByteArray RtfOf(const QMimeData& source) {
  for (const char* type : kRtfTypes) {
    QByteArray bytes = source.data(type);
    if (richtext::LooksLikeRtf(std::string_view(bytes.constData(), bytes.size()))) return bytes;
  }
  return {};
}

std::size_t CutLength(std::u16string_view text, std::size_t length) {
  if (length >= text.size()) return text.size();
  const bool splitsPair = length > 0 && QChar::isHighSurrogate(text[length - 1]);
  return splitsPair ? length - 1 : length;
}

void Cut(richtext::Document& document, std::size_t length) {
  length = CutLength(document.text, length);
  document.text.resize(length);
  std::size_t at = 0;
  for (richtext::Run& run : document.runs) {
    run.length = std::min(run.length, length - at);
    at += run.length;
  }
}

}  // namespace

QStringList RichTextMimeData::formats() const {
  return {"text/rtf", "application/rtf", "text/plain"};
}

QVariant RichTextMimeData::retrieveData(const QString& type, QMetaType) const {
  if (type == "text/plain") return ToQt(document_.text);
  if (!formats().contains(type)) return {};
  return ToQt(richtext::WriteRtfFile(document_)).toLatin1();
}

bool HoldsText(const QMimeData& source) {
  return source.hasText() || std::any_of(kRtfTypes.begin(), kRtfTypes.end(),
                                         [&](auto type) { return source.hasFormat(type); });
}

void InsertMimeData(QTextCursor& cursor, const QMimeData& source, Lines lines) {
  const std::size_t room = MaxLength(lines);
  const QByteArray rtf = RtfOf(source);
  if (rtf.isEmpty()) {
    const std::u16string text = FromQt(source.text());
    return InsertText(cursor, std::u16string_view(text).substr(0, CutLength(text, room)), lines);
  }
  const std::string_view bytes(rtf.constData(), static_cast<std::size_t>(rtf.size()));
  richtext::Document document = richtext::ReadRtf(bytes.substr(0, room * kRtfPerCharacter));
  Cut(document, room);
  InsertDocument(cursor, document, lines);
}

}  // namespace verlume::qt
