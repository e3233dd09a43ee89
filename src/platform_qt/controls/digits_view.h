// Digits in groups, to be compared with those on another screen.
#pragma once

#include <QLabel>

#include "platform/verify_window.h"
#include "platform_qt/controls/control.h"

namespace verlume::qt {

// Assistive tools read its name and then every single digit, with a pause behind each group.
class DigitsWidget : public QLabel {
 public:
  explicit DigitsWidget(QWidget* parent);

  QString Spelled() const;
};

class QtDigitsView : public QtControl<DigitsView, DigitsWidget> {
 public:
  using QtControl::QtControl;
  void SetDigits(std::u16string_view digits) override;
  std::u16string Digits() const override { return FromQt(widget_->text()); }
};

}  // namespace verlume::qt
