// Text on its way into a QTextDocument, whole or piece by piece.
#pragma once

#include <QString>
#include <QTextCharFormat>
#include <QTextCursor>
#include <string_view>
#include <vector>

#include "platform_qt/text/rich_text.h"
#include "richtext/document.h"

namespace verlume::qt {

// Text as a document of Qt's can hold it. Line breaks are '\n' (or blanks), "\r\n" is one; the
// units that Qt gives a meaning of its own become U+FFFD, so that positions never drift.
QString SafeText(std::u16string_view text, Lines lines);

// Safe text, and the formats of its pieces in their order; their lengths add up to the text's.
struct FormattedText {
  struct Piece {
    qsizetype length;
    QTextCharFormat format;
  };

  FormattedText() = default;
  FormattedText(std::u16string_view plain, const QTextCharFormat& format, Lines lines);
  FormattedText(const richtext::Document& document, Lines lines);

  QString text;
  std::vector<Piece> pieces;
};

// What is written into the document behind the insertion while it rests stays behind what is still
// to come.
class TextInsertion {
 public:
  // Replaces the cursor's selection.
  TextInsertion(const QTextCursor& cursor, FormattedText text);

  // With another text, when this one is in.
  void GoOnWith(FormattedText text);

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
void InsertDocument(QTextCursor& cursor, const richtext::Document& document, Lines lines);

}  // namespace verlume::qt
