#include "platform_qt/windows/form_parts.h"

#include <algorithm>

namespace verlume::qt {

QLabel* NewFormText(QWidget* form, const char* name) {
  auto* text = new QLabel(form);
  text->setObjectName(QLatin1String(name));
  text->setTextFormat(Qt::PlainText);
  text->setWordWrap(true);
  text->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  // A selectable text has a context menu of its own, which would take the release of the right
  // button.
  text->setContextMenuPolicy(Qt::PreventContextMenu);
  return text;
}

QLabel* NewFormCaption(QWidget* form, const char* name) {
  auto* caption = new QLabel(form);
  caption->setObjectName(QLatin1String(name));
  caption->setTextFormat(Qt::PlainText);
  return caption;
}

QPushButton* NewFormButton(QWidget* form, const char* name) {
  auto* button = new QPushButton(form);
  button->setObjectName(QLatin1String(name));
  return button;
}

int FormTableWidth(const QWidget& form, int columns) {
  constexpr int kMost = 600;
  return std::min(form.fontMetrics().averageCharWidth() * columns, kMost);
}

}  // namespace verlume::qt
