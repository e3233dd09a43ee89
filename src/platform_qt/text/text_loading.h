// Inserts a long text into a rich-text widget piece by piece, between the window's events.
#pragma once

#include <QTimer>
#include <functional>

#include "platform_qt/text/rich_text_widget.h"
#include "platform_qt/text/text_insertion.h"

namespace verlume::qt {

class TextLoading {
 public:
  // Inserts the first piece at once, at the cursor. `onProgress` is called when the percentage has
  // grown, and last with 100; never when the first piece is the whole text. When this object is
  // destroyed, what is left is not inserted.
  TextLoading(RichTextWidget& widget, const QTextCursor& cursor, FormattedText text,
              std::function<void(int percent)> onProgress);

  bool IsDone() const { return insertion_.IsDone(); }
  // Behind what has been inserted.
  const QTextCursor& cursor() const { return insertion_.cursor(); }
  // Stops, and reports 100 although text is left.
  void Abandon();

 private:
  void InsertNext(qsizetype units);
  void RunTurn();
  void ReportProgress(int percent);

  RichTextWidget& widget_;
  TextInsertion insertion_;
  std::function<void(int percent)> onProgress_;
  int reported_ = 0;
  QTimer nextTurn_;
};

}  // namespace verlume::qt
