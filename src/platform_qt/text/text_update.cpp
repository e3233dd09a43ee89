#include "platform_qt/text/text_update.h"

#include <QScrollBar>

namespace verlume::qt {

TextUpdate::TextUpdate(RichTextWidget& widget, Reader reader)
    : cursor(widget.textCursor()),
      change_(widget),
      widget_(widget),
      reader_(reader),
      keepsSelection_(reader == Reader::Stays && (cursor.hasSelection() || widget.IsPressed())),
      anchor_(cursor.anchor()),
      position_(cursor.position()),
      topLine_(widget.verticalScrollBar()->value()),
      edit_(widget.document()) {
  edit_.beginEditBlock();
}

TextUpdate::~TextUpdate() {
  edit_.endEditBlock();
  if (reader_ == Reader::Stays) {
    RestoreView();
  } else {
    widget_.MoveCursorTo(cursor);
    if (selChanged) widget_.ensureCursorVisible();
  }
}

// The widget's own cursor moves with what is inserted where it is, and setting it scrolls.
void TextUpdate::RestoreView() {
  QTextCursor own = widget_.textCursor();
  if (!keepsSelection_ || (own.anchor() == anchor_ && own.position() == position_)) return;
  own.setPosition(anchor_);
  own.setPosition(position_, QTextCursor::KeepAnchor);
  widget_.setTextCursor(own);
  widget_.verticalScrollBar()->setValue(topLine_);
}

}  // namespace verlume::qt
