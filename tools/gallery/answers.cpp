#include "answers.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>

namespace verlume::gallery {

void Press(QWidget* widget, int key, const QString& text, Qt::KeyboardModifiers held) {
  QKeyEvent press(QEvent::KeyPress, key, held, text);
  QKeyEvent release(QEvent::KeyRelease, key, held, text);
  QApplication::sendEvent(widget, &press);
  QApplication::sendEvent(widget, &release);
}

Answer Escape() {
  return [](QWidget* box) { Press(box, Qt::Key_Escape); };
}

Answer Yes() {
  return [](QWidget* box) {
    if (auto* question = qobject_cast<QMessageBox*>(box)) {
      question->button(QMessageBox::Yes)->click();
    }
  };
}

Answer FillIn(const QString& text) {
  return [text](QWidget* box) {
    auto* field = box->findChild<QLineEdit*>();
    field->setText(text);
    Press(field, Qt::Key_Return, QStringLiteral("\r"));
  };
}

}  // namespace verlume::gallery
