// Reads the text of a rich-text widget piece by piece, between the window's events.
#pragma once

#include <QTimer>
#include <optional>

#include "platform/rich_text_box.h"
#include "platform_qt/text/rich_text_widget.h"
#include "platform_qt/text/text_limit.h"

namespace verlume::qt {

class TextReading {
 public:
  // Reads the first pieces at once, and begins anew when the text before its place changes; no
  // lines leave until it is done. When this object is destroyed, what is left is not read.
  TextReading(RichTextWidget& widget, TextLimit& limit, RichTextBox::TextReader read);
  ~TextReading();
  TextReading(const TextReading&) = delete;
  TextReading& operator=(const TextReading&) = delete;

  bool IsDone() const { return isDone_; }

 private:
  void RunTurn();
  void ReadPiece();
  void NoteChange(int position);

  RichTextWidget& widget_;
  const RichTextBox::TextReader read_;
  int place_ = 0;  // position in the document; what is before it has been read
  bool isDone_ = false;
  QMetaObject::Connection changes_;
  std::optional<TextLimit::Hold> hold_;
  QTimer nextTurn_;
};

}  // namespace verlume::qt
