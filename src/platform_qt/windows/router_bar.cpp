#include "platform_qt/windows/router_bar.h"

#include <QAccessibleWidget>
#include <QHBoxLayout>
#include <QShortcut>
#include <QVBoxLayout>

namespace verlume::qt {
namespace {

constexpr int kRouterBarSpace = 8;  // pixels, inside the bar

QAccessibleInterface* RouterAlertOf(const QString&, QObject* object) {
  auto* bar = dynamic_cast<RouterFrame*>(object);
  return bar ? new QAccessibleWidget(bar, QAccessible::AlertMessage) : nullptr;
}

}  // namespace

RouterFrame::RouterFrame(QWidget* area) : FloatingFrame(area, "fraRouter") {
  QAccessible::installFactory(&RouterAlertOf);  // which the second time does nothing
  auto* question = new QLabel(this);
  question->setObjectName(QStringLiteral("lblRouter"));
  question->setTextFormat(Qt::PlainText);
  question->setWordWrap(true);
  auto* answers = new QHBoxLayout;
  answers->setSpacing(kRouterBarSpace);
  answers->addStretch();
  for (const char* name : {"cmdRouterYes", "cmdRouterNo", "cmdRouterClose"}) {
    QPushButton* answer = NewFloatingButton(this, name);
    answer->setAutoDefault(true);  // Enter on it presses it
    answers->addWidget(answer);
  }
  auto* inside = new QVBoxLayout(this);
  inside->setContentsMargins(kRouterBarSpace, kRouterBarSpace, kRouterBarSpace, kRouterBarSpace);
  inside->setSpacing(kRouterBarSpace);
  inside->addWidget(question, 1);
  inside->addLayout(answers);
  // A layout counts only shown children, and the height is asked for before the bar is shown.
  for (QWidget* child : findChildren<QWidget*>()) child->show();
  auto* escape = new QShortcut(Qt::Key_Escape, this);
  escape->setContext(Qt::WidgetWithChildrenShortcut);
  connect(escape, &QShortcut::activated, findChild<QPushButton*>(QStringLiteral("cmdRouterClose")),
          &QPushButton::click);
}

QRect RouterFrame::PlaceAt(const QRect& pane) const {
  const int height = heightForWidth(pane.width());
  if (minimumSizeHint().width() > pane.width() || height > pane.top()) return {};
  return {pane.left(), pane.top() - height, pane.width(), height};
}

}  // namespace verlume::qt
