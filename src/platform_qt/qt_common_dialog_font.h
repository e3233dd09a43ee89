// The font dialog behind QtCommonDialog.
#pragma once

#include <QFontDialog>

#include "platform/dialogs.h"

class QLineEdit;
class QListView;

namespace verlume::qt {

class FontDialog : public QFontDialog {
 public:
  // Offers sizes from `minimumSize` to `maximumSize` points.
  FontDialog(QWidget* owner, const FontChoice& start, double minimumSize, double maximumSize);

  // The font chosen, its size within the limits. The colour is the one it started with: the dialog
  // has none.
  FontChoice Choice() const;

 private:
  void LimitSizes();
  void HideSizesOutside(QListView* sizes) const;

  FontChoice start_;
  double minimum_;
  double maximum_;
};

}  // namespace verlume::qt
