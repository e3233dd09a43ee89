// frmVerify, implemented with Qt. Each widget has the name of its control.
#pragma once

#include "platform/verify_window.h"
#include "platform_qt/controls/code_picture.h"
#include "platform_qt/controls/controls.h"
#include "platform_qt/controls/digits_view.h"
#include "platform_qt/windows/modal_form.h"
#include "platform_qt/windows/window.h"

namespace verlume::qt {

class VerifyForm : public ModalForm {
 public:
  explicit VerifyForm(QWidget* mainWindow);

  QLabel* const lblVerifyWho;
  DigitsWidget* const lblVerifyDigits;
  CodeWidget* const picVerifyCode;
  QLabel* const lblVerifyMeaning;
  QPushButton* const cmdVerifyCopy;
  QPushButton* const cmdVerifyMatch;
  QPushButton* const cmdVerifyClose;

 protected:
  // The focus starts on the digits, which assistive tools then read.
  void showEvent(QShowEvent* event) override;

 private:
  void LayOut();
};

class QtVerifyWindow {
 public:
  explicit QtVerifyWindow(QWidget* mainWindow);

  VerifyWindow& View() { return view_; }
  VerifyForm& form() { return form_; }
  const VerifyForm& form() const { return form_; }

 private:
  VerifyForm form_;

  QtWindow window{&form_};
  QtLabel lblVerifyWho{form_.lblVerifyWho};
  QtDigitsView lblVerifyDigits{form_.lblVerifyDigits};
  QtCodePicture picVerifyCode{form_.picVerifyCode};
  QtLabel lblVerifyMeaning{form_.lblVerifyMeaning};
  QtButton cmdVerifyCopy{form_.cmdVerifyCopy};
  QtButton cmdVerifyMatch{form_.cmdVerifyMatch};
  QtButton cmdVerifyClose{form_.cmdVerifyClose};

  // The logic's view of the window.
  VerifyWindow view_;
};

}  // namespace verlume::qt
