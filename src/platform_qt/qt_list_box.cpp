#include "platform_qt/qt_list_box.h"

#include <QMouseEvent>

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

}  // namespace

ListWidget::ListWidget(QWidget* parent) : QListWidget(parent) {
  setSelectionMode(QAbstractItemView::SingleSelection);
  setEditTriggers(QAbstractItemView::NoEditTriggers);
}

void ListWidget::mousePressEvent(QMouseEvent* event) {
  // The other buttons ask for help.
  if (event->button() != Qt::LeftButton) return;
  const QListWidgetItem* pressed = itemAt(event->position().toPoint());
  const bool again = pressed && pressed->isSelected();
  QListWidget::mousePressEvent(event);
  if (again && onChosenAgain) onChosenAgain();
}

QItemSelectionModel::SelectionFlags ListWidget::selectionCommand(const QModelIndex& index,
                                                                 const QEvent* event) const {
  const QItemSelectionModel::SelectionFlags command = QListWidget::selectionCommand(index, event);
  const bool takes = command & (QItemSelectionModel::Deselect | QItemSelectionModel::Toggle);
  if (takes && index.isValid()) return QItemSelectionModel::ClearAndSelect;
  return index.isValid() ? command : QItemSelectionModel::NoUpdate;
}

QtListBox::QtListBox(ListWidget* widget) : QtControl(widget) {
  // What is selected, not what is current: the focus alone makes the first item the current one.
  QObject::connect(widget, &QListWidget::itemSelectionChanged, widget, [this] { RaiseClick(); });
  widget->onChosenAgain = [this] { RaiseClick(); };
}

void QtListBox::RaiseClick() {
  if (programDepth_ == 0 && SelectedIndex() >= 0 && onClick) onClick();
}

void QtListBox::Clear() {
  const Counted change(programDepth_);
  widget_->clear();
}

void QtListBox::Append(std::u16string_view text) {
  const Counted change(programDepth_);
  widget_->addItem(ToQt(text));
}

void QtListBox::Remove(int index) {
  const Counted change(programDepth_);
  const bool wasSelected = index == SelectedIndex();
  delete widget_->takeItem(index);
  // Qt goes on to a neighbour.
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
