// How much text a rich-text widget keeps: beyond its limit the oldest lines leave it.
#pragma once

#include <QTextBlock>
#include <QTextCursor>
#include <QTimer>
#include <cstddef>
#include <functional>

#include "platform_qt/text/rich_text_widget.h"

namespace verlume::qt {

class TextLimit {
 public:
  struct Events {
    std::function<void()> onNearlyFull;
    std::function<void(std::size_t from, std::size_t length)> onTrimmed;
  };

  // The events are raised from the event loop: before the first lines leave, and when lines have
  // left, with the place in the text where they were.
  TextLimit(RichTextWidget& widget, Events events);

  // How many paragraphs are kept; 0: all. A long paragraph counts as several.
  void SetMost(std::size_t paragraphs);
  // What stands before the cursor is not counted, and stays. Call it when all text is replaced.
  void StartBehind(const QTextCursor& cursor);
  // Text has been written at the end.
  void Check();

  // Keeps every line in its place while it exists.
  class Hold {
   public:
    explicit Hold(TextLimit& limit) : limit_(limit) { ++limit_.holds_; }
    ~Hold() {
      --limit_.holds_;
      limit_.Check();
    }
    Hold(const Hold&) = delete;
    Hold& operator=(const Hold&) = delete;

   private:
    TextLimit& limit_;
  };

 private:
  QTextBlock First() const;
  std::size_t Amount() const;
  bool IsAtLeast(std::size_t paragraphs) const { return most_ > 0 && Amount() >= paragraphs; }
  void RunTurn();
  bool RemoveLines();

  RichTextWidget& widget_;
  const Events events_;
  QTextCursor start_;  // behind what stays
  std::size_t most_ = 0;
  int holds_ = 0;
  bool isNearlyFull_ = false;  // and this has been told
  bool isTrimming_ = false;
  QTimer nextTurn_;
};

}  // namespace verlume::qt
