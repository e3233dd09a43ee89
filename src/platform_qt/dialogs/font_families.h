// The list of families in the font dialog.
#pragma once

#include <QObject>
#include <QString>
#include <functional>

class QLineEdit;
class QListView;

namespace verlume::qt {

// The name under which other computers have the family too. Where two makers offer a family, Qt
// adds the maker: "C059 [urw]".
QString WithoutMaker(const QString& family);

// Lists the user's own family even if it is not installed, or not made for the writing system whose
// families are listed. Qt's dialog would choose another in its place.
class FontFamilies : public QObject {
 public:
  // `list` and `field`, in which the name of the family stands, are those of Qt's dialog, and show
  // the own family if it is installed. `onShown` is called whenever another family is shown.
  FontFamilies(QListView* list, QLineEdit* field, const QString& own,
               std::function<void()> onShown);

  // Lists the own family again. Call it when the dialog has listed the families anew.
  void Restore();
  // The family that is shown, by its name on this computer: for an own family that is not installed
  // it is the one that stands in for it.
  QString Shown() const;
  // The family that the user has chosen, by the name that other computers know; the own one exactly
  // as it was given while no other has been chosen.
  QString Chosen() const;

 private:
  class Names;
  void ShowChosen();

  QListView* list_;
  QLineEdit* field_;
  Names* names_;
  const QString own_;
  std::function<void()> onShown_;
  QString first_;  // what the list says of the own family
  bool isOwnChosen_ = true;
  bool isListing_ = true;  // the list does not show the user's choice, but is being made anew
};

}  // namespace verlume::qt
