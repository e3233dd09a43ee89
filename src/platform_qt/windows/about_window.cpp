#include "platform_qt/windows/about_window.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

namespace verlume::qt {
namespace {

constexpr int kIconSide = 64;
constexpr int kTextColumns = 58;  // average characters per line
constexpr qreal kTitleScale = 1.6;

}  // namespace

AboutForm::AboutForm(QWidget* mainWindow)
    : ModalForm(mainWindow),
      picIcon(new PictureWidget(this)),
      lblTitle(NewText("lblTitle")),
      lblVersion(NewText("lblVersion")),
      lblDescription(NewText("lblDescription")),
      lblDisclaimer(NewText("lblDisclaimer")),
      lblCredit(NewText("lblCredit")),
      cmdOK(NewButton("cmdOK")),
      cmdSysInfo(NewButton("cmdSysInfo")) {
  setObjectName(QStringLiteral("frmAbout"));
  picIcon->setObjectName(QStringLiteral("picIcon"));
  picIcon->SetIcon(mainWindow->windowIcon());
  picIcon->setFixedSize(kIconSide, kIconSide);
  QFont large = lblTitle->font();
  large.setPointSizeF(large.pointSizeF() * kTitleScale);
  large.setWeight(QFont::DemiBold);
  lblTitle->setFont(large);
  lblDescription->setMinimumWidth(fontMetrics().averageCharWidth() * kTextColumns);
  cmdOK->setDefault(true);
  LayOut();
}

// The text can be selected and copied, by mouse and keyboard.
QLabel* AboutForm::NewText(const char* name) {
  auto* text = new QLabel(this);
  text->setObjectName(QLatin1String(name));
  text->setTextFormat(Qt::PlainText);
  text->setWordWrap(true);
  text->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  // A selectable text has a context menu of its own, which would take the release of the right
  // button.
  text->setContextMenuPolicy(Qt::PreventContextMenu);
  return text;
}

QPushButton* AboutForm::NewButton(const char* name) {
  auto* button = new QPushButton(this);
  button->setObjectName(QLatin1String(name));
  return button;
}

void AboutForm::LayOut() {
  auto* texts = new QVBoxLayout;
  texts->addWidget(lblTitle);
  texts->addWidget(lblVersion);
  for (QLabel* paragraph : {lblDescription, lblDisclaimer, lblCredit}) {
    texts->addSpacing(fontMetrics().height() / 2);
    texts->addWidget(paragraph);
  }
  auto* upper = new QHBoxLayout;
  upper->addWidget(picIcon, 0, Qt::AlignTop);
  upper->addSpacing(fontMetrics().height() / 2);
  upper->addLayout(texts);
  auto* buttons = new QHBoxLayout;
  buttons->addWidget(cmdSysInfo);
  buttons->addStretch();
  buttons->addWidget(cmdOK);
  auto* all = new QVBoxLayout(this);
  all->addLayout(upper);
  all->addSpacing(fontMetrics().height());
  all->addLayout(buttons);
  // As large as the texts of the current language need.
  all->setSizeConstraint(QLayout::SetFixedSize);
}

void AboutForm::showEvent(QShowEvent* event) {
  for (QLabel* text : {lblTitle, lblVersion, lblDescription, lblDisclaimer, lblCredit}) {
    text->setSelection(0, 0);
  }
  ModalForm::showEvent(event);
}

QtAboutWindow::QtAboutWindow(QWidget* mainWindow)
    : form_(mainWindow),
      view_{
          .window = window,
          .picIcon = picIcon,
          .lblTitle = lblTitle,
          .lblVersion = lblVersion,
          .lblDescription = lblDescription,
          .lblDisclaimer = lblDisclaimer,
          .lblCredit = lblCredit,
          .cmdOK = cmdOK,
          .cmdSysInfo = cmdSysInfo,
      } {}

}  // namespace verlume::qt
