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

// The first macro of the list must be there, and one that is called "goodbye".
std::vector<MacroStep> MacroTour();

}  // namespace verlume::gallery
