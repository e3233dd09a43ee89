#include "platform_qt/windows/completion_rows.h"

#include <QApplication>
#include <QPainter>
#include <algorithm>

namespace verlume::qt {
namespace {

constexpr int kAcross = 4;  // free space beside and above the text, in pixels
constexpr int kDown = 3;
constexpr qreal kQuiet = 0.75;  // the opacity of what is not the word

int GapOf(const QFontMetrics& metrics) {
  return 2 * metrics.averageCharWidth();
}

// Rounded up: a text that is given a fraction of a pixel too little is cut.
int WidthOf(const QFontMetrics& metrics, const QString& text) {
  return text.isEmpty() ? 0 : metrics.horizontalAdvance(text) + 1;
}

QPalette::ColorGroup GroupOf(const QStyleOptionViewItem& row) {
  return row.state & QStyle::State_Active ? QPalette::Active : QPalette::Inactive;
}

QStringList ColumnsOf(const QString& text) {
  return text.split(u'\t');
}

}  // namespace

void CompletionRows::Measure(int room) {
  const QFontMetrics metrics = list_.fontMetrics();
  const int gap = GapOf(metrics);
  int about = 0;
  int widest = 0;
  word_ = arguments_ = 0;
  for (int row = 0; row < list_.count(); ++row) {
    const QStringList columns = ColumnsOf(list_.item(row)->text());
    const int word = WidthOf(metrics, columns.value(0));
    const int arguments = WidthOf(metrics, columns.value(1));
    const int explanation = WidthOf(metrics, columns.value(2));
    widest = std::max(widest, word);
    // One long word, the name of a macro perhaps, does not push the columns of all rows aside.
    if (word <= room / 2) word_ = std::max(word_, word);
    arguments_ = std::max(arguments_, arguments);
    about = std::max(about, explanation);
  }
  const int rest = (arguments_ > 0 ? gap + arguments_ : 0) + (about > 0 ? gap + about : 0);
  all_ = std::max(word_ + rest, widest) + 2 * kAcross;
}

QSize CompletionRows::sizeHint(const QStyleOptionViewItem&, const QModelIndex&) const {
  return {all_, list_.fontMetrics().height() + 2 * kDown};
}

// Styles take grounds of their own for what is selected, which need not suit the colour of the
// text.
void CompletionRows::paint(QPainter* painter, const QStyleOptionViewItem& option,
                           const QModelIndex& index) const {
  QStyleOptionViewItem row = option;
  initStyleOption(&row, index);
  const QStringList columns = ColumnsOf(row.text);
  painter->save();
  if (row.state & QStyle::State_Selected) {
    painter->fillRect(row.rect, row.palette.brush(GroupOf(row), QPalette::Highlight));
  }
  PaintColumns(*painter, row, columns);
  painter->restore();
}

void CompletionRows::PaintColumns(QPainter& painter, const QStyleOptionViewItem& option,
                                  const QStringList& columns) const {
  const bool isSelected = option.state & QStyle::State_Selected;
  const QPalette::ColorRole ink = isSelected ? QPalette::HighlightedText : QPalette::Text;
  painter.setFont(option.font);
  painter.setPen(option.palette.color(GroupOf(option), ink));
  QRect room = option.rect.adjusted(kAcross, 0, -kAcross, 0);
  const auto write = [&](const QString& text, int width, Qt::TextElideMode elide) {
    const QString shown = option.fontMetrics.elidedText(text, elide, std::min(width, room.width()));
    painter.drawText(room, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, shown);
    room.setLeft(room.left() + width + GapOf(option.fontMetrics));
  };
  const int word = WidthOf(option.fontMetrics, columns.value(0));
  write(columns.value(0), std::max(word, word_), Qt::ElideMiddle);
  if (!isSelected) painter.setOpacity(kQuiet);
  if (arguments_ > 0) write(columns.value(1), arguments_, Qt::ElideRight);
  if (room.width() > 0) write(columns.value(2), room.width(), Qt::ElideRight);
}

}  // namespace verlume::qt
