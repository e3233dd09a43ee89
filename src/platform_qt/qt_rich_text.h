// Rich text going into a QTextDocument and coming out of it.
#pragma once

#include <QString>
#include <QTextCursor>
#include <string_view>

#include "platform/rich_text_box.h"
#include "richtext/document.h"

namespace verlume::qt {

// Whether a box holds lines or one line, where every line break that is put in becomes a blank.
enum class Lines { Many, Single };

// Text as a document of Qt's can hold it. Line breaks are '\n' (or blanks), "\r\n" is one; the
// units that Qt gives a meaning of its own become U+FFFD, so that positions never drift.
QString SafeText(std::u16string_view text, Lines lines);

// The format of the selection's first character, or of the insertion point.
QTextCharFormat FormatOfFirst(const QTextCursor& cursor);

// An empty document goes on in this format, wherever a cursor is set in it.
void KeepFormatIfEmpty(QTextCursor& cursor, const QTextCharFormat& format);

// Both replace the cursor's selection and leave the cursor behind what came in.
void InsertText(QTextCursor& cursor, std::u16string_view text, Lines lines);
void InsertDocument(QTextCursor& cursor, const richtext::Document& document, Lines lines);

// The selected text with its formats; its fonts are of this character set.
richtext::Document SelectedDocument(const QTextCursor& cursor, int charset);

// Linear in the number of formatted pieces, not of characters.
SelectionFormat SelectedFormat(const QTextCursor& cursor);

}  // namespace verlume::qt
