// The parts of a text that no font of this computer shows. Qt would open every font to look for
// their letters, 20 ms and more each time.
#pragma once

#include <QChar>
#include <QList>
#include <QString>
#include <functional>

namespace verlume::qt {

using ShowsScript = std::function<bool(QChar::Script)>;

struct TextPart {
  qsizetype start = 0;
  qsizetype length = 0;
};

// Whether some characters are in scripts that not every computer shows.
bool NeedsALook(QStringView text);

// The parts that Qt would look for other fonts for, in vain. `shows` tells whether any font shows a
// script.
QList<TextPart> PartsInMissingScripts(QStringView text, const ShowsScript& shows);

// The text with an empty box in the place of each unit of these parts.
QString WithBoxes(QString text, const ShowsScript& shows);

}  // namespace verlume::qt
