// frmReach, implemented with Qt. Each widget has the name of its control.
#pragma once

#include "platform/reach_window.h"
#include "platform_qt/controls/controls.h"
#include "platform_qt/controls/table_box.h"
#include "platform_qt/controls/wrapped_text.h"
#include "platform_qt/windows/find_bar.h"
#include "platform_qt/windows/modal_form.h"
#include "platform_qt/windows/window.h"

namespace verlume::qt {

class ReachForm : public ModalForm {
 public:
  explicit ReachForm(QWidget* mainWindow);

  TableWidget* const lstReachAddresses;
  QLabel* const lblReachRouterCaption;
  WrappedText* const lblReachRouter;
  QLabel* const lblReachFirewallCaption;
  WrappedText* const lblReachFirewall;
  QLabel* const lblReachAdviceCaption;
  WrappedText* const lblReachAdvice;
  QLabel* const lblReachAddressCaption;
  QLineEdit* const txtReachAddress;
  QPushButton* const cmdReachCopyAddress;
  QPushButton* const cmdReachCopyInvitation;
  QPushButton* const cmdReachAgain;
  QPushButton* const cmdReachClose;

 protected:
  // While it is shown it grows with its texts.
  bool event(QEvent* event) override;

 private:
  void LayOut();
  QLayout* NewButtonRow();
};

// A field that only shows: empty, it does not invite to fill it in.
class QtShownField : public QtTextField {
 public:
  using QtTextField::QtTextField;
  void SetAccessibleName(std::u16string_view name) override { QtControl::SetAccessibleName(name); }
};

class QtReachWindow {
 public:
  explicit QtReachWindow(QWidget* mainWindow);

  ReachWindow& View() { return view_; }
  ReachForm& form() { return form_; }
  const ReachForm& form() const { return form_; }

 private:
  ReachForm form_;

  QtWindow window{&form_};
  QtTableBox lstReachAddresses{form_.lstReachAddresses};
  QtLabel lblReachRouterCaption{form_.lblReachRouterCaption};
  QtWrappedText lblReachRouter{form_.lblReachRouter};
  QtLabel lblReachFirewallCaption{form_.lblReachFirewallCaption};
  QtWrappedText lblReachFirewall{form_.lblReachFirewall};
  QtLabel lblReachAdviceCaption{form_.lblReachAdviceCaption};
  QtWrappedText lblReachAdvice{form_.lblReachAdvice};
  QtLabel lblReachAddressCaption{form_.lblReachAddressCaption};
  QtShownField txtReachAddress{form_.txtReachAddress};
  QtButton cmdReachCopyAddress{form_.cmdReachCopyAddress};
  QtButton cmdReachCopyInvitation{form_.cmdReachCopyInvitation};
  QtButton cmdReachAgain{form_.cmdReachAgain};
  QtButton cmdReachClose{form_.cmdReachClose};

  // The logic's view of the window.
  ReachWindow view_;
};

}  // namespace verlume::qt
