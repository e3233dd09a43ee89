// The bar above the command pane when another key than before has come.
#pragma once

#include <QElapsedTimer>

#include "platform_qt/dialogs/key_clock.h"
#include "platform_qt/windows/floating_frame.h"

namespace verlume::qt {

// Its controls have the names of KeyBar's members. For assistive tools it is an alert. For half a
// second after it appears neither key nor mouse presses its buttons, and keys do so only after a
// second without keys.
class KeyFrame : public FloatingFrame {
 public:
  explicit KeyFrame(QWidget* area);

 protected:
  QRect PlaceAt(const QRect& pane) const override;
  bool eventFilter(QObject* watched, QEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  QPushButton* NewAnswer(const char* name);
  // Whether the button does not get the event.
  bool IsTooEarly(const QEvent& event) const;
  bool IsOldEnough() const;

  KeyClock clock_;
  QElapsedTimer sinceShown_;
};

struct QtKeyBar {
  explicit QtKeyBar(QWidget* area) : frame(new KeyFrame(area)) {}
  KeyBar View() { return {fraKey, lblKey, cmdKeyGoOn, cmdKeyHangUp}; }

  template <class Widget>
  Widget* Find(const char* name) {
    return frame->findChild<Widget*>(QLatin1String(name));
  }

  KeyFrame* frame;
  QtFloatingPanel fraKey{frame};
  QtLabel lblKey{Find<QLabel>("lblKey")};
  QtButton cmdKeyGoOn{Find<QPushButton>("cmdKeyGoOn")};
  QtButton cmdKeyHangUp{Find<QPushButton>("cmdKeyHangUp")};
};

}  // namespace verlume::qt
