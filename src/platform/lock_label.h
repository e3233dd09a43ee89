// The small lock at the end of the status line: whether anybody between can read the conversation.
#pragma once

#include "platform/control.h"

namespace verlume {

enum class LockPicture {
  Becoming,  // a lock with dots
  Closed,    // private
  Doubtful,  // a closed lock with an exclamation mark: private, perhaps not with whom it seems
  Verified,  // a closed lock with a tick
  Open,      // not private
  Warning,   // an open lock with an exclamation mark
};

// Its caption is a whole sentence, which is also its tool tip. Where there is no room for it the
// drawing cuts it. The lock is hidden while the caption is empty, and the rest of the status line
// has its room. Tab reaches it; Enter and the space bar on it raise onMouseDown with the left
// button.
class LockLabel : public Control {
 public:
  virtual void SetCaption(std::u16string_view sentence) = 0;
  virtual std::u16string Caption() const = 0;
  virtual void SetPicture(LockPicture picture) = 0;
  virtual LockPicture Picture() const = 0;
};

}  // namespace verlume
