// The left of the help window: the search field, and below it the contents or, while something is
// searched, what was found.
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

  // Shows the book's contents and what it has for the query. `book` is kept until the next.
  void SetBook(const HelpBook& book);
  // Empties the search; false when it was empty.
  bool ClearSearch();
  // The contents follow: the topic's line is opened, in sight and current. Of what was found, the
  // topic is marked, if it is there.
  void Select(const QString& topicId);

  QString Query() const;
  void FocusSearch();

  QLineEdit* txtSearch() const { return txtSearch_; }
  QTreeWidget* tvwContents() const { return tvwContents_; }
  QListWidget* lstResults() const { return lstResults_; }

  // The user has chosen the chapter or topic of that id.
  std::function<void(const QString& id)> onChosen;

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void ListFindings();
  void ChooseFirst();
  void Choose(const QString& id);

  const HelpBook* book_ = nullptr;
  QLineEdit* txtSearch_;
  QStackedWidget* pages_;
  QTreeWidget* tvwContents_;
  QListWidget* lstResults_;
};

}  // namespace verlume::qt
