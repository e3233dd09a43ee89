#include "platform_qt/text/text_loading.h"

#include <QElapsedTimer>
#include <QScrollBar>
#include <utility>

#include "platform_qt/text/turn.h"

namespace verlume::qt {
namespace {

constexpr qsizetype kUnitsPerStep = 16 * 1024;
constexpr qsizetype kUnitsAtOnce = 64 * 1024;
constexpr int kAll = 100;

}  // namespace

TextLoading::TextLoading(RichTextWidget& widget, const QTextCursor& cursor, FormattedText text,
                         std::function<void(int percent)> onProgress)
    : widget_(widget), insertion_(cursor, std::move(text)), onProgress_(std::move(onProgress)) {
  PutIn(kUnitsAtOnce);
  if (insertion_.IsDone()) {
    told_ = kAll;
    return;
  }
  QObject::connect(&nextTurn_, &QTimer::timeout, &nextTurn_, [this] { RunTurn(); });
  nextTurn_.start(kPauseBetweenTurns);
}

void TextLoading::Finish() {
  if (!insertion_.IsDone()) PutIn(insertion_.UnitsToCome());
  Abandon();
}

void TextLoading::Abandon() {
  nextTurn_.stop();
  Tell(kAll);
}

void TextLoading::PutIn(qsizetype units) {
  // What is written meanwhile is brought into view, and moves down with every piece.
  const bool showsEnd = widget_.verticalScrollBar()->value() > 0 && widget_.ShowsEnd();
  const RichTextWidget::ProgramChange change(widget_);
  insertion_.PutIn(units);
  widget_.document()->clearUndoRedoStacks();
  if (showsEnd) widget_.ShowEnd();
}

void TextLoading::RunTurn() {
  QElapsedTimer turn;
  turn.start();
  while (!insertion_.IsDone() && !turn.hasExpired(kTurn.count())) PutIn(kUnitsPerStep);
  if (insertion_.IsDone()) nextTurn_.stop();
  Tell(insertion_.Percent());
}

void TextLoading::Tell(int percent) {
  if (percent <= told_) return;
  told_ = percent;
  onProgress_(percent);
}

}  // namespace verlume::qt
