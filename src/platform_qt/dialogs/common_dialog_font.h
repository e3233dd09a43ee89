// The font dialog of QtCommonDialog.
#pragma once

#include <QFontDialog>

#include "platform/dialogs.h"

class QLineEdit;
class QListView;
class QPushButton;

namespace verlume::qt {

class FontFamilies;
class FontStyles;

class FontDialog : public QFontDialog {
 public:
  // Offers sizes from `minimumSize` to `maximumSize` points.
  FontDialog(QWidget* owner, const FontChoice& start, double minimumSize, double maximumSize);

  // The chosen font, with a size within the limits. What the user does not change is as it was at
  // the start, though a font may lack it or not be installed.
  FontChoice Choice() const;

 private:
  void TakeOverLists();
  void CompleteSample();
  void LimitSizes();
  void HideSizesOutside(QListView* sizes) const;
  void AddColorButton();
  void ChooseColor(QPushButton* button);

  FontChoice start_;
  FontFamilies* families_ = nullptr;
  FontStyles* styles_ = nullptr;
  QLineEdit* sample_ = nullptr;
  QLineEdit* sizeField_ = nullptr;
  QString shownSize_;  // the last acceptable one
  double minimum_;
  double maximum_;
};

}  // namespace verlume::qt
