// What reaches a user who is not looking at the window: announcements of assistive tools, the
// desktop's notifications, a sound, and the number on the program's icon. None of it takes the
// keyboard, and none of it ever fails: what the desktop cannot do is left out.
#pragma once

#include <functional>
#include <string>
#include <string_view>

namespace verlume {

// Plain text, never interpreted as markup.
struct Notification {
  std::u16string title;
  std::u16string text;
  bool withSound = false;
};

class Attention {
 public:
  virtual ~Attention() = default;

  // Whether an assistive tool, such as a screen reader, is there to hear announcements.
  virtual bool IsListenedTo() const = 0;
  // Has the text read out when the tool has said what it is saying. Does nothing if none listens.
  virtual void Announce(std::u16string_view text) = 0;

  // Whether the desktop may show notifications.
  virtual bool CanNotify() const = 0;
  // Shows the notification in the place of the one before it, and returns at once. If the user
  // clicks it, the program's window comes to the front.
  virtual void Notify(const Notification& notification) = 0;
  // Takes back what Notify has shown.
  virtual void Withdraw() = 0;
  virtual void Beep() = 0;

  // Shows the number on the program's icon, where windows and task bar show it; 0 for none.
  virtual void SetCount(int count) = 0;

  // The user has come to a window of the program.
  std::function<void()> onUserBack;
};

}  // namespace verlume
