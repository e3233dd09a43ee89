#include "platform_qt/dialogs/common_dialog_font.h"

#include <QAbstractItemModel>
#include <QCheckBox>
#include <QColorDialog>
#include <QComboBox>
#include <QCoreApplication>
#include <QFontDatabase>
#include <QGroupBox>
#include <QIntValidator>
#include <QLayout>
#include <QLineEdit>
#include <QListView>
#include <QPointer>
#include <QPushButton>
#include <algorithm>
#include <cmath>

#include "platform_qt/convert/text.h"
#include "platform_qt/dialogs/font_families.h"
#include "platform_qt/dialogs/font_styles.h"

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

// Qt does not name the lists of its dialog. They come in this order, that of the sizes last.
enum List { kFamilies, kStyles };

constexpr QStringView kSample = u"AaBbYy ΑαΒβΩω";

// The sample stands in a box, like the effects, and the other fields do not.
QLineEdit* SampleOf(const QFontDialog& dialog) {
  const QList<QGroupBox*> boxes = dialog.findChildren<QGroupBox*>();
  for (const QGroupBox* box : boxes) {
    if (auto* sample = box->findChild<QLineEdit*>()) return sample;
  }
  return nullptr;
}

// The fields beside a list that show what is chosen there pass the focus on to it.
QLineEdit* FieldOf(const QFontDialog& dialog, const QListView* list) {
  const QList<QLineEdit*> fields = dialog.findChildren<QLineEdit*>();
  const auto found = std::find_if(fields.begin(), fields.end(), [list](const QLineEdit* field) {
    return field->focusProxy() == list;
  });
  return found == fields.end() ? nullptr : *found;
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
  shownSize_ = sizeField_->text();
  sample_ = SampleOf(*this);
  sample_->setText(kSample.toString());
  TakeOverLists();
  AddColorButton();
}

void FontDialog::TakeOverLists() {
  const auto lists = findChildren<QListView*>(Qt::FindDirectChildrenOnly);
  QListView* families = lists.at(kFamilies);
  QListView* styles = lists.at(kStyles);
  styles_ = new FontStyles(styles, FieldOf(*this, styles), [this] { return families_->Shown(); });
  styles_->Set(start_.bold, start_.italic);
  families_ = new FontFamilies(families, FieldOf(*this, families), ToQt(start_.name), [this] {
    styles_->Show();
    CompleteSample();
  });
  families_->Restore();
  connect(this, &QFontDialog::currentFontChanged, this, [this] { CompleteSample(); });
  connect(findChild<QComboBox*>(), &QComboBox::activated, this, [this](int system) {
    if (system == QFontDatabase::Any) sample_->setText(kSample.toString());
    families_->Restore();
    // Qt forgets the size when it finds no family for a writing system.
    sizeField_->setText(shownSize_);
  });
}

// Qt shows the sample in a style that the family has.
void FontDialog::CompleteSample() {
  QFont font = sample_->font();
  if (styles_->Complete(font)) sample_->setFont(font);
}

// Qt does not name the parts of its dialog. The size field is the one that accepts only numbers,
// and the size list the one that contains only numbers.
void FontDialog::LimitSizes() {
  for (QLineEdit* edit : findChildren<QLineEdit*>()) {
    if (!qobject_cast<const QIntValidator*>(edit->validator())) continue;
    edit->setValidator(new QIntValidator(int(std::ceil(minimum_)), int(maximum_), edit));
    sizeField_ = edit;
    connect(edit, &QLineEdit::textChanged, this, [this, edit](const QString& text) {
      if (edit->hasAcceptableInput()) shownSize_ = text;
    });
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
  choice.name = FromQt(families_->Chosen());
  choice.bold = styles_->Bold();
  choice.italic = styles_->Italic();
  choice.underline = font.underline();
  choice.strikethrough = font.strikeOut();
  // The dialog shows a fractional size rounded; it stays unless the user changes it.
  if (font.pointSize() != FontOf(start_).pointSize()) {
    choice.size = std::clamp(font.pointSizeF(), minimum_, maximum_);
  }
  return choice;
}

}  // namespace verlume::qt
