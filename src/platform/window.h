// A top-level window.
#pragma once

#include <functional>
#include <string>
#include <string_view>

namespace verlume {

// Who asks for a window to be closed.
enum class UnloadMode {
  User = 0,  // the close box, the window manager, the end of the desktop's session
  Code = 1,  // the program itself, by Unload
};

class Window {
 public:
  virtual ~Window() = default;
  virtual void SetTitle(std::u16string_view title) = 0;
  virtual std::u16string Title() const = 0;
  virtual void Show() = 0;
  // Shows the window and keeps the user from every other window of the program until it has been
  // unloaded, then returns; timer and socket events are let through meanwhile. It may be shown so
  // again and again, each time of the size that its controls want and in the middle of the window
  // that it belongs to, or of the screen where that is its place. Returns at once when the program
  // ends, and while the window is shown.
  virtual void ShowModal() = 0;
  // Closes the window: raises onQueryUnload with UnloadMode::Code and, unless that cancels,
  // onUnload. Does nothing once the window has been unloaded.
  virtual void Unload() = 0;
  // Flags the window's entry in the task bar until the user comes back to the program. Does nothing
  // while the user is in a window of the program; never raises a window or takes the keyboard.
  virtual void FlagForAttention() = 0;
  // Whether the desktop lets SetTopMost(true) succeed.
  virtual bool CanBeTopMost() const = 0;
  // Places the window above all other windows (true) or in the normal band (false), keeping its
  // place, size and activation. True when it is above the others afterwards.
  virtual bool SetTopMost(bool topMost) = 0;

  std::function<void(bool& cancel, UnloadMode mode)> onQueryUnload;
  std::function<void()> onUnload;
};

}  // namespace verlume
