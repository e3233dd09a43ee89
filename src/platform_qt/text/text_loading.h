// A long text on its way into a rich-text widget, between the events that the window handles.
#pragma once

#include <QTimer>
#include <functional>

#include "platform_qt/text/rich_text_widget.h"
#include "platform_qt/text/text_insertion.h"

namespace verlume::qt {

class TextLoading {
 public:
  // Puts in the first piece at once, at the cursor. `onProgress` hears of every further per cent,
  // and of 100 once; of none when the first piece is all. What is still to come when the loading
  // is destroyed is never put in.
  TextLoading(RichTextWidget& widget, const QTextCursor& cursor, FormattedText text,
              std::function<void(int percent)> onProgress);

  // Puts in all that is still to come.
  void Finish();
  // Tells of 100 though not all is in.
  void Abandon();

 private:
  void PutIn(qsizetype units);
  void RunTurn();
  void Tell(int percent);

  RichTextWidget& widget_;
  TextInsertion insertion_;
  std::function<void(int percent)> onProgress_;
  int told_ = 0;
  QTimer nextTurn_;
};

}  // namespace verlume::qt
