#include "platform_qt/dialogs/font_families.h"

#include <QFontInfo>
#include <QLineEdit>
#include <QListView>
#include <QStringListModel>
#include <algorithm>
#include <utility>

namespace verlume::qt {

QString WithoutMaker(const QString& family) {
  const qsizetype maker = family.indexOf(u'[');
  return maker > 0 && family.endsWith(u']') ? family.first(maker).trimmed() : family;
}

// The names in the list, with one that Qt does not list. The dialog takes its row for that of the
// family which stands in for it, and so finds styles and a sample; the user sees the name itself.
class FontFamilies::Names : public QStringListModel {
 public:
  Names(const QStringListModel& listed, QObject* parent)
      : QStringListModel(listed.stringList(), parent) {
    connect(this, &QAbstractItemModel::modelAboutToBeReset, this, [this] { missingRow_ = -1; });
  }

  // The row of the name that Qt does not list; -1 if there is none.
  int MissingRow() const { return missingRow_; }

  // Adds the row in its alphabetical place.
  void AddMissing(const QString& name) {
    const QStringList names = stringList();
    const auto next = std::find_if(names.begin(), names.end(), [&name](const QString& other) {
      return other.compare(name, Qt::CaseInsensitive) > 0;
    });
    const int row = static_cast<int>(next - names.begin());
    insertRow(row);
    setData(index(row), QFontInfo(QFont(name)).family());
    missing_ = name;
    missingRow_ = row;
  }

  QVariant data(const QModelIndex& index, int role) const override {
    const bool isName = role == Qt::DisplayRole || role == Qt::EditRole;
    const bool isMissing = index.isValid() && index.row() == missingRow_;
    return isName && isMissing ? missing_ : QStringListModel::data(index, role);
  }

 private:
  QString missing_;
  int missingRow_ = -1;
};

FontFamilies::FontFamilies(QListView* list, QLineEdit* field, const QString& own,
                           std::function<void()> onShown)
    : QObject(list), list_(list), field_(field), own_(own), onShown_(std::move(onShown)) {
  const int row = list->currentIndex().row();
  names_ = new Names(*static_cast<QStringListModel*>(list->model()), this);
  connect(names_, &QAbstractItemModel::modelAboutToBeReset, this, [this] { isListing_ = true; });
  list->setModel(names_);
  list->setCurrentIndex(names_->index(row));
  connect(list->selectionModel(), &QItemSelectionModel::currentChanged, this,
          [this] { ShowChosen(); });
  const bool isInstalled =
      WithoutMaker(Shown()).compare(WithoutMaker(own), Qt::CaseInsensitive) == 0;
  first_ = isInstalled ? Shown() : own;
}

void FontFamilies::Restore() {
  if (!names_->stringList().contains(first_)) names_->AddMissing(first_);
  if (isOwnChosen_) {
    const qsizetype installed = names_->stringList().indexOf(first_);
    const int row = names_->MissingRow() < 0 ? int(installed) : names_->MissingRow();
    list_->setCurrentIndex(names_->index(row));
  }
  isListing_ = false;
  ShowChosen();
}

void FontFamilies::ShowChosen() {
  const QString chosen = list_->currentIndex().data().toString();
  if (!isListing_) isOwnChosen_ = chosen == first_;
  field_->setText(chosen);
  onShown_();
}

QString FontFamilies::Shown() const {
  return names_->stringList().value(list_->currentIndex().row());
}

QString FontFamilies::Chosen() const {
  return list_->currentIndex().data().toString() == first_ ? own_ : WithoutMaker(Shown());
}

}  // namespace verlume::qt
