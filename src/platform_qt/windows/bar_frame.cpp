#include "platform_qt/windows/bar_frame.h"

#include <QAccessibleWidget>
#include <QHBoxLayout>
#include <QShortcut>
#include <algorithm>

namespace verlume::qt {
namespace {

constexpr int kEdge = 1;  // pixels, between the controls and the edge of the bar
constexpr int kGap = 8;   // between the controls

QAccessibleInterface* BarAlertOf(const QString&, QObject* object) {
  auto* bar = dynamic_cast<BarFrame*>(object);
  return bar ? new QAccessibleWidget(bar, QAccessible::AlertMessage) : nullptr;
}

}  // namespace

BarFrame::BarFrame(QWidget* area, const char* name, const char* text,
                   std::initializer_list<const char*> buttons)
    : FloatingFrame(area, name) {
  QAccessible::installFactory(&BarAlertOf);  // which the second time does nothing
  text_ = new ElidedLabel(this);
  text_->setObjectName(QLatin1String(text));
  text_->setWordWrap(true);
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(kGap, kEdge, kEdge, kEdge);
  row->setSpacing(kGap);
  row->addWidget(text_, 1);
  for (const char* button : buttons) row->addWidget(NewFloatingButton(this, button));
  auto* escape = new QShortcut(Qt::Key_Escape, this);
  escape->setContext(Qt::WidgetWithChildrenShortcut);
  connect(escape, &QShortcut::activated, findChildren<QPushButton*>().last(), &QPushButton::click);
}

QRect BarFrame::PlaceAt(const QRect& pane) const {
  const int room = pane.width() - minimumSizeHint().width();  // for the text
  int height = sizeHint().height();
  if (text_->sizeHint().width() > room) {
    const QMargins edges = contentsMargins() + kEdge;
    height = std::max(height, 2 * text_->fontMetrics().height() + edges.top() + edges.bottom());
  }
  if (room < 0 || height > pane.top()) return {};
  return {pane.left(), pane.top() - height, pane.width(), height};
}

}  // namespace verlume::qt
