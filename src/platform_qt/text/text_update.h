// Makes one change of several changes to a rich-text widget.
#pragma once

#include <QTextCursor>

#include "platform_qt/text/rich_text_widget.h"

namespace verlume::qt {

// While it exists the document does not lay out what is inserted. Setting the widget's own cursor
// would cause that at once, so `cursor` takes its place until the end.
class TextUpdate {
 public:
  TextUpdate(RichTextWidget& widget, Reader reader);
  ~TextUpdate();
  TextUpdate(const TextUpdate&) = delete;
  TextUpdate& operator=(const TextUpdate&) = delete;

  QTextCursor cursor;
  bool Stays() const { return reader_ == Reader::Stays; }
  int depth = 1;  // how many updates are nested
  bool selChanged = false;
  bool changed = false;

 private:
  void RestoreView();

  const RichTextWidget::ProgramChange change_;
  RichTextWidget& widget_;
  const Reader reader_;
  const bool keepsSelection_;
  const int anchor_;
  const int position_;
  const int topLine_;
  QTextCursor edit_;
};

}  // namespace verlume::qt
