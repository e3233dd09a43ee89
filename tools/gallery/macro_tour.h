// The way through the macro editor that shows each of its states and boxes.
#pragma once

#include <QString>
#include <functional>
#include <vector>

#include "answers.h"

namespace verlume::gallery {

struct MacroStep {
  QString name;
  std::function<void(QWidget* editor)> perform;
  Answers answers = {};         // to the boxes that come of it
  bool showsTheEditor = false;  // the editor is worth a picture afterwards
};

// There must be two macros, "hello" and "goodbye".
std::vector<MacroStep> MacroTour();

}  // namespace verlume::gallery
