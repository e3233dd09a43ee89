// The steps through the macro editor that show each of its states and boxes.
#pragma once

#include <QString>
#include <functional>
#include <vector>

#include "answers.h"

namespace verlume::gallery {

struct MacroStep {
  QString name;
  std::function<void(QWidget* editor)> perform;
  Answers answers = {};         // to the boxes that the step opens
  bool showsTheEditor = false;  // take a picture of the editor afterwards
};

// There must be two macros, "hello" and "goodbye".
std::vector<MacroStep> MacroTour();

}  // namespace verlume::gallery
