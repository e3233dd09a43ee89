// Documents that were written into a rich-text widget and are too long to be put in at once: they
// come in between the events that the window handles.
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
  // At the cursor, whose selection is replaced. `onDone` comes from the event loop, once. What is
  // still to come when the writing is destroyed is never put in.
  TextWriting(RichTextWidget& widget, const QTextCursor& cursor, std::function<void()> onDone);

  // Behind what is still to come.
  void Add(richtext::Document document);
  // Whether what is put in at the position would come directly behind all of this.
  bool EndsAt(int position) const { return insertion_.cursor().position() == position; }
  bool IsDone() const { return waiting_.empty() && insertion_.IsDone(); }
  // Puts in all that is still to come.
  void Finish();

 private:
  void RunTurn();
  void PutInStep();
  void TakeNextPart();

  RichTextWidget& widget_;
  TextInsertion insertion_;            // of the part at hand
  const QTextCharFormat before_;       // what an empty text is written in
  std::deque<DocumentParts> waiting_;  // the first one may be partly in
  std::size_t step_ = 1024;            // units
  std::function<void()> onDone_;
  QTimer nextTurn_;
};

}  // namespace verlume::qt
