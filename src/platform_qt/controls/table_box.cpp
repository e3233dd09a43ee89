#include "platform_qt/controls/table_box.h"

#include <QHeaderView>
#include <QHelpEvent>
#include <QScopedValueRollback>
#include <QToolTip>
#include <algorithm>

#include "platform_qt/controls/tool_tip.h"

namespace verlume::qt {
namespace {

constexpr int kLeastWidth = 24;  // pixels of a column

// The widest width at which columns that need these widths fit side by side.
int WidestThatFits(std::vector<int> needs, int room) {
  std::sort(needs.begin(), needs.end());
  int left = static_cast<int>(needs.size());
  for (const int need : needs) {
    if (need * left > room) return room / left;
    room -= need;
    --left;
  }
  return needs.empty() ? 0 : needs.back();
}

QStringList TextsOf(const TableBox::Row& row) {
  QStringList texts;
  for (const std::u16string& text : row) texts.append(ToQt(text));
  return texts;
}

}  // namespace

TableWidget::TableWidget(QWidget* parent) : QTreeWidget(parent) {
  setRootIsDecorated(false);
  setUniformRowHeights(true);
  setAllColumnsShowFocus(true);
  setItemsExpandable(false);
  setSelectionMode(QAbstractItemView::SingleSelection);
  setEditTriggers(QAbstractItemView::NoEditTriggers);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  header()->setSectionsMovable(false);
  // Qt's own least width is that of the font's widest letter, which may be wider than a date; and a
  // last column that Qt stretches would not become narrower than it was at first.
  header()->setMinimumSectionSize(kLeastWidth);
  header()->setStretchLastSection(false);
}

void TableWidget::FitColumns() {
  needs_.clear();
  for (int column = 0; column < columnCount(); ++column) {
    needs_.push_back(std::max(sizeHintForColumn(column), header()->sectionSizeHint(column)));
  }
  ShareRoom();
}

void TableWidget::resizeEvent(QResizeEvent* event) {
  QTreeWidget::resizeEvent(event);
  ShareRoom();
}

bool TableWidget::viewportEvent(QEvent* event) {
  const bool asks = event->type() == QEvent::ToolTip;
  if (asks && ShowCutText(static_cast<QHelpEvent*>(event)->pos())) return true;
  return QTreeWidget::viewportEvent(event);
}

bool TableWidget::ShowCutText(const QPoint& place) const {
  const QModelIndex cell = indexAt(place);
  const QRect room = visualRect(cell);
  if (!cell.isValid() || sizeHintForIndex(cell).width() <= room.width()) return false;
  const QString text = PlainToolTip(cell.data().toString());
  QToolTip::showText(viewport()->mapToGlobal(place), text, viewport(), room);
  return true;
}

void TableWidget::mousePressEvent(QMouseEvent* event) {
  // The other buttons are for context help.
  if (event->button() == Qt::LeftButton) QTreeWidget::mousePressEvent(event);
}

// A column that has just been added has no need yet. The last one takes what is left.
void TableWidget::ShareRoom() {
  int room = viewport()->width();
  const int widest = WidestThatFits(needs_, room);
  const int last = std::min(columnCount(), static_cast<int>(needs_.size())) - 1;
  for (int column = 0; column < last; ++column) {
    const int width = std::min(needs_[static_cast<std::size_t>(column)], widest);
    setColumnWidth(column, width);
    room -= width;
  }
  if (last >= 0) setColumnWidth(last, room);
}

QItemSelectionModel::SelectionFlags TableWidget::selectionCommand(const QModelIndex& index,
                                                                  const QEvent* event) const {
  const QItemSelectionModel::SelectionFlags command = QTreeWidget::selectionCommand(index, event);
  if (!index.isValid()) return QItemSelectionModel::NoUpdate;
  const bool takes = command & (QItemSelectionModel::Deselect | QItemSelectionModel::Toggle);
  return takes ? QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows : command;
}

QtTableBox::QtTableBox(TableWidget* widget) : QtControl(widget) {
  QObject::connect(widget, &QTreeWidget::itemSelectionChanged, widget, [this] {
    if (!isChanging_ && onClick) onClick();
  });
}

void QtTableBox::SetHeading(int column, std::u16string_view text) {
  if (column >= widget_->columnCount()) widget_->setColumnCount(column + 1);
  widget_->headerItem()->setText(column, ToQt(text));
  widget_->FitColumns();
}

void QtTableBox::SetRows(const std::vector<Row>& rows) {
  const QScopedValueRollback changing(isChanging_, true);
  widget_->clear();
  QList<QTreeWidgetItem*> items;
  for (const Row& row : rows) items.append(new QTreeWidgetItem(TextsOf(row)));
  widget_->addTopLevelItems(items);
  widget_->FitColumns();
}

void QtTableBox::SetRow(int index, const Row& row) {
  QTreeWidgetItem* item = widget_->topLevelItem(index);
  if (!item) return;
  const QStringList texts = TextsOf(row);
  for (int column = 0; column < texts.size(); ++column) item->setText(column, texts[column]);
  widget_->FitColumns();
}

void QtTableBox::Select(int index) {
  const QScopedValueRollback changing(isChanging_, true);
  QTreeWidgetItem* item = widget_->topLevelItem(index);
  if (!item) {
    widget_->setCurrentItem(nullptr);
    return widget_->clearSelection();
  }
  widget_->setCurrentItem(item, 0, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
  widget_->scrollToItem(item);
}

int QtTableBox::SelectedIndex() const {
  const QList<QTreeWidgetItem*> selected = widget_->selectedItems();
  return selected.isEmpty() ? -1 : widget_->indexOfTopLevelItem(selected.first());
}

}  // namespace verlume::qt
