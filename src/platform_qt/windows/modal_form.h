// The form of a modal window.
#pragma once

#include <QDialog>

namespace verlume::qt {

// A dialog in which Escape works like the close box, so that QtWindow is asked first.
class ModalForm : public QDialog {
 public:
  explicit ModalForm(QWidget* owner) : QDialog(owner) {
    // The right button is for context help; a context menu would take its release.
    setContextMenuPolicy(Qt::PreventContextMenu);
  }

  void reject() override { close(); }
};

}  // namespace verlume::qt
