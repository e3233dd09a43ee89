// Paints the rows of the list of completions in three columns: the word, which is never cut, and,
// cut where the room ends, its arguments and what it does.
#pragma once

#include <QListWidget>
#include <QStyledItemDelegate>

namespace verlume::qt {

class CompletionRows : public QStyledItemDelegate {
 public:
  explicit CompletionRows(QListWidget* list) : QStyledItemDelegate(list), list_(*list) {}

  // Measures the columns for a list of this width; to be called whenever rows have come or gone.
  void Measure(int room);

  void paint(QPainter* painter, const QStyleOptionViewItem& option,
             const QModelIndex& index) const override;
  // As wide as all columns need, for every row.
  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;

 private:
  void PaintColumns(QPainter& painter, const QStyleOptionViewItem& option,
                    const QStringList& columns) const;

  QListWidget& list_;
  int word_ = 0;  // the widths of the columns
  int arguments_ = 0;
  int all_ = 0;
};

}  // namespace verlume::qt
