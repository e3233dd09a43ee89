// What LibreOffice shows of a document, read from its flat XML.
#pragma once

#include <QString>

#include "libreoffice/styled_text.h"

namespace verlume::libreoffice {

// The paragraphs of the body, with every style resolved. LibreOffice keeps size and styles twice,
// for western and for East Asian letters: where the two differ, the size is -1. Its font for East
// Asian letters is its own affair: RTF names one font for all. Bad XML fails the test.
StyledText ReadFlatDocument(const QString& path);

}  // namespace verlume::libreoffice
