#include "platform_qt/text/text_update.h"

namespace verlume::qt {

TextUpdate::TextUpdate(RichTextWidget& widget)
    : cursor(widget.textCursor()), change_(widget), widget_(widget), edit_(widget.document()) {
  edit_.beginEditBlock();
}

TextUpdate::~TextUpdate() {
  edit_.endEditBlock();
  widget_.MoveCursorTo(cursor);
  if (selChanged) widget_.ensureCursorVisible();
}

}  // namespace verlume::qt
