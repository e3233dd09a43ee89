// A square code for cameras (QR code).
#pragma once

#include <QWidget>
#include <vector>

#include "platform/verify_window.h"
#include "platform_qt/controls/control.h"

namespace verlume::qt {

// A QR code: a square of dark and light modules.
struct SquareCode {
  int side = 0;              // 0: none
  std::vector<bool> isDark;  // row by row
};

// None for "", and for a text that is too long for a code.
SquareCode EncodeSquareCode(const QByteArray& text);

// Black on white in every theme, with the quiet border that cameras need; every module covers the
// same whole number of the screen's pixels.
class CodeWidget : public QWidget {
 public:
  explicit CodeWidget(QWidget* parent);

  void SetCode(const SquareCode& code);
  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  SquareCode code_;
};

class QtCodePicture : public QtControl<CodePicture, CodeWidget> {
 public:
  using QtControl::QtControl;
  void SetCode(std::u16string_view text) override;
  std::u16string Code() const override { return code_; }

 private:
  std::u16string code_;
};

}  // namespace verlume::qt
