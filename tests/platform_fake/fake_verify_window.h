// The window in which two people make sure that nobody is between them, in memory.
#pragma once

#include "platform/verify_window.h"
#include "platform_fake/fake_controls.h"

namespace verlume::fake {

// Keeps the digits as they are given.
class FakeDigitsView : public FakeControl<DigitsView> {
 public:
  void SetDigits(std::u16string_view value) override { digits = value; }
  std::u16string Digits() const override { return digits; }

  std::u16string digits;
};

class FakeCodePicture : public FakeControl<CodePicture> {
 public:
  void SetCode(std::u16string_view value) override { code = value; }
  std::u16string Code() const override { return code; }

  std::u16string code;
};

struct FakeVerifyWindow {
  FakeVerifyWindow();
  ~FakeVerifyWindow();

  FakeWindow window;
  FakeLabel lblVerifyWho;
  FakeDigitsView lblVerifyDigits;
  FakeCodePicture picVerifyCode;
  FakeLabel lblVerifyMeaning;
  FakeButton cmdVerifyCopy;
  FakeButton cmdVerifyMatch;
  FakeButton cmdVerifyClose;

  // The logic's view of the window.
  VerifyWindow frmVerify;
};

}  // namespace verlume::fake
