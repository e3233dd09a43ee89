#include "platform_qt/text/text_limit.h"

#include <QElapsedTimer>
#include <QScrollBar>
#include <algorithm>
#include <utility>

#include "platform_qt/fonts/turn.h"

namespace verlume::qt {
namespace {

// A paragraph of so many characters counts as two, and so on.
constexpr std::size_t kCharactersOfParagraph = 512;
// The user is told when the last tenth begins. When it is full a sixteenth leaves, so that lines do
// not leave with every line that comes.
constexpr std::size_t kLastPart = 10;
constexpr std::size_t kPartThatLeaves = 16;
constexpr int kBlocksAtOnce = 64;

}  // namespace

TextLimit::TextLimit(RichTextWidget& widget, Events events)
    : widget_(widget), events_(std::move(events)), start_(widget.document()) {
  start_.setKeepPositionOnInsert(true);
  QObject::connect(&nextTurn_, &QTimer::timeout, &nextTurn_, [this] { RunTurn(); });
}

void TextLimit::SetMost(std::size_t paragraphs) {
  most_ = paragraphs;
  Check();
}

void TextLimit::StartBehind(const QTextCursor& cursor) {
  start_ = cursor;
  start_.clearSelection();
  start_.setKeepPositionOnInsert(true);
  isNearlyFull_ = isTrimming_ = false;
}

void TextLimit::Check() {
  const bool tells = !isNearlyFull_ && IsAtLeast(most_ - most_ / kLastPart);
  if (tells || IsAtLeast(most_ + 1)) nextTurn_.start(kPauseBetweenTurns);
}

// The first block that may leave.
QTextBlock TextLimit::First() const {
  return start_.atStart() ? start_.block() : start_.block().next();
}

std::size_t TextLimit::Amount() const {
  const QTextDocument& document = *widget_.document();
  const int blocks = document.blockCount() - start_.blockNumber();
  const int characters = document.characterCount() - start_.position();
  return static_cast<std::size_t>(blocks) +
         static_cast<std::size_t>(characters) / kCharactersOfParagraph;
}

void TextLimit::RunTurn() {
  if (!isNearlyFull_ && IsAtLeast(most_ - most_ / kLastPart)) {
    isNearlyFull_ = true;
    events_.onNearlyFull();
  }
  isTrimming_ = holds_ == 0 && IsAtLeast(isTrimming_ ? most_ - most_ / kPartThatLeaves : most_ + 1);
  QElapsedTimer turn;
  turn.start();
  while (isTrimming_ && !turn.hasExpired(kTurn.count())) {
    isTrimming_ = RemoveLines() && IsAtLeast(most_ - most_ / kPartThatLeaves);
  }
  if (!isTrimming_) nextTurn_.stop();
}

// False when there is no whole line to remove: the last one stays.
bool TextLimit::RemoveLines() {
  const QTextBlock first = First();
  QTextBlock kept = first;
  for (int i = 0; kept.isValid() && (i < kBlocksAtOnce || BeginsAtSeam(kept, widget_.lines())); ++i)
    kept = kept.next();
  if (!first.isValid() || !kept.isValid()) return false;
  const std::size_t from = widget_.seams().TextPosition(first.position());
  const std::size_t length = widget_.seams().TextPosition(kept.position()) - from;
  const bool showsEnd = widget_.ShowsEnd();
  const int line = widget_.verticalScrollBar()->value();
  const int firstLine = first.firstLineNumber();
  const int keptLine = kept.firstLineNumber();
  {
    const RichTextWidget::ProgramChange change(widget_);
    QTextCursor lines(first);
    lines.setPosition(kept.position(), QTextCursor::KeepAnchor);
    lines.removeSelectedText();
  }
  if (showsEnd) {
    widget_.ShowEnd();
  } else if (line > firstLine) {
    widget_.verticalScrollBar()->setValue(std::max(line - (keptLine - firstLine), firstLine));
  }
  events_.onTrimmed(from, length);
  return true;
}

}  // namespace verlume::qt
