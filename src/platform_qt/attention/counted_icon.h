// An icon with a number on it.
#pragma once

#include <QIcon>

namespace verlume::qt {

// The icon in each of its sizes, with a badge that shows the number, "99+" above 99. The icon
// itself if the number is 0.
QIcon CountedIcon(const QIcon& icon, int count);

}  // namespace verlume::qt
