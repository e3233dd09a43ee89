#include "player.h"

#include <QAbstractButton>
#include <QApplication>
#include <QFile>
#include <QKeyEvent>
#include <QLabel>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QTextStream>

namespace verlume::demo {
namespace {

constexpr int kStepMilliseconds = 100;

template <class Widget>
Widget* Find(const char* name) {
  for (QWidget* window : QApplication::topLevelWidgets()) {
    if (auto* widget = window->findChild<Widget*>(QLatin1String(name))) return widget;
  }
  return nullptr;
}

void PressKey(QWidget* widget, int key, const QString& text) {
  QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, text);
  QKeyEvent release(QEvent::KeyRelease, key, Qt::NoModifier, text);
  QApplication::sendEvent(widget, &press);
  QApplication::sendEvent(widget, &release);
}

bool Type(const QString& text) {
  QPlainTextEdit* commands = Find<QPlainTextEdit>("rtbCommands");
  if (!commands || QApplication::activeModalWidget()) return false;
  for (const char32_t character : text.toUcs4()) {
    PressKey(commands, 0, QString::fromUcs4(&character, 1));
  }
  PressKey(commands, Qt::Key_Return, QStringLiteral("\r"));
  return true;
}

bool AnswerYes() {
  auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
  if (!box || !box->button(QMessageBox::Yes)) return false;
  box->button(QMessageBox::Yes)->click();
  return true;
}

}  // namespace

Player::Player(const QString& scriptFile) {
  QFile file(scriptFile);
  if (file.open(QIODevice::ReadOnly)) {
    script_ = QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
  }
  connect(&timer_, &QTimer::timeout, this, &Player::Step);
  timer_.start(kStepMilliseconds);
}

void Player::Step() {
  if (script_.isEmpty()) return timer_.stop();
  const QString line = script_.first();
  // Removed first, since typing may open a box whose event loop calls this for the next line.
  script_.removeFirst();
  if (!Do(line)) script_.prepend(line);
}

bool Player::Do(const QString& line) {
  if (line.startsWith(QLatin1String("> "))) return Type(line.mid(2));
  if (line == QLatin1String("yes")) return AnswerYes();
  if (line == QLatin1String("connected")) {
    const QLabel* nickname = Find<QLabel>("lblRemoteNickname");
    return nickname && !nickname->text().isEmpty();
  }
  if (line.startsWith(QLatin1String("lines "))) {
    const QPlainTextEdit* data = Find<QPlainTextEdit>("rtbData");
    return data && !data->document()->isEmpty() &&
           data->document()->blockCount() >= line.mid(6).toInt();
  }
  if (line.startsWith(QLatin1String("print "))) {
    QTextStream(stdout) << line.mid(6) << Qt::endl;
    return true;
  }
  qWarning("Not a line of a script: %s", qPrintable(line));
  return true;
}

}  // namespace verlume::demo
