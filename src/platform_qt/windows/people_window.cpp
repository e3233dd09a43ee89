#include "platform_qt/windows/people_window.h"

#include <QFontDatabase>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include "platform_qt/windows/form_parts.h"

namespace verlume::qt {
namespace {

constexpr int kTableColumns = 96;  // the table's width, in average characters
constexpr int kTableRows = 9;

}  // namespace

PeopleForm::PeopleForm(QWidget* mainWindow)
    : ModalForm(mainWindow),
      lblPeopleNone(NewFormCaption(this, "lblPeopleNone")),
      lstPeople(new TableWidget(this)),
      fraPerson(new QWidget(this)),
      lblPeopleNameCaption(NewFormCaption(this, "lblPeopleNameCaption")),
      txtPeopleName(new QLineEdit(this)),
      chkPeopleVerified(new QCheckBox(this)),
      lblPeopleKeyCaption(NewFormCaption(this, "lblPeopleKeyCaption")),
      lblPeopleKey(NewFormText(this, "lblPeopleKey")),
      cmdPeopleForget(NewFormButton(this, "cmdPeopleForget")),
      cmdPeopleClose(NewFormButton(this, "cmdPeopleClose")),
      people_(new QStackedLayout) {
  setObjectName(QStringLiteral("frmPeople"));
  setSizeGripEnabled(true);
  lstPeople->setObjectName(QStringLiteral("lstPeople"));
  fraPerson->setObjectName(QStringLiteral("fraPerson"));
  txtPeopleName->setObjectName(QStringLiteral("txtPeopleName"));
  chkPeopleVerified->setObjectName(QStringLiteral("chkPeopleVerified"));
  lblPeopleNameCaption->setBuddy(txtPeopleName);
  lblPeopleKeyCaption->setBuddy(lblPeopleKey);
  lblPeopleNone->setAlignment(Qt::AlignCenter);
  lblPeopleNone->setWordWrap(true);
  lblPeopleKey->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
  lblPeopleKey->setFocusPolicy(Qt::StrongFocus);
  cmdPeopleForget->setAutoDefault(false);
  cmdPeopleClose->setDefault(true);
  LayOutPerson();
  LayOut();
}

void PeopleForm::LayOutPerson() {
  QSizePolicy stays = fraPerson->sizePolicy();
  stays.setRetainSizeWhenHidden(true);
  fraPerson->setSizePolicy(stays);
  auto* person = new QGridLayout(fraPerson);
  person->setContentsMargins(0, 0, 0, 0);
  person->setColumnStretch(1, 1);
  person->addWidget(lblPeopleNameCaption, 0, 0);
  person->addWidget(txtPeopleName, 0, 1);
  person->addWidget(cmdPeopleForget, 0, 2);
  person->addWidget(chkPeopleVerified, 1, 1, 1, 2);
  person->addWidget(lblPeopleKeyCaption, 2, 0, Qt::AlignTop);
  person->addWidget(lblPeopleKey, 2, 1, 1, 2);
  setTabOrder(lstPeople, txtPeopleName);
  setTabOrder(txtPeopleName, chkPeopleVerified);
  setTabOrder(chkPeopleVerified, lblPeopleKey);
  setTabOrder(lblPeopleKey, cmdPeopleForget);
  setTabOrder(cmdPeopleForget, cmdPeopleClose);
}

void PeopleForm::LayOut() {
  lstPeople->setMinimumSize(FormTableWidth(*this, kTableColumns),
                            fontMetrics().lineSpacing() * kTableRows);
  auto* buttons = new QHBoxLayout;
  buttons->addStretch();
  buttons->addWidget(cmdPeopleClose);
  auto* all = new QVBoxLayout(this);
  people_->addWidget(lstPeople);
  people_->addWidget(lblPeopleNone);
  all->addLayout(people_, 1);
  all->addWidget(fraPerson);
  all->addSpacing(fontMetrics().height() / 2);
  all->addLayout(buttons);
}

void PeopleForm::ShowNone(bool shown) {
  people_->setCurrentIndex(shown ? 1 : 0);
}

void QtNoneLabel::SetCaption(std::u16string_view text) {
  QtLabel::SetCaption(text);
  form_.ShowNone(!text.empty());
}

QtPeopleWindow::QtPeopleWindow(QWidget* mainWindow)
    : form_(mainWindow),
      view_{
          .window = window,
          .lblPeopleNone = lblPeopleNone,
          .lstPeople = lstPeople,
          .fraPerson = fraPerson,
          .lblPeopleNameCaption = lblPeopleNameCaption,
          .txtPeopleName = txtPeopleName,
          .chkPeopleVerified = chkPeopleVerified,
          .lblPeopleKeyCaption = lblPeopleKeyCaption,
          .lblPeopleKey = lblPeopleKey,
          .cmdPeopleForget = cmdPeopleForget,
          .cmdPeopleClose = cmdPeopleClose,
      } {}

}  // namespace verlume::qt
