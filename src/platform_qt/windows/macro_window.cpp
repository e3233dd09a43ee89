#include "platform_qt/windows/macro_window.h"

#include <QHBoxLayout>
#include <QScreen>
#include <QWindow>

#include "platform_qt/controls/swatch_label.h"
#include "platform_qt/controls/toggle_box.h"

#include "platform_qt/controls/key_codes.h"

namespace verlume::qt {
namespace {

// The width of list and text box in average characters, and the height of the text box in lines.
constexpr int kNameColumns = 24;
constexpr int kMacroTextColumns = 48;
constexpr int kTextLines = 9;
constexpr QSize kColour(44, 17);

}  // namespace

MacroForm::MacroForm(QWidget* mainWindow)
    : ModalForm(mainWindow),
      lstMacroNames(new ListWidget(this)),
      chkBold(NewBox("chkBold")),
      chkItalics(NewBox("chkItalics")),
      chkUnderlined(NewBox("chkUnderlined")),
      lblColour(NewColour()),
      cmdAdd(NewButton("cmdAdd")),
      cmdEdit(NewButton("cmdEdit")),
      cmdSave(NewButton("cmdSave")),
      cmdSaveAs(NewButton("cmdSaveAs")),
      cmdCancel(NewButton("cmdCancel")),
      cmdDelete(NewButton("cmdDelete")),
      cmdRun(NewButton("cmdRun")),
      cmdClose(NewButton("cmdClose")) {
  setObjectName(QStringLiteral("frmMacros"));
  setSizeGripEnabled(true);
  lstMacroNames->setObjectName(QStringLiteral("lstMacroNames"));
  LayOut();
}

QCheckBox* MacroForm::NewBox(const char* name) {
  auto* box = new ToggleBox(this);
  box->setObjectName(QLatin1String(name));
  return box;
}

QPushButton* MacroForm::NewButton(const char* name) {
  auto* button = new QPushButton(this);
  button->setObjectName(QLatin1String(name));
  button->setAutoDefault(false);
  return button;
}

ElidedLabel* MacroForm::NewColour() {
  auto* colour = new SwatchLabel(this);
  colour->setObjectName(QStringLiteral("lblColour"));
  colour->setFixedSize(kColour);
  return colour;
}

void MacroForm::LayOut() {
  auto* style = new QHBoxLayout;
  for (QCheckBox* box : {chkBold, chkItalics, chkUnderlined}) style->addWidget(box);
  style->addWidget(lblColour);
  style->addStretch();
  textSide_ = new QVBoxLayout;
  textSide_->addLayout(style);

  auto* buttons = new QVBoxLayout;
  for (QPushButton* button : {cmdAdd, cmdEdit, cmdSave, cmdSaveAs, cmdCancel, cmdDelete}) {
    buttons->addWidget(button);
  }
  buttons->addStretch();
  buttons->addWidget(cmdRun);
  buttons->addWidget(cmdClose);

  lstMacroNames->setMinimumWidth(fontMetrics().averageCharWidth() * kNameColumns);
  auto* all = new QHBoxLayout(this);
  all->addWidget(lstMacroNames, 1);
  all->addLayout(textSide_, 2);
  all->addLayout(buttons);
}

void MacroForm::PlaceText(QWidget* text) {
  text->setObjectName(QStringLiteral("rtbMacroText"));
  text->setMinimumSize(fontMetrics().averageCharWidth() * kMacroTextColumns,
                       fontMetrics().lineSpacing() * kTextLines);
  textSide_->addWidget(text, 1);
  // The Tab order: list, style, text, buttons.
  setTabOrder(lstMacroNames, chkBold);
  setTabOrder(chkUnderlined, text);
  setTabOrder(text, cmdAdd);
}

void MacroForm::showEvent(QShowEvent* event) {
  if (!event->spontaneous()) Centre();
  ModalForm::showEvent(event);
}

void MacroForm::Centre() {
  // The window has no frame yet, so the frame of the main window is measured.
  const QWidget* mainWindow = parentWidget() ? parentWidget()->window() : this;
  const QWindow* native = mainWindow->windowHandle();
  const QMargins frame = native ? native->frameMargins() : QMargins();
  const QRect screen = mainWindow->screen()->geometry();
  const QSize free = (screen.size() - size().grownBy(frame)).expandedTo({0, 0});
  const QPoint corner = screen.topLeft() + QPoint(free.width(), free.height()) / 2;
  setGeometry(QRect(corner + QPoint(frame.left(), frame.top()), size()));
}

void MacroForm::keyPressEvent(QKeyEvent* event) {
  if (!IsEnter(*event)) return ModalForm::keyPressEvent(event);
  if (auto* button = qobject_cast<QPushButton*>(focusWidget())) button->click();
}

void QtMacroText::SetLocked(bool locked) {
  QtRichTextBox::SetLocked(locked);
  widget_->setFocusPolicy(locked ? Qt::ClickFocus : Qt::StrongFocus);
}

QtMacroWindow::QtMacroWindow(QWidget* mainWindow, FileSystem& files)
    : form_(mainWindow),
      rtbMacroText(&form_, files),
      view_{
          .window = window,
          .lstMacroNames = lstMacroNames,
          .rtbMacroText = rtbMacroText,
          .cmdAdd = cmdAdd,
          .cmdEdit = cmdEdit,
          .cmdSave = cmdSave,
          .cmdSaveAs = cmdSaveAs,
          .cmdCancel = cmdCancel,
          .cmdDelete = cmdDelete,
          .cmdRun = cmdRun,
          .cmdClose = cmdClose,
          .lblColour = lblColour,
          .chkBold = chkBold,
          .chkItalics = chkItalics,
          .chkUnderlined = chkUnderlined,
      } {
  form_.PlaceText(rtbMacroText.widget());
}

}  // namespace verlume::qt
