// Reads the text and the formats of a QTextDocument. Its seams do not show in what is read.
#pragma once

#include <QTextCursor>
#include <string>

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

// Linear in the number of formatted pieces, not of characters.
SelectionFormat SelectedFormat(const QTextCursor& cursor, Lines lines);

}  // namespace verlume::qt
