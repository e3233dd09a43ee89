#include "platform_qt/controls/list_box.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <algorithm>
#include <utility>

namespace verlume::qt {
namespace {

class Counted {
 public:
  explicit Counted(int& depth) : depth_(depth) { ++depth_; }
  ~Counted() { --depth_; }
  Counted(const Counted&) = delete;
  Counted& operator=(const Counted&) = delete;

 private:
  int& depth_;
};

// The row that a key selects while none is selected, or -1. Qt's own keys would start from the
// current row, which getting the focus has set.
int FirstRowOf(int key, const QListWidget& list) {
  switch (key) {
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
      return std::max(list.currentRow(), 0);
    case Qt::Key_Home:
      return 0;
    case Qt::Key_End:
      return list.count() - 1;
    default:
      return -1;
  }
}

}  // namespace

ListWidget::ListWidget(QWidget* parent) : QListWidget(parent) {
  setSelectionMode(QAbstractItemView::SingleSelection);
  setEditTriggers(QAbstractItemView::NoEditTriggers);
}

void ListWidget::TellChosen() {
  hasChosen_ = true;
  if (eventDepth_ == 0) EndEvent();
}

void ListWidget::EndEvent() {
  if (eventDepth_ == 0 && std::exchange(hasChosen_, false) && onChosen) onChosen();
}

bool ListWidget::event(QEvent* event) {
  const bool isDealtWith = [&] {
    const Counted handling(eventDepth_);
    return QListWidget::event(event);
  }();
  EndEvent();
  return isDealtWith;
}

bool ListWidget::viewportEvent(QEvent* event) {
  const bool isDealtWith = [&] {
    const Counted handling(eventDepth_);
    return QListWidget::viewportEvent(event);
  }();
  EndEvent();
  return isDealtWith;
}

void ListWidget::keyPressEvent(QKeyEvent* event) {
  const int row = IsNothingSelected() ? FirstRowOf(event->key(), *this) : -1;
  if (row < 0 || count() == 0) return QListWidget::keyPressEvent(event);
  setCurrentRow(row, QItemSelectionModel::ClearAndSelect);
}

void ListWidget::mousePressEvent(QMouseEvent* event) {
  // The other buttons are for context help.
  if (event->button() != Qt::LeftButton) return;
  const QListWidgetItem* pressed = itemAt(event->position().toPoint());
  const bool again = pressed && pressed->isSelected();
  QListWidget::mousePressEvent(event);
  if (again) TellChosen();
}

QItemSelectionModel::SelectionFlags ListWidget::selectionCommand(const QModelIndex& index,
                                                                 const QEvent* event) const {
  const QItemSelectionModel::SelectionFlags command = QListWidget::selectionCommand(index, event);
  const bool takes = command & (QItemSelectionModel::Deselect | QItemSelectionModel::Toggle);
  if (takes && index.isValid()) return QItemSelectionModel::ClearAndSelect;
  return index.isValid() ? command : QItemSelectionModel::NoUpdate;
}

QtListBox::QtListBox(ListWidget* widget) : QtControl(widget) {
  // Not the current item: getting the focus makes the first item current without selecting it.
  QObject::connect(widget, &QListWidget::itemSelectionChanged, widget, [this] {
    if (programDepth_ == 0) widget_->TellChosen();
  });
  widget->onChosen = [this] {
    if (SelectedIndex() >= 0 && onClick) onClick();
  };
}

void QtListBox::Clear() {
  const Counted change(programDepth_);
  widget_->clear();
}

void QtListBox::Append(std::u16string_view text) {
  const Counted change(programDepth_);
  auto* item = new QListWidgetItem(ToQt(text));
  // The columns of a row are read out one after the other.
  const QStringList columns = item->text().split(u'\t', Qt::SkipEmptyParts);
  if (columns.size() > 1) item->setData(Qt::AccessibleTextRole, columns.join(u", "));
  widget_->addItem(item);
}

void QtListBox::Remove(int index) {
  const Counted change(programDepth_);
  const bool wasSelected = index == SelectedIndex();
  delete widget_->takeItem(index);
  // Qt selects a neighbour.
  if (wasSelected) Select(-1);
}

std::u16string QtListBox::Item(int index) const {
  const QListWidgetItem* item = widget_->item(index);
  return item ? FromQt(item->text()) : std::u16string();
}

void QtListBox::Select(int index) {
  const Counted change(programDepth_);
  if (index < 0 || index >= Count()) {
    widget_->setCurrentRow(-1);
    widget_->clearSelection();
  } else {
    widget_->setCurrentRow(index, QItemSelectionModel::ClearAndSelect);
  }
}

int QtListBox::SelectedIndex() const {
  const QList<QListWidgetItem*> selected = widget_->selectedItems();
  return selected.isEmpty() ? -1 : widget_->row(selected.first());
}

void QtListBox::ScrollToTop(int index) {
  if (QListWidgetItem* item = widget_->item(index)) {
    widget_->scrollToItem(item, QAbstractItemView::PositionAtTop);
  }
}

}  // namespace verlume::qt
