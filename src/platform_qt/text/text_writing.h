// Rich texts that were written into a rich-text widget and are too long to be put in at once: they
// come in between the events that the window handles.
#pragma once

#include <QTimer>
#include <deque>
#include <functional>
#include <optional>
#include <string>

#include "platform_qt/text/rich_text_widget.h"
#include "platform_qt/text/text_insertion.h"
#include "richtext/rtf_reading.h"

namespace verlume::qt {

class TextWriting {
 public:
  // At the cursor, whose selection is replaced. `onDone` comes from the event loop, once. What is
  // still to come when the writing dies is never put in.
  TextWriting(RichTextWidget& widget, const QTextCursor& cursor, std::function<void()> onDone);

  // Behind what is still to come.
  void Add(std::u16string_view rtf);
  // Whether what is put in at the position would come behind all of this, and directly.
  bool EndsAt(int position) const { return insertion_.cursor().position() == position; }
  bool IsDone() const { return !reading_ && insertion_.IsDone(); }
  // Puts in all that is still to come.
  void Finish();

 private:
  void Continue();
  void PutIn();
  void PutInStep();

  RichTextWidget& widget_;
  TextInsertion insertion_;
  const QTextCharFormat before_;  // what an empty text is written in
  std::deque<std::u16string> waiting_;
  std::optional<richtext::RtfReading> reading_;
  std::size_t step_ = 1024;
  std::function<void()> onDone_;
  QTimer next_;
};

}  // namespace verlume::qt
