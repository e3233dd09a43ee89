// Text on its way into a QTextDocument, whole or piece by piece.
#pragma once

#include <QTextCursor>
#include <string_view>

#include "platform_qt/text/formatted_text.h"
#include "platform_qt/text/rich_text.h"
#include "richtext/document.h"

namespace verlume::qt {

// What is written into the document behind the insertion while it rests stays behind what is still
// to come.
class TextInsertion {
 public:
  // Replaces the cursor's selection.
  TextInsertion(const QTextCursor& cursor, FormattedText text);

  // Goes on with another text, once this one is in.
  void StartNext(FormattedText text);

  // Puts in the next units, about as many as these.
  void PutIn(qsizetype units);
  qsizetype UnitsToCome() const { return size_ - at_; }
  bool IsDone() const { return UnitsToCome() == 0; }
  int Percent() const;
  // Behind what has been put in.
  const QTextCursor& cursor() const { return cursor_; }

 private:
  void PutInPiece(qsizetype end);
  qsizetype LengthBeforeSeam(qsizetype length) const;
  qsizetype LengthOfCut(qsizetype begin, qsizetype room) const;

  QTextCursor cursor_;
  FormattedText text_;  // empty once it is in
  qsizetype size_;
  qsizetype at_ = 0;       // in the text
  std::size_t piece_ = 0;  // the one at that place
  qsizetype inPiece_ = 0;  // and how much of it is in
  int room_ = 0;           // in the block at the cursor
};

// These replace the cursor's selection and leave the cursor behind what came in.
void Insert(QTextCursor& cursor, FormattedText text);
void InsertText(QTextCursor& cursor, std::u16string_view text, Lines lines);
void InsertDocument(QTextCursor& cursor, richtext::Document document, Lines lines);

}  // namespace verlume::qt
