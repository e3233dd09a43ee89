// The form of a window that is shown modally.
#pragma once

#include <QDialog>

namespace verlume::qt {

// A dialog that Escape closes as its close box does, so that QtWindow is asked first.
class ModalForm : public QDialog {
 public:
  using QDialog::QDialog;

  void reject() override { close(); }
};

}  // namespace verlume::qt
