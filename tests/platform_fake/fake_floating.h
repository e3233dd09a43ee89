// The groups of controls that float over the main window, in memory.
#pragma once

#include "platform/floating.h"
#include "platform_fake/fake_controls.h"

namespace verlume::fake {

class FakeFloatingPanel : public FloatingPanel {
 public:
  void SetVisible(bool value) override { visible = value; }
  bool Visible() const override { return visible; }
  bool HasFocus() const override { return hasFocus; }
  void SetAccessibleName(std::u16string_view name) override { accessibleName = name; }

  bool visible = false;
  bool hasFocus = false;
  std::u16string accessibleName;
};

class FakeCopyButton : public FakeControl<CopyButton> {
 public:
  void SetCaption(std::u16string_view text) override { caption = text; }
  std::u16string Caption() const override { return caption; }
  void SetEnabled(bool value) override { enabled = value; }
  bool Enabled() const override { return enabled; }
  void SetTextToCopy(std::u16string_view text) override { textToCopy = text; }
  std::u16string TextToCopy() const override { return textToCopy; }

  std::u16string caption;
  bool enabled = true;
  std::u16string textToCopy;
};

struct FakeWelcomeCard {
  FakeFloatingPanel fraCard;
  FakeLabel lblCard;
  FakeButton cmdCardWait;
  FakeButton cmdCardCall;
  FakeButton cmdCardHelp;
  FakeLabel lblCardAddress;
  FakeCopyButton cmdCardCopy;

  WelcomeCard View() {
    return {fraCard, lblCard, cmdCardWait, cmdCardCall, cmdCardHelp, lblCardAddress, cmdCardCopy};
  }
};

struct FakeAgainBar {
  FakeFloatingPanel fraAgain;
  FakeLabel lblAgain;
  FakeButton cmdAgain;
  FakeButton cmdAgainClose;

  AgainBar View() { return {fraAgain, lblAgain, cmdAgain, cmdAgainClose}; }
};

struct FakeResendBar {
  FakeFloatingPanel fraResend;
  FakeLabel lblResend;
  FakeButton cmdResend;
  FakeButton cmdResendDrop;
  FakeButton cmdResendClose;

  ResendBar View() { return {fraResend, lblResend, cmdResend, cmdResendDrop, cmdResendClose}; }
};

struct FakeKeyBar {
  FakeFloatingPanel fraKey;
  FakeLabel lblKey;
  FakeButton cmdKeyGoOn;
  FakeButton cmdKeyHangUp;

  KeyBar View() { return {fraKey, lblKey, cmdKeyGoOn, cmdKeyHangUp}; }
};

struct FakeRouterBar {
  FakeFloatingPanel fraRouter;
  FakeLabel lblRouter;
  FakeButton cmdRouterYes;
  FakeButton cmdRouterNo;
  FakeButton cmdRouterClose;

  RouterBar View() { return {fraRouter, lblRouter, cmdRouterYes, cmdRouterNo, cmdRouterClose}; }
};

}  // namespace verlume::fake
