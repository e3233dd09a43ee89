// Directions of writing that a text begins and does not end: embeddings, overrides and isolates.
// They last until the end of the text block, so that they would also turn what others write behind.
#pragma once

#include <QStringView>
#include <QTextCursor>

namespace verlume::qt {

bool LeavesDirectionOpen(QStringView text);

// If the text in front of the cursor leaves a direction open, text that is inserted at the cursor
// stands behind a seam, where all directions have ended. No character is added.
void EndDirection(QTextCursor& cursor);

}  // namespace verlume::qt
