// Answers the modal boxes that a test opens.
#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QDialog>
#include <QTimer>
#include <QWindow>
#include <functional>
#include <utility>

namespace verlume::qt {

// Runs `act` on the first modal box that is shown after the driver was created. A box that is still
// open when the time limit is over is rejected, and the test fails.
class ModalDriver : public QObject {
 public:
  explicit ModalDriver(std::function<void(QDialog&)> act) : act_(std::move(act)) {
    poll_.callOnTimeout(this, [this] { Look(); });
    poll_.start(5);
    limit_.setSingleShot(true);
    limit_.callOnTimeout(this, [] {
      ADD_FAILURE() << "the box stayed open";
      for (QWidget* box = Top(); box && box->isVisible(); box = Top()) box->hide();
    });
    limit_.start(10000);
  }
  ~ModalDriver() override { EXPECT_TRUE(seen_) << "no box was shown"; }

 private:
  static QWidget* Top() { return QApplication::activeModalWidget(); }

  void Look() {
    auto* box = qobject_cast<QDialog*>(Top());
    if (!box || !box->isVisible() || !box->windowHandle() || !box->windowHandle()->isExposed()) {
      return;
    }
    poll_.stop();
    seen_ = true;
    act_(*box);
  }

  std::function<void(QDialog&)> act_;
  QTimer poll_;
  QTimer limit_;
  bool seen_ = false;
};

}  // namespace verlume::qt
