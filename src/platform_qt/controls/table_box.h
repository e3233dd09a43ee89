// The table, implemented with Qt.
#pragma once

#include <QTreeWidget>

#include "platform/table_box.h"
#include "platform_qt/controls/control.h"

namespace verlume::qt {

// A click beside the rows, or with Ctrl, does not remove the selection. Where the columns have no
// room, the widest ones are cut; the last one has what is left. A text that is cut is shown in full
// as a tool tip.
class TableWidget : public QTreeWidget {
 public:
  explicit TableWidget(QWidget* parent);

  // The columns are given the widths that the texts need, as far as there is room.
  void FitColumns();

 protected:
  void resizeEvent(QResizeEvent* event) override;
  bool viewportEvent(QEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& index,
                                                       const QEvent* event) const override;

 private:
  void ShareRoom();
  // False if no text is cut there.
  bool ShowCutText(const QPoint& place) const;

  std::vector<int> needs_;  // the widths that the columns need
};

class QtTableBox : public QtControl<TableBox, TableWidget> {
 public:
  explicit QtTableBox(TableWidget* widget);

  void SetHeading(int column, std::u16string_view text) override;
  void SetRows(const std::vector<Row>& rows) override;
  void SetRow(int index, const Row& row) override;
  int Count() const override { return widget_->topLevelItemCount(); }
  void Select(int index) override;
  int SelectedIndex() const override;

 private:
  bool isChanging_ = false;  // the program changes the table, which is no click
};

}  // namespace verlume::qt
