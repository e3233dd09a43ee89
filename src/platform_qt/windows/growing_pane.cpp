#include "platform_qt/windows/growing_pane.h"

#include <QAbstractTextDocumentLayout>
#include <QEvent>
#include <QTextBlock>
#include <QTextLayout>
#include <algorithm>
#include <cmath>
#include <utility>

namespace verlume::qt {
namespace {

constexpr int kMostLines = 4;
constexpr int kBelowText = 2;

struct FirstLines {
  qreal height = 0;
  bool isAll = true;
};

FirstLines FirstLinesOf(const QTextDocument& document) {
  FirstLines first;
  int lines = 0;
  for (QTextBlock block = document.firstBlock(); block.isValid(); block = block.next()) {
    // Lays the block out, if it is not yet.
    document.documentLayout()->blockBoundingRect(block);
    const QTextLayout& layout = *block.layout();
    for (int i = 0; i < layout.lineCount(); ++i, ++lines) {
      if (lines == kMostLines) return {first.height, false};
      first.height += layout.lineAt(i).height();
    }
  }
  return first;
}

}  // namespace

GrowingPane::GrowingPane(QPlainTextEdit& pane) : QObject(&pane), pane_(pane) {
  pane.installEventFilter(this);
  const auto grow = [this] { GrowSoon(); };
  connect(pane.document(), &QTextDocument::contentsChanged, this, grow);
  connect(pane.document()->documentLayout(), &QAbstractTextDocumentLayout::documentSizeChanged,
          this, grow);
}

bool GrowingPane::eventFilter(QObject*, QEvent* event) {
  switch (event->type()) {
    case QEvent::Move:
    case QEvent::Resize:
    case QEvent::Show:
      if (isGrowing_ || pane_.geometry() == grown_) return false;
      cell_ = pane_.geometry();
      GrowSoon();
      return false;
    default:
      return false;
  }
}

void GrowingPane::GrowSoon() {
  if (std::exchange(willGrow_, true)) return;
  QMetaObject::invokeMethod(
      this, [this] { Grow(); }, Qt::QueuedConnection);
}

void GrowingPane::Grow() {
  willGrow_ = false;
  if (!cell_.isValid()) return;
  const FirstLines text = FirstLinesOf(*pane_.document());
  const int around = pane_.height() - pane_.viewport()->height();
  // The pane scrolls unless a pixel remains below the text.
  const int needed =
      int(std::ceil(text.height + 2 * pane_.document()->documentMargin())) + kBelowText + around;
  // Where letters are very large, what is above the pane must stay in view.
  const int most = std::max(cell_.height(), pane_.parentWidget()->height() / 2);
  const int height = std::clamp(needed, cell_.height(), most);
  // A scroll bar takes width, so that the text needs more lines: it is there only if it must be.
  const bool fits = text.isAll && needed <= height;
  const bool wasGrowing = std::exchange(isGrowing_, true);
  pane_.setVerticalScrollBarPolicy(fits ? Qt::ScrollBarAlwaysOff : Qt::ScrollBarAsNeeded);
  grown_ = cell_;
  grown_.setTop(cell_.bottom() + 1 - height);
  if (pane_.geometry() != grown_) {
    pane_.setGeometry(grown_);
    pane_.raise();
    pane_.ensureCursorVisible();
  }
  isGrowing_ = wasGrowing;
}

}  // namespace verlume::qt
