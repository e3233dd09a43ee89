// Inserts text into a QTextDocument, at once or piece by piece.
#pragma once

#include <QTextCursor>
#include <string_view>

#include "platform_qt/text/formatted_text.h"
#include "platform_qt/text/rich_text.h"
#include "richtext/document.h"

namespace verlume::qt {

// Text that others write directly behind the insertion, between two pieces, stays behind the pieces
// that follow.
class TextInsertion {
 public:
  // Replaces the cursor's selection.
  TextInsertion(const QTextCursor& cursor, FormattedText text);

  // Continues with another text. The one before must be done.
  void StartNext(FormattedText text);
  // A direction of writing that is open at the cursor does not reach the text that is inserted
  // next.
  void EndOpenDirection();

  // Inserts the next piece: `units` long, or one more so as not to split a surrogate pair.
  void InsertNext(qsizetype units);
  qsizetype UnitsLeft() const { return size_ - at_; }
  bool IsDone() const { return UnitsLeft() == 0; }
  int Percent() const;
  // Behind what has been inserted.
  const QTextCursor& cursor() const { return cursor_; }

 private:
  void InsertPiece(qsizetype end);
  qsizetype LengthBeforeSeam(qsizetype length) const;
  qsizetype LengthOfCut(qsizetype begin, qsizetype room) const;

  QTextCursor cursor_;
  FormattedText text_;  // empty once it is inserted
  qsizetype size_;
  qsizetype at_ = 0;       // position in the text
  std::size_t piece_ = 0;  // index of the piece at that position
  qsizetype inPiece_ = 0;  // how much of that piece has been inserted
  int room_ = 0;           // left in the block at the cursor
};

// These replace the cursor's selection and leave the cursor behind the new text.
void Insert(QTextCursor& cursor, FormattedText text);
void InsertText(QTextCursor& cursor, std::u16string_view text, Lines lines);
void InsertDocument(QTextCursor& cursor, richtext::Document document, Lines lines,
                    TextFormats* formats = nullptr);

}  // namespace verlume::qt
