// Keeps the direction of writing of a text from what stands beside it in the same line.
#pragma once

#include <QStringView>
#include <QTextCursor>

namespace verlume::qt {

// Whether the text begins a direction that it does not end, by an embedding, an override or an
// isolate. It lasts until the end of the text block, so that it would also turn what others write
// behind.
bool LeavesDirectionOpen(QStringView text);

// If the text in front of the cursor leaves a direction open, text that is inserted at the cursor
// stands behind a seam, where all directions have ended. No character is added.
void EndDirection(QTextCursor& cursor);

// Every line begins at the left. Otherwise its first letter decides: where the tag before a text is
// "<42>", the text would decide, and could put itself in front of the tag.
void BeginLinesAtTheLeft(QTextDocument& document);

}  // namespace verlume::qt
