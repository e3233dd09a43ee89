// Inserts documents that are too long to be inserted at once into a rich-text widget, between the
// window's events.
#pragma once

#include <QTimer>
#include <deque>
#include <functional>

#include "platform_qt/text/rich_text_widget.h"
#include "platform_qt/text/text_insertion.h"
#include "richtext/document.h"

namespace verlume::qt {

class TextWriting {
 public:
  // Writes at the cursor, whose selection is replaced, in these formats. `onDone` is called from
  // the event loop when everything has been inserted. When this object is destroyed, what is left
  // is not inserted.
  TextWriting(RichTextWidget& widget, const QTextCursor& cursor, TextFormats& formats,
              std::function<void()> onDone);

  // Adds a document behind what is left.
  void Add(richtext::Document document);
  // Inserts the beginning at once, so that an empty box is not taken for one without text.
  void Begin();
  // Whether text inserted at the position would stand directly behind all of this.
  bool EndsAt(int position) const { return insertion_.cursor().position() == position; }
  bool IsDone() const { return waiting_.empty() && insertion_.IsDone(); }

 private:
  void RunTurn();
  void InsertStep();
  void TakeNextPart();

  RichTextWidget& widget_;
  TextFormats& formats_;
  TextInsertion insertion_;            // of the current part
  const QTextCharFormat before_;       // the format before; an empty text keeps it
  std::deque<DocumentParts> waiting_;  // the first one may be partly inserted
  std::size_t step_ = 1024;            // units
  std::function<void()> onDone_;
  QTimer nextTurn_;
};

}  // namespace verlume::qt
