// A menu that opens on the spot.
#pragma once

#include <QPoint>
#include <QWidget>
#include <vector>

#include "platform/control.h"

namespace verlume::qt {

// Opens the menu at a place of the screen and returns at once. It belongs to the widget, and is
// gone when the user has chosen or closed it.
void OpenPopup(QWidget& widget, const QPoint& globalPosition,
               const std::vector<PopupEntry>& entries);

}  // namespace verlume::qt
