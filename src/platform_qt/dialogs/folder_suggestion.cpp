#include "platform_qt/dialogs/folder_suggestion.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QKeyEvent>
#include <QListView>
#include <QMessageBox>
#include <QStandardItemModel>
#include <QStandardPaths>
#include <QStyle>
#include <QUrl>

namespace verlume::qt {
namespace {

// Where the dialog's list of places keeps the address of an entry.
constexpr int kAddressRole = Qt::UserRole + 1;

void SayThatItCannotBeMade(QFileDialog& dialog, const QString& path) {
  QMessageBox box(QMessageBox::Warning, dialog.windowTitle(), QString(), QMessageBox::Ok, &dialog);
  box.setTextFormat(Qt::PlainText);
  box.setText(QCoreApplication::translate("QFileDialog", "The folder %1 could not be made.")
                  .arg(QDir::toNativeSeparators(path)));
  box.exec();
}

// The suggestion in the list of places: a child of its dialog.
class Suggestion : public QObject {
 public:
  Suggestion(QFileDialog& dialog, QListView& places, QStandardItem* item, const QString& path)
      : QObject(&dialog),
        dialog_(dialog),
        places_(places),
        item_(item),
        path_(path),
        before_(dialog.directory().path()) {
    connect(&places, &QListView::clicked, this, [this](const QModelIndex& at) {
      if (at == item_->index()) Open();
    });
    places.installEventFilter(this);
    // A second Escape may find the dialog still there.
    connect(&dialog, &QDialog::finished, this, &Suggestion::Withdraw, Qt::SingleShotConnection);
  }

  // Enter would go on to the dialog and press its button.
  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() != QEvent::KeyPress || !IsSelected()) return false;
    const int key = static_cast<QKeyEvent*>(event)->key();
    if (key != Qt::Key_Return && key != Qt::Key_Enter) return false;
    Open();
    return true;
  }

 private:
  // Qt makes no place the current one.
  bool IsSelected() const { return places_.selectionModel()->isSelected(item_->index()); }

  // Qt remembers the places of a dialog for the next one.
  void Withdraw() {
    places_.removeEventFilter(this);
    places_.disconnect(this);
    item_->model()->removeRow(item_->row());
  }

  void Open() {
    if (QDir().mkpath(path_)) return dialog_.setDirectory(path_);
    dialog_.setDirectory(before_);
    SayThatItCannotBeMade(dialog_, path_);
  }

  QFileDialog& dialog_;
  QListView& places_;
  QStandardItem* const item_;
  const QString path_;
  const QString before_;  // where the dialog opened
};

}  // namespace

QString FolderInDocuments(const QString& name) {
  const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
  return name.isEmpty() || documents.isEmpty() ? QString() : documents + u'/' + name;
}

void SuggestFolder(QFileDialog& dialog, const QString& path) {
  auto* places = dialog.findChild<QListView*>(QStringLiteral("sidebar"));
  auto* model = places ? qobject_cast<QStandardItemModel*>(places->model()) : nullptr;
  if (!model || path.isEmpty()) return;

  auto* item = new QStandardItem(dialog.style()->standardIcon(QStyle::SP_FileDialogNewFolder),
                                 QFileInfo(path).fileName());
  item->setToolTip(QDir::toNativeSeparators(path));
  item->setData(QUrl::fromLocalFile(path), kAddressRole);
  model->appendRow(item);
  new Suggestion(dialog, *places, item, path);
}

}  // namespace verlume::qt
