#include "platform_qt/controls/digits_view.h"

#include <QAccessibleWidget>
#include <QFontDatabase>
#include <QRegularExpression>

namespace verlume::qt {
namespace {

constexpr qsizetype kGroup = 5;
constexpr int kGroupsInARow = 4;
constexpr qreal kDigitScale = 1.3;

class DigitsInterface : public QAccessibleWidget {
 public:
  explicit DigitsInterface(DigitsWidget* digits)
      : QAccessibleWidget(digits, QAccessible::StaticText), digits_(digits) {}

  QString text(QAccessible::Text kind) const override {
    if (kind != QAccessible::Name) return QAccessibleWidget::text(kind);
    return digits_->accessibleName() + QStringLiteral(": ") + digits_->Spelled();
  }

 private:
  DigitsWidget* digits_;
};

QAccessibleInterface* DigitsInterfaceOf(const QString&, QObject* object) {
  auto* digits = dynamic_cast<DigitsWidget*>(object);
  return digits ? new DigitsInterface(digits) : nullptr;
}

QString InGroups(std::u16string_view digits) {
  QString text;
  qsizetype count = 0;
  for (const char16_t unit : digits) {
    if (unit < u'0' || unit > u'9') continue;
    if (count > 0 && count % (kGroup * kGroupsInARow) == 0) {
      text += u'\n';
    } else if (count > 0 && count % kGroup == 0) {
      text += u' ';
    }
    text += QChar(unit);
    ++count;
  }
  return text;
}

}  // namespace

DigitsWidget::DigitsWidget(QWidget* parent) : QLabel(parent) {
  QAccessible::installFactory(&DigitsInterfaceOf);  // which the second time does nothing
  QFont fixed = QFontDatabase::systemFont(QFontDatabase::FixedFont);
  fixed.setStyleHint(QFont::Monospace);
  fixed.setFixedPitch(true);
  fixed.setPointSizeF(font().pointSizeF() * kDigitScale);
  setFont(fixed);
  setTextFormat(Qt::PlainText);
  setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  setFocusPolicy(Qt::StrongFocus);  // which Qt gives to no such label
  // Its own context menu would take the release of the right button, which is for help.
  setContextMenuPolicy(Qt::PreventContextMenu);
}

QString DigitsWidget::Spelled() const {
  QStringList groups;
  for (const QString& group : text().split(QRegularExpression(QStringLiteral("\\s")))) {
    groups.append(group.split(QString(), Qt::SkipEmptyParts).join(u' '));
  }
  return groups.join(QStringLiteral(", "));
}

void QtDigitsView::SetDigits(std::u16string_view digits) {
  widget_->setText(InGroups(digits));
}

}  // namespace verlume::qt
