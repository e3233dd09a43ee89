// The window in which two people make sure that nobody is between them, frmVerify, as the logic
// sees it: references to its controls, by name. It is shown in the middle of its parent. Escape
// presses cmdVerifyClose, the default button.
#pragma once

#include "platform/control.h"
#include "platform/window.h"

namespace verlume {

// The safety digits in groups of five, four groups in a row. They can be selected and copied;
// assistive tools read them group by group, digit by digit.
class DigitsView : public Control {
 public:
  // Anything but digits is left out.
  virtual void SetDigits(std::u16string_view digits) = 0;
  // With a blank between two groups and a line break between two rows.
  virtual std::u16string Digits() const = 0;
};

// A square code for cameras (QR code).
class CodePicture : public Control {
 public:
  // Shows nothing for "", and for a text that no code can hold (above some 2,000 characters).
  virtual void SetCode(std::u16string_view text) = 0;
  virtual std::u16string Code() const = 0;
};

struct VerifyWindow {
  Window& window;
  Label& lblVerifyWho;  // wraps
  DigitsView& lblVerifyDigits;
  CodePicture& picVerifyCode;
  Label& lblVerifyMeaning;  // wraps
  Button& cmdVerifyCopy;
  Button& cmdVerifyMatch;
  Button& cmdVerifyClose;
};

}  // namespace verlume
