// What a QTextDocument holds: its text and its formats.
//
// A single line is a document of several blocks when it is long, as a block is laid out as a whole:
// nothing is between two of them, neither in the text nor in a position.
#pragma once

#include <QTextCursor>
#include <string>

#include "platform/rich_text_box.h"
#include "richtext/document.h"

namespace verlume::qt {

// Whether a box holds lines or one line, where every line break that is put in becomes a blank.
enum class Lines { Many, Single };

// The format of the selection's first character, or of the insertion point.
QTextCharFormat FormatOfFirst(const QTextCursor& cursor);

// An empty document goes on in this format, wherever a cursor is set in it.
void KeepFormatIfEmpty(QTextCursor& cursor, const QTextCharFormat& format);

// A line break is u'\n'.
std::u16string SelectedText(const QTextCursor& cursor, Lines lines);
// The selected text with its formats; its fonts are of this character set.
richtext::Document SelectedDocument(const QTextCursor& cursor, int charset, Lines lines);

// Linear in the number of formatted pieces, not of characters.
SelectionFormat SelectedFormat(const QTextCursor& cursor, Lines lines);

}  // namespace verlume::qt
