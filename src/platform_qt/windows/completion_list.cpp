#include "platform_qt/windows/completion_list.h"

#include <QEvent>
#include <QScrollBar>
#include <QVBoxLayout>
#include <algorithm>

namespace verlume::qt {
namespace {

constexpr int kMostRows = 8;  // visible at a time

}  // namespace

CompletionFrame::CompletionFrame(QWidget* area)
    : QFrame(area), list_(new ListWidget(this)), rows_(new CompletionRows(list_)) {
  setObjectName(QStringLiteral("fraCompletions"));
  setFrameShape(QFrame::StyledPanel);
  setAutoFillBackground(true);
  list_->setObjectName(QStringLiteral("lstCompletions"));
  list_->setFrameShape(QFrame::NoFrame);
  list_->setFocusPolicy(Qt::NoFocus);
  list_->setItemDelegate(rows_);
  list_->setUniformItemSizes(true);
  list_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  auto* inside = new QVBoxLayout(this);
  inside->setContentsMargins(0, 0, 0, 0);
  inside->addWidget(list_);
  hide();
  // Requests one layout for all rows that are added or removed together.
  const auto note = [this] { list_->updateGeometry(); };
  connect(list_->model(), &QAbstractItemModel::rowsInserted, this, note);
  connect(list_->model(), &QAbstractItemModel::rowsRemoved, this, note);
  connect(list_->model(), &QAbstractItemModel::modelReset, this, note);
}

CompletionFrame::~CompletionFrame() {
  // While this frame is being destroyed, the list is destroyed too and removes its rows.
  disconnect(list_->model(), nullptr, this, nullptr);
}

void CompletionFrame::PlaceBeside(QWidget* pane) {
  pane_ = pane;
  pane->installEventFilter(this);
}

bool CompletionFrame::event(QEvent* event) {
  const bool handled = QFrame::event(event);
  if (event->type() == QEvent::LayoutRequest) Place();
  return handled;
}

void CompletionFrame::showEvent(QShowEvent* event) {
  QFrame::showEvent(event);
  raise();
  Place();
}

bool CompletionFrame::eventFilter(QObject* watched, QEvent* event) {
  const bool moved = event->type() == QEvent::Resize || event->type() == QEvent::Move;
  if (watched == pane_ && moved) Place();
  return false;
}

void CompletionFrame::Place() {
  if (!pane_ || isHidden()) return;
  list_->ensurePolished();
  const QRect pane = pane_->geometry();
  rows_->Measure(pane.width());
  const int edges = 2 * frameWidth();
  const QSize row = rows_->sizeHint({}, {});
  const int above = pane.top();
  const int below = parentWidget()->height() - (pane.bottom() + 1);
  const int room = std::max(above, below) - edges;
  const int rows = std::clamp(room / row.height(), 1, std::clamp(list_->count(), 1, kMostRows));
  int width = row.width() + edges;
  if (rows < list_->count()) width += list_->verticalScrollBar()->sizeHint().width();
  const int height = rows * row.height() + edges;
  setGeometry(pane.left(), above > below ? above - height : pane.bottom() + 1,
              std::min(width, pane.width()), height);
}

}  // namespace verlume::qt
