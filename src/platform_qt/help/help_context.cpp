#include "platform_qt/help/help_context.h"

#include <QAction>
#include <QApplication>
#include <QMenu>
#include <QWidget>

namespace verlume::qt {
namespace {

// False for names that Qt itself gives.
bool IsOwnName(const QString& name) {
  return !name.isEmpty() && !name.startsWith(u'_') && !name.startsWith(QStringLiteral("qt_"));
}

template <class Explained>
void SetWhatsThis(Explained* explained, const QString& text) {
  if (explained->whatsThis() != text) explained->setWhatsThis(text);
}

}  // namespace

QtContextHelp::QtContextHelp(const HelpBook& book) : book_(book) {
  QCoreApplication::instance()->installEventFilter(this);
}

void QtContextHelp::Apply() {
  for (QWidget* widget : QApplication::allWidgets()) Explain(widget);
}

bool QtContextHelp::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::Polish && watched->isWidgetType()) {
    Explain(static_cast<QWidget*>(watched));
  }
  return false;
}

void QtContextHelp::Explain(QWidget* widget) {
  if (IsOwnName(widget->objectName())) {
    const QString text = TextFor(widget->objectName());
    SetWhatsThis(widget, text);
    // The entry of a menu in the menu bar.
    if (auto* menu = qobject_cast<QMenu*>(widget)) SetWhatsThis(menu->menuAction(), text);
  }
  for (QAction* entry : widget->actions()) {
    if (IsOwnName(entry->objectName())) SetWhatsThis(entry, TextFor(entry->objectName()));
  }
}

QString QtContextHelp::TextFor(const QString& name) const {
  const QString problem = book_.ProblemText();
  if (!problem.isEmpty()) return problem.toHtmlEscaped();
  const HelpControl* control = book_.Control(name);
  return control ? control->html : QString();
}

}  // namespace verlume::qt
