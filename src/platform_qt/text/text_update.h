// A change of a rich-text widget that is made of several steps.
#pragma once

#include <QTextCursor>

#include "platform_qt/text/rich_text_widget.h"

namespace verlume::qt {

// From its making to its end the document does not lay out what is put in. The widget's own cursor
// must not be set meanwhile, which would have it done at once: `cursor` stands for it.
class TextUpdate {
 public:
  explicit TextUpdate(RichTextWidget& widget);
  ~TextUpdate();
  TextUpdate(const TextUpdate&) = delete;
  TextUpdate& operator=(const TextUpdate&) = delete;

  QTextCursor cursor;
  int depth = 1;  // of updates, one in the other
  bool selChanged = false;
  bool changed = false;

 private:
  const RichTextWidget::ProgramChange change_;
  RichTextWidget& widget_;
  QTextCursor edit_;
};

}  // namespace verlume::qt
