#include "platform_qt/text/text_reading.h"

#include <QElapsedTimer>
#include <utility>

#include "platform_qt/fonts/turn.h"

namespace verlume::qt {

TextReading::TextReading(RichTextWidget& widget, TextLimit& limit, RichTextBox::TextReader read)
    : widget_(widget), read_(std::move(read)) {
  hold_.emplace(limit);
  changes_ = QObject::connect(widget.document(), &QTextDocument::contentsChange, &nextTurn_,
                              [this](int position, int, int) { NoteChange(position); });
  QObject::connect(&nextTurn_, &QTimer::timeout, &nextTurn_, [this] { RunTurn(); });
  nextTurn_.start(kPauseBetweenTurns);
  RunTurn();
}

TextReading::~TextReading() {
  QObject::disconnect(changes_);
}

void TextReading::RunTurn() {
  QElapsedTimer turn;
  turn.start();
  while (!isDone_ && !turn.hasExpired(kTurn.count())) ReadPiece();
  if (!isDone_) return;
  nextTurn_.stop();
  hold_.reset();
}

void TextReading::ReadPiece() {
  QTextCursor piece(widget_.document());
  piece.setPosition(place_);
  piece.setPosition(EndOfPart(*widget_.document(), place_), QTextCursor::KeepAnchor);
  const std::size_t position = widget_.seams().TextPosition(place_);
  place_ = piece.selectionEnd();
  isDone_ = piece.atEnd();
  read_(position, SelectedText(piece, widget_.lines()), isDone_);
}

void TextReading::NoteChange(int position) {
  if (position < place_) place_ = 0;
}

}  // namespace verlume::qt
