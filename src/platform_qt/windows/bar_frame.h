// A bar above the command pane: a text, and buttons that answer it.
#pragma once

#include <initializer_list>

#include "platform_qt/windows/floating_frame.h"

namespace verlume::qt {

// A text that is too long for one line is shown in two, and what does not fit there in a tool tip.
// Escape in it presses the last button, which closes it. For assistive tools it is an alert: they
// read its name out when it appears, although it takes no focus.
class BarFrame : public FloatingFrame {
 public:
  BarFrame(QWidget* area, const char* name, const char* text,
           std::initializer_list<const char*> buttons);

 protected:
  QRect PlaceAt(const QRect& pane) const override;

 private:
  ElidedLabel* text_;
};

}  // namespace verlume::qt
