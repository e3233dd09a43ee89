#include "platform_qt/text/text_writing.h"

#include <QElapsedTimer>
#include <algorithm>
#include <utility>

#include "platform_qt/text/turns.h"

namespace verlume::qt {
namespace {

// Of RTF, and of the text that it holds: as much as takes about a millisecond.
constexpr std::size_t kShortestStep = 512;
constexpr std::size_t kLongestStep = 16 * 1024;
constexpr qint64 kStepMicroseconds = 1000;

}  // namespace

TextWriting::TextWriting(RichTextWidget& widget, const QTextCursor& cursor,
                         std::function<void()> onDone)
    : widget_(widget),
      insertion_(cursor, FormattedText()),
      before_(FormatOfFirst(cursor)),
      onDone_(std::move(onDone)) {
  QObject::connect(&next_, &QTimer::timeout, &next_, [this] { Continue(); });
}

void TextWriting::Add(std::u16string_view rtf) {
  if (reading_) {
    waiting_.emplace_back(rtf);
  } else {
    reading_.emplace(std::u16string(rtf));
  }
  next_.start(kPauseMilliseconds);
}

void TextWriting::Finish() {
  while (!IsDone()) PutIn();
}

void TextWriting::Continue() {
  QElapsedTimer turn;
  turn.start();
  while (!IsDone() && turn.elapsed() < kTurnMilliseconds) PutIn();
  if (!IsDone()) return;
  next_.stop();
  onDone_();
}

void TextWriting::PutIn() {
  const RichTextWidget::ProgramChange change(widget_);
  if (!insertion_.IsDone()) return PutInStep();
  if (!reading_->IsDone()) {
    insertion_.GoOnWith(FormattedText(reading_->Next(step_), widget_.lines()));
    return;
  }
  reading_.reset();
  if (!waiting_.empty()) {
    reading_.emplace(std::move(waiting_.front()));
    waiting_.pop_front();
  } else {
    QTextCursor cursor = insertion_.cursor();
    KeepFormatIfEmpty(cursor, before_);
  }
}

// What is laid out slowly comes by smaller steps.
void TextWriting::PutInStep() {
  QElapsedTimer timer;
  timer.start();
  const bool showsEnd = widget_.ShowsEnd();
  insertion_.PutIn(static_cast<qsizetype>(step_));
  widget_.document()->clearUndoRedoStacks();
  if (showsEnd) widget_.ShowEnd();
  const bool isSlow = timer.nsecsElapsed() / 1000 > kStepMicroseconds;
  step_ = std::clamp(isSlow ? step_ / 2 : step_ * 2, kShortestStep, kLongestStep);
}

}  // namespace verlume::qt
