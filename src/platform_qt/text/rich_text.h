// Reads the text and the formats of a QTextDocument. Its seams do not show in what is read.
#pragma once

#include <QTextCursor>
#include <string>
#include <unordered_map>
#include <utility>

#include "platform/rich_text_box.h"
#include "platform_qt/text/seams.h"
#include "richtext/document.h"

namespace verlume::qt {

// The format of the selection's first character, or of the insertion point.
QTextCharFormat FormatOfFirst(const QTextCursor& cursor);

// Gives an empty document the format in which text is inserted next. Does nothing to others.
void KeepFormatIfEmpty(QTextCursor& cursor, const QTextCharFormat& format);

// A line break is u'\n'.
std::u16string SelectedText(const QTextCursor& cursor, Lines lines);
// The selected text with its formats; its fonts get this character set.
richtext::Document SelectedDocument(const QTextCursor& cursor, int charset, Lines lines);

// A long document is read in parts, each from the end of the one before. A part reads the same as
// it does within the whole.
int EndOfPart(const QTextDocument& document, int begin);

// The parts together, as one document.
class PartsReader {
 public:
  PartsReader(int charset, Lines lines) : charset_(charset), lines_(lines) {}

  void Add(const QTextCursor& part);
  richtext::Document Take() { return std::move(document_); }

 private:
  const int charset_;
  const Lines lines_;
  richtext::Document document_;
  std::unordered_map<int, richtext::CharFormat> formats_;  // by their numbers in the QTextDocument
};

// Linear in the number of formatted pieces, not of characters.
SelectionFormat SelectedFormat(const QTextCursor& cursor, Lines lines);

}  // namespace verlume::qt
