#include "platform_qt/windows/reach_window.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include "platform_qt/windows/form_parts.h"

namespace verlume::qt {
namespace {

constexpr int kReachColumns = 96;  // the table's width, in average characters
constexpr int kReachRows = 6;

}  // namespace

ReachForm::ReachForm(QWidget* mainWindow)
    : ModalForm(mainWindow),
      lstReachAddresses(new TableWidget(this)),
      lblReachRouterCaption(NewFormCaption(this, "lblReachRouterCaption")),
      lblReachRouter(new WrappedText(this)),
      lblReachFirewallCaption(NewFormCaption(this, "lblReachFirewallCaption")),
      lblReachFirewall(new WrappedText(this)),
      lblReachAdviceCaption(NewFormCaption(this, "lblReachAdviceCaption")),
      lblReachAdvice(new WrappedText(this)),
      lblReachAddressCaption(NewFormCaption(this, "lblReachAddressCaption")),
      txtReachAddress(new QLineEdit(this)),
      cmdReachCopyAddress(NewFormButton(this, "cmdReachCopyAddress")),
      cmdReachCopyInvitation(NewFormButton(this, "cmdReachCopyInvitation")),
      cmdReachAgain(NewFormButton(this, "cmdReachAgain")),
      cmdReachClose(NewFormButton(this, "cmdReachClose")) {
  setObjectName(QStringLiteral("frmReach"));
  setSizeGripEnabled(true);
  lstReachAddresses->setObjectName(QStringLiteral("lstReachAddresses"));
  lblReachRouter->setObjectName(QStringLiteral("lblReachRouter"));
  lblReachFirewall->setObjectName(QStringLiteral("lblReachFirewall"));
  lblReachAdvice->setObjectName(QStringLiteral("lblReachAdvice"));
  txtReachAddress->setObjectName(QStringLiteral("txtReachAddress"));
  txtReachAddress->setReadOnly(true);
  for (QPushButton* button : {cmdReachCopyAddress, cmdReachCopyInvitation, cmdReachAgain}) {
    button->setAutoDefault(false);
  }
  cmdReachClose->setDefault(true);
  LayOut();
}

void ReachForm::LayOut() {
  lstReachAddresses->setMinimumSize(FormTableWidth(*this, kReachColumns),
                                    fontMetrics().lineSpacing() * kReachRows);
  auto* found = new QGridLayout;
  found->setColumnStretch(1, 1);
  const std::initializer_list<std::pair<QLabel*, QWidget*>> rows = {
      {lblReachRouterCaption, lblReachRouter},
      {lblReachFirewallCaption, lblReachFirewall},
      {lblReachAdviceCaption, lblReachAdvice},
      {lblReachAddressCaption, txtReachAddress}};
  for (const auto& [caption, value] : rows) {
    caption->setBuddy(value);
    const int row = found->rowCount();
    found->addWidget(caption, row, 0, value == txtReachAddress ? Qt::AlignVCenter : Qt::AlignTop);
    found->addWidget(value, row, 1);
  }
  auto* copies = new QHBoxLayout;
  copies->addWidget(cmdReachCopyAddress);
  copies->addWidget(cmdReachCopyInvitation);
  copies->addStretch();
  found->addLayout(copies, found->rowCount(), 1);
  auto* all = new QVBoxLayout(this);
  all->addWidget(lstReachAddresses, 1);
  all->addLayout(found);
  all->addSpacing(fontMetrics().height() / 2);
  all->addLayout(NewButtonRow());
}

QLayout* ReachForm::NewButtonRow() {
  auto* buttons = new QHBoxLayout;
  buttons->addWidget(cmdReachAgain);
  buttons->addStretch();
  buttons->addWidget(cmdReachClose);
  return buttons;
}

bool ReachForm::event(QEvent* event) {
  const bool handled = ModalForm::event(event);
  const bool changes = event->type() == QEvent::LayoutRequest || event->type() == QEvent::Resize;
  if (changes && isVisible()) setMinimumHeight(layout()->totalMinimumHeightForWidth(width()));
  return handled;
}

QtReachWindow::QtReachWindow(QWidget* mainWindow)
    : form_(mainWindow),
      view_{
          .window = window,
          .lstReachAddresses = lstReachAddresses,
          .lblReachRouterCaption = lblReachRouterCaption,
          .lblReachRouter = lblReachRouter,
          .lblReachFirewallCaption = lblReachFirewallCaption,
          .lblReachFirewall = lblReachFirewall,
          .lblReachAdviceCaption = lblReachAdviceCaption,
          .lblReachAdvice = lblReachAdvice,
          .lblReachAddressCaption = lblReachAddressCaption,
          .txtReachAddress = txtReachAddress,
          .cmdReachCopyAddress = cmdReachCopyAddress,
          .cmdReachCopyInvitation = cmdReachCopyInvitation,
          .cmdReachAgain = cmdReachAgain,
          .cmdReachClose = cmdReachClose,
      } {}

}  // namespace verlume::qt
