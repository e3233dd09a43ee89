#include "platform_qt/text/rich_text.h"

#include <QTextBlock>
#include <QTextDocument>
#include <algorithm>
#include <unordered_set>

#include "platform_qt/convert/text.h"
#include "platform_qt/text/text_format.h"

namespace verlume::qt {
namespace {

// Calls visit(formatIndex, begin, end) for each piece of one format between two positions, until it
// returns false. A line break has a format too: Qt stores it with the block that follows.
template <class Visit>
void VisitPieces(QTextBlock block, int from, int to, Lines lines, Visit visit) {
  for (; block.isValid() && block.position() < to; block = block.next()) {
    for (auto it = block.begin(); !it.atEnd(); ++it) {
      const QTextFragment piece = it.fragment();
      const int begin = std::max(piece.position(), from);
      const int end = std::min(piece.position() + piece.length(), to);
      if (begin < end && !visit(piece.charFormatIndex(), begin, end)) return;
    }
    if (BeginsAtSeam(block.next(), lines)) continue;
    const int lineBreak = block.position() + block.length() - 1;
    if (lineBreak < from || lineBreak >= to) continue;
    if (!visit(block.next().charFormatIndex(), lineBreak, lineBreak + 1)) return;
  }
}

template <class Visit>
void VisitSelectedPieces(const QTextCursor& cursor, Lines lines, Visit visit) {
  const int from = cursor.selectionStart();
  VisitPieces(cursor.document()->findBlock(from), from, cursor.selectionEnd(), lines, visit);
}

QTextCharFormat FormatAt(const QTextDocument& document, int index) {
  return document.allFormats().at(index).toCharFormat();
}

}  // namespace

QTextCharFormat FormatOfFirst(const QTextCursor& cursor) {
  QTextCharFormat format = cursor.charFormat();
  VisitSelectedPieces(cursor, Lines::Many, [&](int index, int, int) {
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

std::u16string SelectedText(const QTextCursor& cursor, Lines lines) {
  const std::u16string text = FromQt(cursor.selectedText());
  std::u16string joined;
  joined.reserve(text.size());
  const int from = cursor.selectionStart();
  std::size_t at = 0;
  QTextBlock block = cursor.document()->findBlock(from).next();
  for (; block.isValid() && block.position() <= cursor.selectionEnd(); block = block.next()) {
    const auto end = static_cast<std::size_t>(block.position() - from);
    joined.append(text, at, end - 1 - at);
    if (!BeginsAtSeam(block, lines)) joined += u'\n';
    at = end;
  }
  return joined.append(text, at);
}

richtext::Document SelectedDocument(const QTextCursor& cursor, int charset, Lines lines) {
  PartsReader reader(charset, lines);
  reader.Add(cursor);
  return reader.Take();
}

int EndOfPart(const QTextDocument& document, int begin) {
  constexpr int kBlocks = 128;
  constexpr int kUnits = 16 * 1024;
  QTextBlock block = document.findBlock(begin);
  for (int i = 0; i < kBlocks && block.isValid() && block.position() < begin + kUnits; ++i) {
    block = block.next();
  }
  return block.isValid() ? block.position() : document.characterCount() - 1;
}

void PartsReader::Add(const QTextCursor& part) {
  document_.text += SelectedText(part, lines_);
  VisitSelectedPieces(part, lines_, [&](int index, int begin, int end) {
    auto known = formats_.find(index);
    if (known == formats_.end()) {
      const QTextCharFormat format = FormatAt(*part.document(), index);
      known = formats_.emplace(index, FromQt(format, charset_, document_.fonts)).first;
    }
    if (document_.runs.empty() || document_.runs.back().format != known->second) {
      document_.runs.push_back({0, known->second});
    }
    document_.runs.back().length += static_cast<std::size_t>(end - begin);
    return true;
  });
}

SelectionFormat SelectedFormat(const QTextCursor& cursor, Lines lines) {
  SelectionFormat common = FromQt(FormatOfFirst(cursor));
  std::unordered_set<int> seen;
  VisitSelectedPieces(cursor, lines, [&](int index, int, int) {
    if (seen.insert(index).second) KeepCommon(common, FromQt(FormatAt(*cursor.document(), index)));
    return !IsUndetermined(common);
  });
  return common;
}

}  // namespace verlume::qt
