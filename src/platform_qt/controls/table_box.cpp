#include "platform_qt/controls/table_box.h"

#include <QHeaderView>
#include <QScopedValueRollback>
#include <algorithm>

namespace verlume::qt {
namespace {

constexpr int kWidestColumn = 26;  // in characters of usual width

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
  header()->setSectionsMovable(false);
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
  FitColumns();
}

void QtTableBox::SetRows(const std::vector<Row>& rows) {
  const QScopedValueRollback changing(isChanging_, true);
  widget_->clear();
  QList<QTreeWidgetItem*> items;
  for (const Row& row : rows) items.append(new QTreeWidgetItem(TextsOf(row)));
  widget_->addTopLevelItems(items);
  FitColumns();
}

void QtTableBox::SetRow(int index, const Row& row) {
  QTreeWidgetItem* item = widget_->topLevelItem(index);
  if (!item) return;
  const QStringList texts = TextsOf(row);
  for (int column = 0; column < texts.size(); ++column) item->setText(column, texts[column]);
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

void QtTableBox::FitColumns() {
  const int widest = kWidestColumn * widget_->fontMetrics().averageCharWidth();
  for (int column = 0; column + 1 < widget_->columnCount(); ++column) {
    widget_->resizeColumnToContents(column);
    widget_->setColumnWidth(column, std::min(widget_->columnWidth(column), widest));
  }
}

}  // namespace verlume::qt
