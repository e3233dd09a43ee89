#include "platform_qt/windows/welcome_card.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QVBoxLayout>
#include <algorithm>

namespace verlume::qt {
namespace {

constexpr int kCardSpace = 14;   // pixels, inside the card and at least around it
constexpr int kUsualWidth = 60;  // of a line of the text, in characters of usual width

QLabel* NewCardLabel(QWidget* parent, const char* name) {
  auto* label = new QLabel(parent);
  label->setObjectName(QLatin1String(name));
  label->setTextFormat(Qt::PlainText);
  label->setAlignment(Qt::AlignCenter);
  label->setWordWrap(true);
  return label;
}

}  // namespace

CardFrame::CardFrame(QWidget* area) : FloatingFrame(area, "fraCard") {
  auto* text = NewCardLabel(this, "lblCard");
  auto* address = NewCardLabel(this, "lblCardAddress");
  address->setWordWrap(false);

  auto* buttons = new QHBoxLayout;
  buttons->setSpacing(kCardSpace / 2);
  buttons->addStretch();
  for (const char* name : {"cmdCardWait", "cmdCardCall", "cmdCardHelp"}) {
    buttons->addWidget(NewFloatingButton(this, name));
  }
  buttons->addStretch();
  auto* addressRow = new QHBoxLayout;
  addressRow->setSpacing(kCardSpace / 2);
  addressRow->addStretch();
  addressRow->addWidget(address);
  addressRow->addWidget(NewFloatingButton(this, "cmdCardCopy"));
  addressRow->addStretch();

  auto* inside = new QVBoxLayout(this);
  inside->setContentsMargins(kCardSpace, kCardSpace, kCardSpace, kCardSpace);
  inside->setSpacing(kCardSpace);
  inside->addWidget(text);
  inside->addLayout(buttons);
  inside->addLayout(addressRow);
}

QRect CardFrame::PlaceAt(const QRect& pane) const {
  const QRect room = pane.adjusted(kCardSpace, kCardSpace, -kCardSpace, -kCardSpace);
  const int usual = kUsualWidth * fontMetrics().averageCharWidth() + 2 * kCardSpace;
  const int least = minimumSizeHint().width();
  const int width = std::min(std::max(usual, least), room.width());
  const int height = heightForWidth(width);
  if (least > room.width() || height > room.height()) return {};
  QRect place(0, 0, width, height);
  place.moveCenter(room.center());
  return place;
}

QtCopyButton::QtCopyButton(QPushButton* widget) : QtControl(widget) {
  QObject::connect(widget, &QPushButton::clicked, widget, [this] {
    QGuiApplication::clipboard()->setText(textToCopy_);
    if (onClick) onClick();
  });
}

QWidget* QtWelcomeCard::FollowInTabOrder(QWidget* before) {
  for (QWidget* button : {cmdCardWait.widget(), cmdCardCall.widget(), cmdCardHelp.widget(),
                          static_cast<QPushButton*>(cmdCardCopy.widget())}) {
    QWidget::setTabOrder(before, button);
    before = button;
  }
  return before;
}

}  // namespace verlume::qt
