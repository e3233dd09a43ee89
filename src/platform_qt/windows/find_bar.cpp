#include "platform_qt/windows/find_bar.h"

#include <QHBoxLayout>
#include <QShortcut>

namespace verlume::qt {
namespace {

QPushButton* AddButton(QHBoxLayout* row, const char* name) {
  auto* button = new QPushButton;
  button->setObjectName(QLatin1String(name));
  // A click leaves the focus in the text field.
  button->setFocusPolicy(Qt::TabFocus);
  row->addWidget(button);
  return button;
}

// Keys that press the button while `where` has the focus, or as the context says.
void BindKeys(QPushButton* button, QWidget* where, Qt::ShortcutContext context,
              const QList<QKeyCombination>& keys) {
  for (const QKeyCombination& key : keys) {
    auto* shortcut = new QShortcut(QKeySequence(key), where);
    shortcut->setContext(context);
    QObject::connect(shortcut, &QShortcut::activated, button, [button] { button->click(); });
  }
}

}  // namespace

QtTextField::QtTextField(QLineEdit* widget) : QtControl(widget) {
  QObject::connect(widget, &QLineEdit::textEdited, widget, [this] {
    if (onChange) onChange();
  });
}

void QtTextField::SetAccessibleName(std::u16string_view name) {
  QtControl::SetAccessibleName(name);
  widget_->setPlaceholderText(ToQt(name));
}

void QtPanel::SetVisible(bool visible) {
  widget_->setVisible(visible);
  // At once, not when events are handled next: what is scrolled into view must stay there.
  if (QLayout* layout = widget_->parentWidget()->layout()) layout->activate();
}

bool QtPanel::HasFocus() const {
  // The focus within its own window, which need not be active.
  const QWidget* focus = widget_->window()->focusWidget();
  return Visible() && focus && widget_->isAncestorOf(focus);
}

QWidget* NewFindBar(QWidget* parent) {
  auto* bar = new QWidget(parent);
  bar->setObjectName(QStringLiteral("fraFind"));
  auto* row = new QHBoxLayout(bar);
  row->setContentsMargins(0, 4, 0, 0);

  auto* field = new QLineEdit;
  field->setObjectName(QStringLiteral("txtFind"));
  row->addWidget(field, 1);
  QPushButton* previous = AddButton(row, "cmdFindPrevious");
  QPushButton* next = AddButton(row, "cmdFindNext");
  auto* result = new ElidedLabel(bar);
  result->setObjectName(QStringLiteral("lblFindResult"));
  row->addWidget(result, 1);
  QPushButton* close = AddButton(row, "cmdFindClose");

  BindKeys(next, field, Qt::WidgetShortcut, {Qt::Key_Return, Qt::Key_Enter});
  BindKeys(previous, field, Qt::WidgetShortcut,
           {Qt::SHIFT | Qt::Key_Return, Qt::SHIFT | Qt::Key_Enter});
  BindKeys(next, bar, Qt::WindowShortcut, {Qt::Key_F3});
  BindKeys(previous, bar, Qt::WindowShortcut, {Qt::SHIFT | Qt::Key_F3});
  BindKeys(close, bar, Qt::WidgetWithChildrenShortcut, {Qt::Key_Escape});
  bar->hide();
  return bar;
}

}  // namespace verlume::qt
