// The font dialog behind QtCommonDialog.
#pragma once

#include <QFontDialog>

#include "platform/dialogs.h"

class QLineEdit;
class QListView;
class QPushButton;

namespace verlume::qt {

class FontDialog : public QFontDialog {
 public:
  // Offers sizes from `minimumSize` to `maximumSize` points.
  FontDialog(QWidget* owner, const FontChoice& start, double minimumSize, double maximumSize);

  // The font chosen, its size within the limits. A font that is not installed stays chosen while
  // the user chooses no other.
  FontChoice Choice() const;

 private:
  void LimitSizes();
  void HideSizesOutside(QListView* sizes) const;
  void AddColorButton();
  void ChooseColor(QPushButton* button);

  FontChoice start_;
  QString shownFamily_;  // what stands for the font it started with
  double minimum_;
  double maximum_;
};

}  // namespace verlume::qt
