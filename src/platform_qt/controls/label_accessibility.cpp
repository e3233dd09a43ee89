#include "platform_qt/controls/label_accessibility.h"

#include <QAccessibleWidget>

#include "platform_qt/controls/controls_label.h"

namespace verlume::qt {
namespace {

class LabelInterface : public QAccessibleWidget {
 public:
  explicit LabelInterface(ElidedLabel* label)
      : QAccessibleWidget(label, QAccessible::StaticText), label_(label) {}

  QString text(QAccessible::Text kind) const override {
    return kind == QAccessible::Name ? Name() : QAccessibleWidget::text(kind);
  }

  QAccessible::State state() const override {
    QAccessible::State state = QAccessibleWidget::state();
    if (IsCaption()) state.invisible = true;
    return state;
  }

  // No relation of a value to its caption: some screen readers would read both.
  QVector<QPair<QAccessibleInterface*, QAccessible::Relation>> relations(
      QAccessible::Relation) const override {
    return {};
  }

 private:
  bool IsCaption() const { return label_->buddy() != nullptr; }

  QString Name() const {
    if (IsCaption()) return {};
    const QString name = label_->accessibleName();
    const QString value = label_->text();
    if (name.isEmpty() || value.isEmpty()) return name + value;
    return name + QStringLiteral(": ") + value;
  }

  ElidedLabel* label_;
};

}  // namespace

QAccessibleInterface* NewLabelInterface(const QString&, QObject* object) {
  auto* label = dynamic_cast<ElidedLabel*>(object);
  return label ? new LabelInterface(label) : nullptr;
}

}  // namespace verlume::qt
