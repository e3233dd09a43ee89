// The form of a window that is shown modally.
#pragma once

#include <QDialog>

namespace verlume::qt {

// A dialog that Escape closes as its close box does, so that QtWindow is asked first.
class ModalForm : public QDialog {
 public:
  explicit ModalForm(QWidget* owner) : QDialog(owner) {
    // The right button asks for help here; a menu of its own would take its release.
    setContextMenuPolicy(Qt::PreventContextMenu);
  }

  void reject() override { close(); }
};

}  // namespace verlume::qt
