#include "platform_qt/windows/key_bar.h"

#include <QAccessibleWidget>
#include <QHBoxLayout>
#include <QStyle>
#include <QVBoxLayout>
#include <algorithm>
#include <chrono>

#include "platform_qt/controls/key_codes.h"

namespace verlume::qt {
namespace {

constexpr int kKeyBarSpace = 8;  // pixels, inside the bar
constexpr std::chrono::milliseconds kTimeToRead{500};

QAccessibleInterface* KeyAlertOf(const QString&, QObject* object) {
  auto* bar = dynamic_cast<KeyFrame*>(object);
  return bar ? new QAccessibleWidget(bar, QAccessible::AlertMessage) : nullptr;
}

QLabel* NewWarningSign(QWidget* parent) {
  auto* sign = new QLabel(parent);
  const int side = parent->fontMetrics().height() * 3 / 2;
  sign->setPixmap(parent->style()->standardIcon(QStyle::SP_MessageBoxWarning).pixmap(side));
  return sign;
}

}  // namespace

KeyFrame::KeyFrame(QWidget* area) : FloatingFrame(area, "fraKey") {
  QAccessible::installFactory(&KeyAlertOf);  // which the second time does nothing
  auto* text = new QLabel(this);
  text->setObjectName(QStringLiteral("lblKey"));
  text->setTextFormat(Qt::PlainText);
  text->setWordWrap(true);
  auto* said = new QHBoxLayout;
  said->setSpacing(kKeyBarSpace);
  said->addWidget(NewWarningSign(this), 0, Qt::AlignTop);
  said->addWidget(text, 1);
  // Shift+Tab leaves the command pane for the safe answer.
  auto* answers = new QHBoxLayout;
  answers->setSpacing(kKeyBarSpace);
  answers->addStretch();
  answers->addWidget(NewAnswer("cmdKeyGoOn"));
  QPushButton* hangUp = NewAnswer("cmdKeyHangUp");
  hangUp->setDefault(true);
  answers->addWidget(hangUp);
  auto* inside = new QVBoxLayout(this);
  inside->setContentsMargins(kKeyBarSpace, kKeyBarSpace, kKeyBarSpace, kKeyBarSpace);
  inside->setSpacing(kKeyBarSpace);
  inside->addLayout(said, 1);
  inside->addLayout(answers);
  // A layout counts only shown children, and the height is asked for before the bar is shown.
  for (QWidget* child : findChildren<QWidget*>()) child->show();
}

QPushButton* KeyFrame::NewAnswer(const char* name) {
  QPushButton* button = NewFloatingButton(this, name);
  KeepMnemonic(button);
  button->setAutoDefault(true);  // Enter on it presses it
  button->installEventFilter(this);
  return button;
}

QRect KeyFrame::PlaceAt(const QRect& pane) const {
  const int height = std::min(heightForWidth(pane.width()), pane.top());
  return {pane.left(), pane.top() - height, pane.width(), height};
}

void KeyFrame::showEvent(QShowEvent* event) {
  sinceShown_.invalidate();
  FloatingFrame::showEvent(event);
}

void KeyFrame::paintEvent(QPaintEvent* event) {
  if (!sinceShown_.isValid()) sinceShown_.start();
  FloatingFrame::paintEvent(event);
}

bool KeyFrame::eventFilter(QObject* watched, QEvent* event) {
  if (qobject_cast<QPushButton*>(watched)) return IsTooEarly(*event);
  return FloatingFrame::eventFilter(watched, event);
}

bool KeyFrame::IsTooEarly(const QEvent& event) const {
  switch (event.type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
      return !IsOldEnough();
    case QEvent::Shortcut:
      return !IsOldEnough() || !clock_.WasAtRest();
    case QEvent::KeyPress: {
      const auto& key = static_cast<const QKeyEvent&>(event);
      const bool presses = IsEnter(key) || key.key() == Qt::Key_Space;
      return presses && (!IsOldEnough() || !clock_.WasAtRest());
    }
    default:
      return false;
  }
}

bool KeyFrame::IsOldEnough() const {
  return sinceShown_.isValid() && sinceShown_.hasExpired(kTimeToRead.count());
}

}  // namespace verlume::qt
