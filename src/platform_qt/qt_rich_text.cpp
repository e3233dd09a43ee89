#include "platform_qt/qt_rich_text.h"

#include <QTextBlock>
#include <QTextDocument>
#include <algorithm>
#include <map>
#include <tuple>
#include <unordered_map>
#include <unordered_set>

#include "platform_qt/qt_text.h"
#include "platform_qt/qt_text_format.h"

namespace verlume::qt {
namespace {

// Qt ends blocks, frames and tables with these and puts U+FFFC for objects.
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

// The run model counts every unit, so here none is dropped.
QString SafeUnits(std::u16string_view text, Lines lines) {
  QString safe = ToQt(text);
  for (QChar& c : safe) c = SafeUnit(c.unicode(), lines);
  return safe;
}

// A format of a long document is made once, not with each of its runs.
class FormatCache {
 public:
  explicit FormatCache(const std::vector<richtext::Font>& fonts) : fonts_(fonts) {}

  const QTextCharFormat& Of(const richtext::CharFormat& format) {
    const Key key(format.font, format.halfPoints, format.color, format.bold, format.italic,
                  format.underline, format.strikethrough);
    const auto known = made_.find(key);
    return known != made_.end() ? known->second
                                : made_.emplace(key, ToQt(format, fonts_)).first->second;
  }

 private:
  using Key = std::tuple<int, int, Color, bool, bool, bool, bool>;

  const std::vector<richtext::Font>& fonts_;
  std::map<Key, QTextCharFormat> made_;
};

// Calls visit(formatIndex, begin, end) for the pieces of one format between two positions, as long
// as it returns true. A line break has a format too: Qt keeps it with the block that it begins.
template <class Visit>
void VisitPieces(QTextBlock block, int from, int to, Visit visit) {
  for (; block.isValid() && block.position() < to; block = block.next()) {
    for (auto it = block.begin(); !it.atEnd(); ++it) {
      const QTextFragment piece = it.fragment();
      const int begin = std::max(piece.position(), from);
      const int end = std::min(piece.position() + piece.length(), to);
      if (begin < end && !visit(piece.charFormatIndex(), begin, end)) return;
    }
    const int lineBreak = block.position() + block.length() - 1;
    if (lineBreak < from || lineBreak >= to) continue;
    if (!visit(block.next().charFormatIndex(), lineBreak, lineBreak + 1)) return;
  }
}

template <class Visit>
void VisitSelectedPieces(const QTextCursor& cursor, Visit visit) {
  const int from = cursor.selectionStart();
  VisitPieces(cursor.document()->findBlock(from), from, cursor.selectionEnd(), visit);
}

QTextCharFormat FormatAt(const QTextDocument& document, int index) {
  return document.allFormats().at(index).toCharFormat();
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

QTextCharFormat FormatOfFirst(const QTextCursor& cursor) {
  QTextCharFormat format = cursor.charFormat();
  VisitSelectedPieces(cursor, [&](int index, int, int) {
    format = FormatAt(*cursor.document(), index);
    return false;
  });
  return format;
}

void KeepFormatIfEmpty(QTextCursor& cursor, const QTextCharFormat& format) {
  if (!cursor.document()->isEmpty()) return;
  cursor.setBlockCharFormat(format);
  cursor.setCharFormat(format);
}

void InsertText(QTextCursor& cursor, std::u16string_view text, Lines lines) {
  const QTextCharFormat format = FormatOfFirst(cursor);
  cursor.insertText(SafeText(text, lines), format);
  KeepFormatIfEmpty(cursor, format);
}

void InsertDocument(QTextCursor& cursor, const richtext::Document& document, Lines lines) {
  const QTextCharFormat before = FormatOfFirst(cursor);
  const QString text = SafeUnits(document.text, lines);
  FormatCache formats(document.fonts);
  cursor.beginEditBlock();
  cursor.removeSelectedText();
  qsizetype at = 0;
  for (const richtext::Run& run : document.runs) {
    const auto length = static_cast<qsizetype>(run.length);
    cursor.insertText(text.mid(at, length), formats.Of(run.format));
    at += length;
  }
  cursor.endEditBlock();
  KeepFormatIfEmpty(cursor, before);
}

richtext::Document SelectedDocument(const QTextCursor& cursor, int charset) {
  richtext::Document document;
  document.text = FromQt(cursor.selectedText().replace(QChar::ParagraphSeparator, u'\n'));
  std::unordered_map<int, richtext::CharFormat> formats;
  VisitSelectedPieces(cursor, [&](int index, int begin, int end) {
    auto known = formats.find(index);
    if (known == formats.end()) {
      const QTextCharFormat format = FormatAt(*cursor.document(), index);
      known = formats.emplace(index, FromQt(format, charset, document.fonts)).first;
    }
    if (document.runs.empty() || document.runs.back().format != known->second) {
      document.runs.push_back({0, known->second});
    }
    document.runs.back().length += static_cast<std::size_t>(end - begin);
    return true;
  });
  return document;
}

SelectionFormat SelectedFormat(const QTextCursor& cursor) {
  SelectionFormat common = FromQt(FormatOfFirst(cursor));
  std::unordered_set<int> seen;
  VisitSelectedPieces(cursor, [&](int index, int, int) {
    if (seen.insert(index).second) KeepCommon(common, FromQt(FormatAt(*cursor.document(), index)));
    return !IsUndetermined(common);
  });
  return common;
}

}  // namespace verlume::qt
