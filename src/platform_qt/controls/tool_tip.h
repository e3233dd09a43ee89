// Tool tips whose text is never markup.
#pragma once

#include <QString>

namespace verlume::qt {

// The string to give to Qt so that its tool tip shows exactly this text.
QString PlainToolTip(const QString& text);

}  // namespace verlume::qt
