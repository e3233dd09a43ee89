#include "platform_fake/fake_verify_window.h"

namespace verlume::fake {

FakeVerifyWindow::FakeVerifyWindow()
    : frmVerify{
          .window = window,
          .lblVerifyWho = lblVerifyWho,
          .lblVerifyDigits = lblVerifyDigits,
          .picVerifyCode = picVerifyCode,
          .lblVerifyMeaning = lblVerifyMeaning,
          .cmdVerifyCopy = cmdVerifyCopy,
          .cmdVerifyMatch = cmdVerifyMatch,
          .cmdVerifyClose = cmdVerifyClose,
      } {}

FakeVerifyWindow::~FakeVerifyWindow() = default;

}  // namespace verlume::fake
