#include "platform_qt/windows/again_bar.h"

#include <QAccessibleWidget>
#include <QHBoxLayout>
#include <QShortcut>

namespace verlume::qt {
namespace {

constexpr int kEdge = 1;  // pixels, between the controls and the edge of the bar
constexpr int kGap = 8;   // between the controls

QAccessibleInterface* AlertOf(const QString&, QObject* object) {
  auto* bar = dynamic_cast<AgainFrame*>(object);
  return bar ? new QAccessibleWidget(bar, QAccessible::AlertMessage) : nullptr;
}

}  // namespace

AgainFrame::AgainFrame(QWidget* area) : FloatingFrame(area, "fraAgain") {
  QAccessible::installFactory(&AlertOf);  // which the second time does nothing
  auto* text = new ElidedLabel(this);
  text->setObjectName(QStringLiteral("lblAgain"));
  QPushButton* close = NewFloatingButton(this, "cmdAgainClose");
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(kGap, kEdge, kEdge, kEdge);
  row->setSpacing(kGap);
  row->addWidget(text, 1);
  row->addWidget(NewFloatingButton(this, "cmdAgain"));
  row->addWidget(close);
  auto* escape = new QShortcut(Qt::Key_Escape, this);
  escape->setContext(Qt::WidgetWithChildrenShortcut);
  connect(escape, &QShortcut::activated, close, &QPushButton::click);
}

QRect AgainFrame::PlaceAt(const QRect& pane) const {
  const int height = sizeHint().height();
  if (minimumSizeHint().width() > pane.width() || height > pane.top()) return {};
  return {pane.left(), pane.top() - height, pane.width(), height};
}

QWidget* QtAgainBar::FollowInTabOrder(QWidget* before) {
  QWidget::setTabOrder(before, cmdAgain.widget());
  QWidget::setTabOrder(cmdAgain.widget(), cmdAgainClose.widget());
  return cmdAgainClose.widget();
}

}  // namespace verlume::qt
