// Hands a task over to the copy of the program that runs already.
#pragma once

#include <QByteArray>
#include <string_view>

#include "platform_qt/copies/meeting_place.h"

namespace verlume::qt {

// What a desktop gives to a program that it starts, so that a window may come to the front:
// printable ASCII, or nothing.
bool IsActivationToken(const QByteArray& token);

// The one that this process was started with; a QApplication takes it away.
QByteArray ActivationToken();

// True if the other copy has taken the task. Returns within about two seconds.
bool HandOver(const MeetingPlace& place, std::string_view task, const QByteArray& token);

}  // namespace verlume::qt
