#include "platform_qt/controls/controls.h"

#include <QAccessible>
#include <QPainter>
#include <algorithm>
#include <chrono>

#include "platform_qt/controls/proportional_layout.h"

namespace verlume::qt {

void QtLabel::SetCaption(std::u16string_view text) {
  const QString caption = ToQt(text);
  if (caption == widget_->text()) return;
  widget_->setText(caption);
  // Qt itself says so only of a label that has no accessible name.
  QAccessibleEvent renamed(widget_, QAccessible::NameChanged);
  QAccessible::updateAccessibility(&renamed);
}

void QtLabel::SetBackColor(Color color) {
  QPalette palette = widget_->palette();
  palette.setColor(widget_->backgroundRole(), ToQt(color));
  widget_->setPalette(palette);
}

void QtLabel::SetHeight(int height) {
  SetDesignHeight(widget_, height);
}

int QtPicture::Height() const {
  return DesignHeight(widget_);
}

PictureWidget::PictureWidget(QWidget* parent) : QWidget(parent) {}

void PictureWidget::SetIcon(const QIcon& icon) {
  icon_ = icon;
  update();
}

void PictureWidget::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  icon_.paint(&painter, rect());
}

LampWidget::LampWidget(QWidget* frame) : QWidget(frame) {
  setAttribute(Qt::WA_TransparentForMouseEvents);
}

void LampWidget::SetColors(const QColor& fill, const QColor& border) {
  fill_ = fill;
  border_ = border;
  update();
}

void LampWidget::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const qreal side = 0.7 * std::min(width(), height());
  QRectF place(0, 0, side, side);
  place.moveCenter(QRectF(rect()).center());
  // The darker rim and the light spot make yellow visible on white.
  QRadialGradient light(place.center() - QPointF(0, side / 4), side);
  light.setColorAt(0, fill_.lighter(130));
  light.setColorAt(0.4, fill_);
  light.setColorAt(1, fill_.darker(130));
  painter.setBrush(light);
  painter.setPen(QPen(border_.darker(160), 1.2));
  painter.drawEllipse(place);
}

void QtLamp::SetFillColor(Color color) {
  fill_ = color;
  widget_->SetColors(ToQt(fill_), ToQt(border_));
}

void QtLamp::SetBorderColor(Color color) {
  border_ = color;
  widget_->SetColors(ToQt(fill_), ToQt(border_));
}

QtCheckBox::QtCheckBox(QCheckBox* widget) : QtControl(widget) {
  QObject::connect(widget, &QCheckBox::toggled, widget, [this] {
    if (onClick) onClick();
  });
}

QtButton::QtButton(QPushButton* widget) : QtControl(widget) {
  QObject::connect(widget, &QPushButton::clicked, widget, [this] { Click(); });
}

void QtButton::SetCaption(std::u16string_view text) {
  caption_ = text;
  SetCaptionWithMnemonic(widget_, ToQt(text));
}

QtProgressBar::QtProgressBar(QProgressBar* widget) : QtControl(widget) {
  widget->setRange(0, 100);
  widget->setValue(0);
  widget->setTextVisible(false);
  widget->hide();
}

QtMenuEntry::QtMenuEntry(QAction* action) : action_(action) {
  QObject::connect(action, &QAction::triggered, action, [this] {
    // Qt has toggled the tick, but only the program may set it.
    action_->setChecked(checked_);
    Click();
  });
}

void QtMenuEntry::SetCaption(std::u16string_view text) {
  caption_ = text;
  SetCaptionWithMnemonic(action_, ToQt(text));
}

void QtMenuEntry::SetToolTip(std::u16string_view text) {
  toolTip_ = text;
  action_->setToolTip(PlainToolTip(ToQt(text)));
}

void QtMenuEntry::SetChecked(bool checked) {
  checked_ = checked;
  if (checked) action_->setCheckable(true);
  action_->setChecked(checked);
}

void QtMenu::SetCaption(std::u16string_view text) {
  caption_ = text;
  SetCaptionWithMnemonic(menu_->menuAction(), ToQt(text));
}

QtTimer::QtTimer(QObject* parent) : timer_(new QTimer(parent)) {
  timer_->setObjectName(QStringLiteral("tmrTimer"));
  timer_->setTimerType(Qt::PreciseTimer);
  timer_->setInterval(std::chrono::seconds(1));
  QObject::connect(timer_, &QTimer::timeout, timer_, [this] {
    if (onTimer) onTimer();
  });
}

}  // namespace verlume::qt
