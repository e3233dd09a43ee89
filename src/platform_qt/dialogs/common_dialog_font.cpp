#include "platform_qt/dialogs/common_dialog_font.h"

#include <QAbstractItemModel>
#include <QCheckBox>
#include <QColorDialog>
#include <QCoreApplication>
#include <QIntValidator>
#include <QLayout>
#include <QLineEdit>
#include <QListView>
#include <QPointer>
#include <QPushButton>
#include <algorithm>
#include <cmath>

#include "platform_qt/convert/text.h"

namespace verlume::qt {
namespace {

QFont FontOf(const FontChoice& choice) {
  QFont font;
  font.setFamilies({ToQt(choice.name)});
  font.setPointSizeF(choice.size);
  font.setBold(choice.bold);
  font.setItalic(choice.italic);
  font.setUnderline(choice.underline);
  font.setStrikeOut(choice.strikethrough);
  return font;
}

void ShowColorOn(QPushButton* button, Color color) {
  QPixmap sample(button->iconSize());
  sample.fill(ToQt(color));
  button->setIcon(sample);
}

}  // namespace

FontDialog::FontDialog(QWidget* owner, const FontChoice& start, double minimumSize,
                       double maximumSize)
    : QFontDialog(owner), start_(start), minimum_(minimumSize), maximum_(maximumSize) {
  setObjectName(QStringLiteral("fontDialog"));
  setOption(DontUseNativeDialog);
  start_.size = std::clamp(start.size, minimum_, maximum_);
  LimitSizes();
  setCurrentFont(FontOf(start_));
  shownFamily_ = currentFont().family();
  AddColorButton();
}

// Qt does not name the parts of its dialog. The size field is the one that accepts only numbers,
// and the size list the one that contains only numbers.
void FontDialog::LimitSizes() {
  for (QLineEdit* edit : findChildren<QLineEdit*>()) {
    if (!qobject_cast<const QIntValidator*>(edit->validator())) continue;
    edit->setValidator(new QIntValidator(int(std::ceil(minimum_)), int(maximum_), edit));
  }
  const QList<QListView*> lists = findChildren<QListView*>();
  for (QListView* list : lists) {
    connect(list->model(), &QAbstractItemModel::modelReset, this,
            [this, list] { HideSizesOutside(list); });
    HideSizesOutside(list);
  }
}

void FontDialog::HideSizesOutside(QListView* sizes) const {
  const QAbstractItemModel* model = sizes->model();
  // A list with anything but numbers is one of names.
  for (int row = 0; row < model->rowCount(); ++row) {
    bool isNumber = false;
    model->index(row, 0).data().toString().toInt(&isNumber);
    if (!isNumber) return;
  }
  for (int row = 0; row < model->rowCount(); ++row) {
    const int size = model->index(row, 0).data().toString().toInt();
    sizes->setRowHidden(row, size < minimum_ || size > maximum_);
  }
}

// The colour is placed with the effects, whose check boxes are the only ones in the dialog.
void FontDialog::AddColorButton() {
  const auto* effect = findChild<QCheckBox*>();
  QLayout* effects = effect ? effect->parentWidget()->layout() : layout();
  auto* button = new QPushButton(QCoreApplication::translate("FontDialog", "Co&lor..."), this);
  button->setObjectName(QStringLiteral("cmdColor"));
  button->setAutoDefault(false);
  ShowColorOn(button, start_.color);
  connect(button, &QPushButton::clicked, this, [this, button] { ChooseColor(button); });
  effects->addWidget(button);
}

void FontDialog::ChooseColor(QPushButton* button) {
  const QPointer<QColorDialog> colors = new QColorDialog(ToQt(start_.color), this);
  colors->setOption(QColorDialog::DontUseNativeDialog);
  const bool accepted = colors->exec() == QDialog::Accepted;
  // It is deleted with this dialog if the program ends meanwhile.
  if (!colors) return;
  if (accepted) start_.color = FromQt(colors->selectedColor());
  colors->deleteLater();
  ShowColorOn(button, start_.color);
}

FontChoice FontDialog::Choice() const {
  const QFont font = selectedFont();
  FontChoice choice = start_;
  if (font.family() != shownFamily_) choice.name = FromQt(font.family());
  choice.bold = font.bold();
  choice.italic = font.style() != QFont::StyleNormal;
  choice.underline = font.underline();
  choice.strikethrough = font.strikeOut();
  // The dialog shows a fractional size rounded; it stays unless the user changes it.
  if (font.pointSize() != FontOf(start_).pointSize()) {
    choice.size = std::clamp(font.pointSizeF(), minimum_, maximum_);
  }
  return choice;
}

}  // namespace verlume::qt
