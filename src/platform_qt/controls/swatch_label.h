// The label that shows the colour of the text: it is filled with the colour, and has a letter on
// it.
#pragma once

#include "platform_qt/controls/controls_label.h"

namespace verlume::qt {

class SwatchLabel : public ElidedLabel {
 public:
  using ElidedLabel::ElidedLabel;

 protected:
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace verlume::qt
