#include "platform_qt/dialogs/font_styles.h"

#include <QFontDatabase>
#include <QFontInfo>
#include <QLineEdit>
#include <QListView>
#include <utility>

namespace verlume::qt {

FontStyles::FontStyles(QListView* list, QLineEdit* edit, std::function<QString()> family)
    : QObject(list), list_(list), edit_(edit), family_(std::move(family)) {
  connect(list->model(), &QAbstractItemModel::modelAboutToBeReset, this,
          [this] { isListing_ = true; });
  connect(list->selectionModel(), &QItemSelectionModel::currentChanged, this,
          [this] { TakeChosen(); });
}

void FontStyles::Set(bool bold, bool italic) {
  bold_ = bold;
  italic_ = italic;
}

QFont FontStyles::FontIn(const QString& style) const {
  constexpr int kAnySize = 10;
  return QFontDatabase::font(family_(), style, kAnySize);
}

bool FontStyles::IsInForce(const QString& style) const {
  const QFont font = FontIn(style);
  return font.bold() == bold_ && font.italic() == italic_;
}

void FontStyles::TakeChosen() {
  const QModelIndex chosen = list_->currentIndex();
  if (isListing_ || !chosen.isValid()) return;
  const QFont font = FontIn(chosen.data().toString());
  Set(font.bold(), font.italic());
}

// The one that Qt takes for text, or else the first that looks like it.
int FontStyles::RowInForce() const {
  QFont wanted(family_());
  wanted.setBold(bold_);
  wanted.setItalic(italic_);
  const QString name = QFontInfo(wanted).styleName();
  int row = -1;
  for (int i = list_->model()->rowCount() - 1; i >= 0; --i) {
    const QString style = list_->model()->index(i, 0).data().toString();
    if (!IsInForce(style)) continue;
    row = i;
    if (style == name) break;
  }
  return row;
}

void FontStyles::Show() {
  isListing_ = true;
  const int row = RowInForce();
  list_->setCurrentIndex(list_->model()->index(row, 0));
  if (row < 0) {
    QFont font;
    font.setBold(bold_);
    font.setItalic(italic_);
    edit_->setText(QFontDatabase::styleString(font));
  }
  isListing_ = false;
}

bool FontStyles::Complete(QFont& font) const {
  if (list_->currentIndex().isValid()) return false;
  font.setStyleName({});
  font.setBold(bold_);
  font.setItalic(italic_);
  return true;
}

}  // namespace verlume::qt
