#include "platform_qt/text/text_loading.h"

#include <QElapsedTimer>
#include <QScrollBar>
#include <utility>

#include "platform_qt/fonts/turn.h"

namespace verlume::qt {
namespace {

constexpr qsizetype kUnitsPerStep = 16 * 1024;
constexpr qsizetype kUnitsAtOnce = 64 * 1024;
constexpr int kAll = 100;

}  // namespace

TextLoading::TextLoading(RichTextWidget& widget, const QTextCursor& cursor, FormattedText text,
                         std::function<void(int percent)> onProgress)
    : widget_(widget), insertion_(cursor, std::move(text)), onProgress_(std::move(onProgress)) {
  InsertNext(kUnitsAtOnce);
  if (insertion_.IsDone()) {
    reported_ = kAll;
    return;
  }
  QObject::connect(&nextTurn_, &QTimer::timeout, &nextTurn_, [this] { RunTurn(); });
  nextTurn_.start(kPauseBetweenTurns);
}

void TextLoading::Abandon() {
  nextTurn_.stop();
  ReportProgress(kAll);
}

void TextLoading::InsertNext(qsizetype units) {
  // Lines that are written meanwhile stay in view, though each piece moves them down.
  const bool showsEnd = widget_.verticalScrollBar()->value() > 0 && widget_.ShowsEnd();
  const RichTextWidget::ProgramChange change(widget_);
  insertion_.InsertNext(units);
  widget_.document()->clearUndoRedoStacks();
  if (showsEnd) widget_.ShowEnd();
}

void TextLoading::RunTurn() {
  QElapsedTimer turn;
  turn.start();
  while (!insertion_.IsDone() && !turn.hasExpired(kTurn.count())) InsertNext(kUnitsPerStep);
  if (insertion_.IsDone()) nextTurn_.stop();
  ReportProgress(insertion_.Percent());
}

void TextLoading::ReportProgress(int percent) {
  if (percent <= reported_) return;
  reported_ = percent;
  onProgress_(percent);
}

}  // namespace verlume::qt
