// The list of styles in the font dialog.
#pragma once

#include <QFont>
#include <QObject>
#include <functional>

class QLineEdit;
class QListView;

namespace verlume::qt {

// Keeps the style that is in force while the user looks at families. Qt's dialog takes whatever
// style is the first in a family, if the family has none of the same name: "Roman" is not "Book".
class FontStyles : public QObject {
 public:
  // `family` returns the family whose styles are listed. `edit` shows the style's name.
  FontStyles(QListView* list, QLineEdit* edit, std::function<QString()> family);

  // The style in force: the one set, until the user chooses another in the list.
  void Set(bool bold, bool italic);
  bool Bold() const { return bold_; }
  bool Italic() const { return italic_; }

  // Selects the style in force; nothing if the family does not have it. Call it whenever the dialog
  // has listed the styles anew.
  void Show();
  // Gives the font the style in force if the family does not have it, and returns whether it did.
  bool Complete(QFont& font) const;

 private:
  QFont FontIn(const QString& style) const;
  bool IsInForce(const QString& style) const;
  int RowInForce() const;
  void TakeChosen();

  QListView* list_;
  QLineEdit* edit_;
  std::function<QString()> family_;
  bool bold_ = false;
  bool italic_ = false;
  bool isListing_ = false;  // the list does not show the user's choice, but is being made anew
};

}  // namespace verlume::qt
