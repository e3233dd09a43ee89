// What the user has begun to type in the command pane, kept while something else uses the pane.
#pragma once

#include <cstddef>
#include <string>

#include "platform/platform.h"
#include "shell/text_style.h"

namespace verlume {

class Draft {
 public:
  // Copies what the command pane holds now: text, formats and selection.
  explicit Draft(const Platform& platform);

  // Puts it back if the pane has been emptied since. What is typed next at the insertion point has
  // the style; a selection keeps its own. The pane raises its events once, after everything is in
  // place. False if nothing was put back.
  bool Restore(const TextStyle& style) const;

 private:
  const Platform& platform_;
  std::u16string rtf_;  // empty if the pane was
  std::size_t selStart_;
  std::size_t selLength_;
};

}  // namespace verlume
