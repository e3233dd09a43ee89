#include "platform_qt/qt_common_dialog_font.h"

#include <QAbstractItemModel>
#include <QIntValidator>
#include <QLineEdit>
#include <QListView>
#include <algorithm>
#include <cmath>

#include "platform_qt/qt_text.h"

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
}

// Qt gives no names to the parts of its dialog: the edit of the size is the one that takes numbers
// alone, the list of the sizes the one that holds numbers alone.
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
  // A list of anything but numbers is one of names.
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

FontChoice FontDialog::Choice() const {
  const QFont font = selectedFont();
  FontChoice choice = start_;
  if (font.family() != shownFamily_) choice.name = FromQt(font.family());
  choice.bold = font.bold();
  choice.italic = font.style() != QFont::StyleNormal;
  choice.underline = font.underline();
  choice.strikethrough = font.strikeOut();
  // A size with a fraction, which the dialog shows rounded, stays while the user leaves it alone.
  if (font.pointSize() != FontOf(start_).pointSize()) {
    choice.size = std::clamp(font.pointSizeF(), minimum_, maximum_);
  }
  return choice;
}

}  // namespace verlume::qt
