// What a QTextDocument holds: its text and its formats. Of its seams nothing is seen here.
#pragma once

#include <QTextCursor>
#include <string>

#include "platform/rich_text_box.h"
#include "platform_qt/text/seams.h"
#include "richtext/document.h"

namespace verlume::qt {

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
