// The left part of the help window: the search field, and below it the contents or the search
// results.
#pragma once

#include <QWidget>
#include <functional>

#include "platform_qt/help/help_book.h"

class QLineEdit;
class QListWidget;
class QStackedWidget;
class QTreeWidget;
class QTreeWidgetItem;

namespace verlume::qt {

class HelpSidebar : public QWidget {
 public:
  explicit HelpSidebar(QWidget* parent);

  // Shows the book's contents and the results of the current query. `book` is used until the next
  // call.
  void SetBook(const HelpBook& book);
  // Clears the search; false if it was empty already.
  bool ClearSearch();
  // Makes the topic's line in the contents current, opened and visible, and marks the topic in the
  // search results if it is there.
  void Select(const QString& topicId);

  QString Query() const;
  void FocusSearch();

  QLineEdit* txtSearch() const { return txtSearch_; }
  QTreeWidget* tvwContents() const { return tvwContents_; }
  QListWidget* lstResults() const { return lstResults_; }

  // The user has chosen the chapter or topic with this id.
  std::function<void(const QString& id)> onChosen;

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void ListResults();
  void ChooseFirst();
  void Choose(const QString& id);

  const HelpBook* book_ = nullptr;
  QLineEdit* txtSearch_;
  QStackedWidget* pages_;
  QTreeWidget* tvwContents_;
  QListWidget* lstResults_;
};

}  // namespace verlume::qt
