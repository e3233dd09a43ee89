// The margin of a rich-text widget that shows who each line is from. It lies outside the viewport,
// where no text is ever drawn.
#pragma once

#include <QString>
#include <QTextBlock>
#include <QWidget>
#include <map>

#include "platform/rich_text_box.h"
#include "platform_qt/text/rich_text_widget.h"

namespace verlume::qt {

class AuthorMargin : public QWidget {
 public:
  // Belongs to the pane, and takes its place at once.
  explicit AuthorMargin(RichTextWidget& pane);

  // What is said of an author's lines: in the margin's tool tip, and as the description of the pane
  // for assistive tools while the caret is in such a line.
  void SetWords(Author author, const QString& words);
  // The pane's description while the caret is in a line from nobody.
  void SetDescription(const QString& description);
  // What is said besides of the line that is marked as unread.
  void SetUnreadWords(RichTextBox::SignWords words);
  // The words of the line in which the caret is have changed.
  void DescribeCaret();

 protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void DrawMarks(QPainter& painter, const QTextBlock& block, qreal top, const QRectF& clip) const;
  QString WordsOf(Author author) const;
  QString WordsOf(const QTextBlock& block) const;
  QString WordsAt(int y) const;
  void PlaceBeside(const QRect& text);
  void Follow(const QRect& area, int dy);

  RichTextWidget& pane_;
  std::map<Author, QString> words_;
  QString description_;
  RichTextBox::SignWords unreadWords_;
};

}  // namespace verlume::qt
