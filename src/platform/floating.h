// The groups of controls that float over the main window, and are shown only when they help.
#pragma once

#include "platform/control.h"

namespace verlume {

// A group that lies over the controls of its window, moves none of them, and never takes the
// keyboard focus. SetVisible(true) shows it wherever it has room; Visible says what was set.
class FloatingPanel : public Panel {
 public:
  // The name that assistive tools read when they come to the group.
  virtual void SetAccessibleName(std::u16string_view name) = 0;
};

// A press puts a text on the clipboard, before it raises onClick.
class CopyButton : public Button {
 public:
  virtual void SetTextToCopy(std::u16string_view text) = 0;
  virtual std::u16string TextToCopy() const = 0;
};

// The card in the middle of the empty dialogue pane.
struct WelcomeCard {
  FloatingPanel& fraCard;
  Label& lblCard;
  Button& cmdCardWait;
  Button& cmdCardCall;
  Button& cmdCardHelp;
  Label& lblCardAddress;
  CopyButton& cmdCardCopy;
};

// The bar above the command pane after a conversation that the user has not ended. Escape in it
// presses cmdAgainClose.
struct AgainBar {
  FloatingPanel& fraAgain;
  Label& lblAgain;
  Button& cmdAgain;
  Button& cmdAgainClose;
};

// The bar above the command pane while the peer can get what was not delivered before. Escape in it
// presses cmdResendClose.
struct ResendBar {
  FloatingPanel& fraResend;
  Label& lblResend;
  Button& cmdResend;
  Button& cmdResendDrop;
  Button& cmdResendClose;
};

// The bar above the command pane when another key than before has come: the conversation waits for
// the user. It is shown even where there is little room. lblKey wraps. What is typed goes on into
// the command pane and never answers it: its buttons are pressed by mouse, by Alt and their letter,
// and with Enter or the space bar once Tab has reached them, each only after a rest.
struct KeyBar {
  FloatingPanel& fraKey;
  Label& lblKey;
  Button& cmdKeyGoOn;
  Button& cmdKeyHangUp;  // the default button
};

// The bar above the command pane that asks whether the router may be asked to pass calls on.
// lblRouter wraps. The bar takes no focus, and keyBar goes before it. Escape in it presses
// cmdRouterClose.
struct RouterBar {
  FloatingPanel& fraRouter;
  Label& lblRouter;
  Button& cmdRouterYes;
  Button& cmdRouterNo;
  Button& cmdRouterClose;
};

}  // namespace verlume
