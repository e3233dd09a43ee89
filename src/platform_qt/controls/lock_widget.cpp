#include "platform_qt/controls/lock_widget.h"

#include <QAccessibleWidget>
#include <QKeyEvent>
#include <QPainter>
#include <QStyleOptionFocusRect>
#include <algorithm>

#include "platform_qt/controls/key_codes.h"
#include "platform_qt/controls/lock_picture.h"

namespace verlume::qt {
namespace {

constexpr int kBesidePicture = 5;  // pixels, between picture and sentence
constexpr int kAroundFocus = 2;

class LockInterface : public QAccessibleWidget {
 public:
  explicit LockInterface(LockWidget* lock)
      : QAccessibleWidget(lock, QAccessible::Button), lock_(lock) {}

  QString text(QAccessible::Text kind) const override {
    return kind == QAccessible::Name ? lock_->text() : QAccessibleWidget::text(kind);
  }
  QStringList actionNames() const override {
    return QStringList{pressAction()} + QAccessibleWidget::actionNames();
  }
  void doAction(const QString& action) override {
    if (action == pressAction()) return lock_->Press();
    QAccessibleWidget::doAction(action);
  }

 private:
  LockWidget* lock_;
};

QAccessibleInterface* LockInterfaceOf(const QString&, QObject* object) {
  auto* lock = dynamic_cast<LockWidget*>(object);
  return lock ? new LockInterface(lock) : nullptr;
}

}  // namespace

LockWidget::LockWidget(QWidget* parent) : ElidedLabel(parent) {
  setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
  setWordWrap(true);
  setFocusPolicy(Qt::TabFocus);
  setCursor(Qt::PointingHandCursor);
  KeepRoomForPicture();
  // Asked before that of the labels, because it comes later. Does nothing but the first time.
  QAccessible::installFactory(&LockInterfaceOf);
}

void LockWidget::SetPicture(LockPicture picture) {
  picture_ = picture;
  update();
}

void LockWidget::paintEvent(QPaintEvent*) {
  LookAtFonts();
  QPainter painter(this);
  bool cut = false;
  const QStringList lines = VisibleLines(cut);
  const QRect area = contentsRect();
  int widest = 0;
  for (const QString& line : lines) {
    widest = std::max(widest, fontMetrics().horizontalAdvance(line));
  }
  const int height = fontMetrics().height();
  const int left = area.right() + 1 - std::min(widest, area.width());
  QRect place(left, area.top() + (area.height() - height * int(lines.size())) / 2, area.width(),
              height);
  const QRect picture(left - kBesidePicture - height, area.top() + (area.height() - height) / 2,
                      height, height);
  PaintLock(painter, picture, picture_, palette());
  painter.setPen(palette().color(foregroundRole()));
  for (const QString& line : lines) {
    painter.drawText(place, int(Qt::AlignLeft | Qt::AlignVCenter) | Qt::TextSingleLine, line);
    place.translate(0, height);
  }
  if (!hasFocus()) return;
  QStyleOptionFocusRect focus;
  focus.initFrom(this);
  focus.rect = QRect(picture.left(), 0, width() - picture.left(), this->height())
                   .adjusted(-kAroundFocus, 0, 0, 0);
  style()->drawPrimitive(QStyle::PE_FrameFocusRect, &focus, &painter, this);
}

void LockWidget::keyPressEvent(QKeyEvent* event) {
  if (IsEnter(*event) || event->key() == Qt::Key_Space) return Press();
  ElidedLabel::keyPressEvent(event);
}

void LockWidget::changeEvent(QEvent* event) {
  if (event->type() == QEvent::FontChange) KeepRoomForPicture();
  ElidedLabel::changeEvent(event);
}

void LockWidget::KeepRoomForPicture() {
  setContentsMargins(fontMetrics().height() + kBesidePicture + kAroundFocus, 0, kAroundFocus, 0);
}

}  // namespace verlume::qt
