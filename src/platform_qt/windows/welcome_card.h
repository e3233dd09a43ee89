// The card in the middle of the empty dialogue pane, implemented with Qt.
#pragma once

#include "platform_qt/windows/floating_frame.h"

namespace verlume::qt {

// Its controls have the names of WelcomeCard's members.
class CardFrame : public FloatingFrame {
 public:
  explicit CardFrame(QWidget* area);

 protected:
  QRect PlaceAt(const QRect& pane) const override;
};

class QtCopyButton : public QtControl<CopyButton, QPushButton> {
 public:
  explicit QtCopyButton(QPushButton* widget);
  void SetCaption(std::u16string_view text) override { widget_->setText(ToQt(text)); }
  std::u16string Caption() const override { return FromQt(widget_->text()); }
  void SetEnabled(bool enabled) override { widget_->setEnabled(enabled); }
  bool Enabled() const override { return widget_->isEnabledTo(widget_->parentWidget()); }
  void SetTextToCopy(std::u16string_view text) override { textToCopy_ = ToQt(text); }
  std::u16string TextToCopy() const override { return FromQt(textToCopy_); }

 private:
  QString textToCopy_;
};

struct QtWelcomeCard {
  explicit QtWelcomeCard(QWidget* area) : frame(new CardFrame(area)) {}
  WelcomeCard View() {
    return {fraCard, lblCard, cmdCardWait, cmdCardCall, cmdCardHelp, lblCardAddress, cmdCardCopy};
  }
  // Puts its buttons into the Tab order behind a widget, and returns the last of them.
  QWidget* FollowInTabOrder(QWidget* before);

  template <class Widget>
  Widget* Find(const char* name) {
    return frame->findChild<Widget*>(QLatin1String(name));
  }

  CardFrame* frame;
  QtFloatingPanel fraCard{frame};
  QtLabel lblCard{Find<QLabel>("lblCard")};
  QtButton cmdCardWait{Find<QPushButton>("cmdCardWait")};
  QtButton cmdCardCall{Find<QPushButton>("cmdCardCall")};
  QtButton cmdCardHelp{Find<QPushButton>("cmdCardHelp")};
  QtLabel lblCardAddress{Find<QLabel>("lblCardAddress")};
  QtCopyButton cmdCardCopy{Find<QPushButton>("cmdCardCopy")};
};

}  // namespace verlume::qt
