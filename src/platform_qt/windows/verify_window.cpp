#include "platform_qt/windows/verify_window.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

#include "platform_qt/windows/form_parts.h"

namespace verlume::qt {
namespace {

constexpr int kVerifyColumns = 66;  // average characters per line

}  // namespace

VerifyForm::VerifyForm(QWidget* mainWindow)
    : ModalForm(mainWindow),
      lblVerifyWho(NewFormText(this, "lblVerifyWho")),
      lblVerifyDigits(new DigitsWidget(this)),
      picVerifyCode(new CodeWidget(this)),
      lblVerifyMeaning(NewFormText(this, "lblVerifyMeaning")),
      cmdVerifyCopy(NewFormButton(this, "cmdVerifyCopy")),
      cmdVerifyMatch(NewFormButton(this, "cmdVerifyMatch")),
      cmdVerifyClose(NewFormButton(this, "cmdVerifyClose")) {
  setObjectName(QStringLiteral("frmVerify"));
  lblVerifyDigits->setObjectName(QStringLiteral("lblVerifyDigits"));
  picVerifyCode->setObjectName(QStringLiteral("picVerifyCode"));
  for (QPushButton* button : {cmdVerifyCopy, cmdVerifyMatch}) button->setAutoDefault(false);
  cmdVerifyClose->setDefault(true);
  LayOut();
}

void VerifyForm::showEvent(QShowEvent* event) {
  for (QLabel* text : {lblVerifyWho, lblVerifyMeaning}) text->setSelection(0, 0);
  lblVerifyDigits->setSelection(0, 0);
  lblVerifyDigits->setFocus();
  ModalForm::showEvent(event);
}

void VerifyForm::LayOut() {
  auto* proof = new QHBoxLayout;
  proof->addStretch();
  proof->addWidget(lblVerifyDigits);
  proof->addSpacing(fontMetrics().height());
  proof->addWidget(picVerifyCode);
  proof->addStretch();
  auto* buttons = new QHBoxLayout;
  buttons->addWidget(cmdVerifyCopy);
  buttons->addStretch();
  buttons->addWidget(cmdVerifyMatch);
  buttons->addWidget(cmdVerifyClose);
  lblVerifyMeaning->setMinimumWidth(fontMetrics().averageCharWidth() * kVerifyColumns);
  auto* all = new QVBoxLayout(this);
  all->addWidget(lblVerifyWho);
  all->addLayout(proof);
  all->addWidget(lblVerifyMeaning);
  all->addSpacing(fontMetrics().height() / 2);
  all->addLayout(buttons);
  // As large as the texts of the current language need.
  all->setSizeConstraint(QLayout::SetFixedSize);
}

QtVerifyWindow::QtVerifyWindow(QWidget* mainWindow)
    : form_(mainWindow),
      view_{
          .window = window,
          .lblVerifyWho = lblVerifyWho,
          .lblVerifyDigits = lblVerifyDigits,
          .picVerifyCode = picVerifyCode,
          .lblVerifyMeaning = lblVerifyMeaning,
          .cmdVerifyCopy = cmdVerifyCopy,
          .cmdVerifyMatch = cmdVerifyMatch,
          .cmdVerifyClose = cmdVerifyClose,
      } {}

}  // namespace verlume::qt
