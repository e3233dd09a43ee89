#include "platform_qt/text/text_insertion.h"

#include <QTextBlock>
#include <algorithm>
#include <utility>

#include "platform_qt/convert/text.h"
#include "platform_qt/text/open_direction.h"
#include "platform_qt/text/text_format.h"

namespace verlume::qt {
namespace {

// Every key that changes a block has it laid out as a whole. What is slow to lay out weighs more:
// each piece with a format of its own, and scripts whose letters come from other fonts or are
// joined to each other.
constexpr int kMostWeight = 4096;
constexpr int kWeightOfPiece = 32;
constexpr qsizetype kLongestBlock = kMostWeight;

int Weight(QChar unit) {
  constexpr int kSlow = 4;
  const char16_t c = unit.unicode();
  const bool isMark = c >= 0x0300 && c < 0x0370;
  const bool isPunctuation = c >= 0x2010 && c < 0x2028;
  return (c < 0x0590 && !isMark) || isPunctuation ? 1 : kSlow;
}

// The room that is left in the block after a piece.
int RoomBehind(QStringView piece, int room) {
  room -= kWeightOfPiece;
  for (const QChar unit : piece) room = unit == u'\n' ? kMostWeight : room - Weight(unit);
  return room;
}

int RoomAt(const QTextCursor& cursor) {
  const QTextBlock block = cursor.block();
  int room = kMostWeight;
  for (auto it = block.begin(); !it.atEnd(); ++it) room = RoomBehind(it.fragment().text(), room);
  return room;
}

// How far back from the end of a block to look for a blank at which to end it.
constexpr qsizetype kLongestWord = 256;

}  // namespace

TextInsertion::TextInsertion(const QTextCursor& cursor, FormattedText text)
    : cursor_(cursor), text_(std::move(text)), size_(text_.text.size()) {
  cursor_.removeSelectedText();
  cursor_.setKeepPositionOnInsert(true);
}

void TextInsertion::StartNext(FormattedText text) {
  text_ = std::move(text);
  size_ = text_.text.size();
  at_ = inPiece_ = 0;
  piece_ = 0;
}

void TextInsertion::EndOpenDirection() {
  cursor_.setKeepPositionOnInsert(false);
  // What others wrote there has moved the anchor.
  cursor_.clearSelection();
  EndDirection(cursor_);
  cursor_.setKeepPositionOnInsert(true);
}

int TextInsertion::Percent() const {
  return IsDone() ? 100 : static_cast<int>(at_ * 100 / size_);
}

void TextInsertion::InsertNext(qsizetype units) {
  qsizetype end = std::min(at_ + units, size_);
  if (end < size_ && text_.text[end].isLowSurrogate()) ++end;
  cursor_.setKeepPositionOnInsert(false);
  // What others wrote there has moved the anchor.
  cursor_.clearSelection();
  cursor_.beginEditBlock();
  room_ = RoomAt(cursor_);
  while (at_ < end) InsertPiece(end);
  cursor_.endEditBlock();
  cursor_.setKeepPositionOnInsert(true);
  // The document has the text now: a long one is not kept twice.
  if (IsDone()) text_ = FormattedText();
}

void TextInsertion::InsertPiece(qsizetype end) {
  const FormattedText::Piece& piece = text_.pieces[piece_];
  const qsizetype rest = piece.length - inPiece_;
  // Looks beyond the end, so that the seam stands where it would if all were inserted at once.
  const qsizetype seam = LengthBeforeSeam(std::min(rest, end - at_ + kLongestBlock));
  const qsizetype length = std::min({rest, end - at_, seam});
  const QString text = text_.text.mid(at_, length);
  cursor_.insertText(text, piece.format);
  room_ = RoomBehind(text, room_);
  if (length == seam) {
    cursor_.insertBlock(cursor_.blockFormat(), piece.format);
    MarkSeam(cursor_.block());
    room_ = kMostWeight;
  }
  at_ += length;
  inPiece_ += length;
  if (inPiece_ < piece.length) return;
  ++piece_;
  inPiece_ = 0;
}

// How much of the next `length` units fits before a seam; `length` + 1 if no seam is needed.
qsizetype TextInsertion::LengthBeforeSeam(qsizetype length) const {
  const QStringView text = QStringView(text_.text).sliced(at_, length);
  int room = room_ - kWeightOfPiece;
  qsizetype begin = 0;
  for (qsizetype i = 0; i < length; ++i) {
    if (text[i] == u'\n') {
      begin = i + 1;
      room = kMostWeight;
    } else if (room < Weight(text[i])) {
      return begin + LengthOfCut(begin, i - begin);
    } else {
      room -= Weight(text[i]);
    }
  }
  return length + 1;
}

// How much of a text that is longer than the room is put before the seam: the words that fit.
qsizetype TextInsertion::LengthOfCut(qsizetype begin, qsizetype room) const {
  if (room <= 0) return 0;
  const qsizetype searched = std::min(room, kLongestWord);
  const QStringView end = QStringView(text_.text).sliced(at_ + begin + room - searched, searched);
  if (const qsizetype blank = end.lastIndexOf(u' '); blank >= 0) return room - searched + blank + 1;
  if (room < kLongestWord) return 0;
  return end.back().isHighSurrogate() ? room - 1 : room;
}

void Insert(QTextCursor& cursor, FormattedText text) {
  const qsizetype length = text.text.size();
  cursor.beginEditBlock();
  TextInsertion insertion(cursor, std::move(text));
  insertion.InsertNext(length);
  cursor.endEditBlock();
  cursor.setPosition(insertion.cursor().position());
}

void InsertText(QTextCursor& cursor, std::u16string_view text, Lines lines) {
  const QTextCharFormat format = FormatOfFirst(cursor);
  Insert(cursor, FormattedText(text, format, lines));
  KeepFormatIfEmpty(cursor, format);
}

void InsertDocument(QTextCursor& cursor, richtext::Document document, Lines lines,
                    TextFormats* formats) {
  const QTextCharFormat before = FormatOfFirst(cursor);
  Insert(cursor, FormattedText(std::move(document), lines, formats));
  KeepFormatIfEmpty(cursor, before);
}

}  // namespace verlume::qt
