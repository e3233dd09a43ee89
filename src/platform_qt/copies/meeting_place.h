// Where the copies of the program that keep their settings in one folder find each other.
#pragma once

#include <QString>

namespace verlume::qt {

struct MeetingPlace {
  QString lock;    // the file that the first copy holds locked
  QString server;  // the name on which it can be reached

  bool IsUsable() const { return !lock.isEmpty(); }
};

// In the user's run-time folder or, if there is none, in the user's cache folder: where nobody else
// can put a server of his own. Not usable if neither is safe from others.
MeetingPlace MeetingPlaceOf(const QString& settingsFolder);

}  // namespace verlume::qt
