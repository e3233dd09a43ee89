#include "platform_qt/text/text_writing.h"

#include <QElapsedTimer>
#include <algorithm>
#include <chrono>
#include <utility>

#include "platform_qt/fonts/turn.h"
#include "platform_qt/text/look_count.h"

namespace verlume::qt {
namespace {

// How much text a step inserts, in units. It is doubled or halved between these limits, so that a
// step takes about kStepTime.
constexpr std::size_t kShortestStep = 512;
constexpr std::size_t kLongestStep = 16 * 1024;
constexpr std::chrono::milliseconds kStepTime{1};

}  // namespace

TextWriting::TextWriting(RichTextWidget& widget, const QTextCursor& cursor, TextFormats& formats,
                         std::function<void()> onDone)
    : widget_(widget),
      formats_(formats),
      insertion_(cursor, FormattedText()),
      before_(FormatOfFirst(cursor)),
      onDone_(std::move(onDone)) {
  QObject::connect(&nextTurn_, &QTimer::timeout, &nextTurn_, [this] { RunTurn(); });
}

void TextWriting::Add(richtext::Document document) {
  waiting_.emplace_back(std::move(document), widget_.lines(), &formats_);
  nextTurn_.start(kPauseBetweenTurns);
}

void TextWriting::Begin() {
  InsertStep();  // takes the first part
  if (!insertion_.IsDone()) InsertStep();
}

void TextWriting::RunTurn() {
  QElapsedTimer turn;
  turn.start();
  while (!IsDone() && !turn.hasExpired(kTurn.count())) InsertStep();
  if (!IsDone()) return;
  nextTurn_.stop();
  onDone_();
}

void TextWriting::InsertStep() {
  const RichTextWidget::ProgramChange change(widget_);
  if (insertion_.IsDone()) return TakeNextPart();
  QElapsedTimer timer;
  timer.start();
  const bool showsEnd = widget_.ShowsEnd();
  insertion_.InsertNext(insertion_.UnitsLeft());
  widget_.document()->clearUndoRedoStacks();
  if (showsEnd) widget_.ShowEnd();
  // Text that is slow to lay out is inserted in smaller steps.
  const bool isSlow = std::chrono::nanoseconds(timer.nsecsElapsed()) > kStepTime;
  step_ = std::clamp(isSlow ? step_ / 2 : step_ * 2, kShortestStep, kLongestStep);
}

void TextWriting::TakeNextPart() {
  if (!waiting_.front().IsDone()) {
    if (waiting_.front().IsAtStart()) insertion_.EndOpenDirection();
    insertion_.StartNext(waiting_.front().Next(step_, kMostLooksAtOnce));
    return;
  }
  waiting_.pop_front();
  if (!waiting_.empty()) return;
  QTextCursor cursor = insertion_.cursor();
  KeepFormatIfEmpty(cursor, before_);
}

}  // namespace verlume::qt
