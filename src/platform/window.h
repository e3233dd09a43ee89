// A top-level window.
#pragma once

#include <functional>
#include <string>
#include <string_view>

namespace verlume {

// Who wants to close a window.
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
  // Shows the window, blocks all other windows of the program, and returns when the window has been
  // unloaded; timer and socket events still happen meanwhile. The window can be shown again later;
  // each time it has the size that its controls need, and is centred on its parent window or, if it
  // belongs there, on the screen. Returns at once when the program ends or the window is shown
  // already.
  virtual void ShowModal() = 0;
  // Closes the window: raises onQueryUnload with UnloadMode::Code and, unless that cancels,
  // onUnload. Does nothing if the window has been unloaded already.
  virtual void Unload() = 0;
  // Whether the user is in a window of the program.
  virtual bool IsActive() const = 0;
  // Flags the window's task bar entry until the user comes back to the program. Does nothing while
  // the user is in a window of the program; never raises a window or takes the keyboard.
  virtual void FlagForAttention() = 0;
  // Whether the desktop allows SetTopMost(true).
  virtual bool CanBeTopMost() const = 0;
  // Puts the window above all other windows (true) or back among them (false), without changing its
  // place, size or activation. True if it is above the others afterwards.
  virtual bool SetTopMost(bool topMost) = 0;

  std::function<void(bool& cancel, UnloadMode mode)> onQueryUnload;
  std::function<void()> onUnload;
};

}  // namespace verlume
