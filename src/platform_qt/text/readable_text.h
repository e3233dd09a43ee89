// Shows text that could not be read on its background in a shade that can. Only what is painted
// changes: the document keeps the colours that were meant, for the file, the wire and the
// clipboard.
#pragma once

#include <QPalette>
#include <QTextBlock>

#include "richtext/document.h"

namespace verlume::qt {

// The colours of a pane: all that is not part of a document is readable on this background.
QPalette PanePalette(Color background);

// Has the text of the blocks from `first` down to `height` pixels below its top shown in readable
// shades. Call it before these blocks are painted, and not while the document is being edited. It
// costs next to nothing where all is readable or was shown before on the same background; other
// blocks are laid out again.
void MakeReadable(const QTextBlock& first, qreal height, Color background);

}  // namespace verlume::qt
