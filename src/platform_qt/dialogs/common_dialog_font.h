// The font dialog of QtCommonDialog.
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

  // The chosen font, with a size within the limits. If the start font is not installed, it stays
  // chosen until the user chooses another.
  FontChoice Choice() const;

 private:
  void LimitSizes();
  void HideSizesOutside(QListView* sizes) const;
  void AddColorButton();
  void ChooseColor(QPushButton* button);

  FontChoice start_;
  QString shownFamily_;  // the installed font shown for the start font
  double minimum_;
  double maximum_;
};

}  // namespace verlume::qt
