// Draws the small lock.
#pragma once

#include <QPainter>
#include <QPalette>

#include "platform/lock_label.h"

namespace verlume::qt {

// In the colours of the desktop; only the warning has one of its own. Its shape says the same as
// its colour.
void PaintLock(QPainter& painter, const QRectF& square, LockPicture picture,
               const QPalette& palette);

}  // namespace verlume::qt
