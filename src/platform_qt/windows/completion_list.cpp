#include "platform_qt/windows/completion_list.h"

#include <QEvent>
#include <QScrollBar>
#include <QStyledItemDelegate>
#include <QVBoxLayout>
#include <algorithm>

namespace verlume::qt {
namespace {

constexpr int kMostRows = 8;  // visible at a time

// Rows with a little space around the text.
class RoomyRows : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;
  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    return QStyledItemDelegate::sizeHint(option, index) + QSize(8, 6);
  }
};

}  // namespace

CompletionFrame::CompletionFrame(QWidget* area) : QFrame(area), list_(new ListWidget(this)) {
  setObjectName(QStringLiteral("fraCompletions"));
  setFrameShape(QFrame::StyledPanel);
  setAutoFillBackground(true);
  list_->setObjectName(QStringLiteral("lstCompletions"));
  list_->setFrameShape(QFrame::NoFrame);
  list_->setFocusPolicy(Qt::NoFocus);
  list_->setItemDelegate(new RoomyRows(list_));
  list_->setUniformItemSizes(true);
  // Cut in the middle, because the end of a long row matters too.
  list_->setTextElideMode(Qt::ElideMiddle);
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

void CompletionFrame::PlaceBelow(QWidget* pane) {
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
  const QRect above = pane_->geometry();
  const int edges = 2 * frameWidth();
  const int row = std::max(1, list_->sizeHintForRow(0));
  const int room = parentWidget()->height() - (above.bottom() + 1) - edges;
  const int rows = std::clamp(room / row, 1, std::clamp(list_->count(), 1, kMostRows));
  int width = list_->sizeHintForColumn(0) + edges;
  if (rows < list_->count()) width += list_->verticalScrollBar()->sizeHint().width();
  setGeometry(above.left(), above.bottom() + 1, std::min(width, above.width()), rows * row + edges);
}

}  // namespace verlume::qt
