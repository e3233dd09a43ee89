#include "network/peer.h"

#include <unistd.h>

#include <QApplication>
#include <QKeyEvent>
#include <QMessageBox>
#include <QPushButton>
#include <cstdio>
#include <utility>

#include "platform_qt/convert/text.h"

namespace verlume::network {
namespace {

constexpr int kLookEvery = 20;  // ms
constexpr int kTicksUntilStable = 4;

QPlainTextEdit* FindPane(const char* name) {
  for (QWidget* window : QApplication::topLevelWidgets()) {
    if (auto* pane = window->findChild<QPlainTextEdit*>(QLatin1String(name))) return pane;
  }
  return nullptr;
}

SelectionFormat Emphasis() {
  SelectionFormat format;
  format.bold = true;
  format.color = 255;
  return format;
}

// What a bar says; "" while it is not there.
QString TextOf(const FloatingPanel& bar, const Label& text) {
  return bar.Visible() ? qt::ToQt(text.Caption()) : QString();
}

Play PlayOf(const QStringList& words) {
  return {.side = words[1][0].unicode(),
          .seed = words[2].toULongLong(),
          .steps = words[3].toULongLong(),
          .longest = words[4].toULongLong(),
          .longLines = words[5].toULongLong()};
}

}  // namespace

Peer::Peer(Platform& platform) : platform_(platform), input_(STDIN_FILENO, QSocketNotifier::Read) {
  connect(&input_, &QSocketNotifier::activated, this, [this] { ReadOrders(); });
  connect(&hands_, &QTimer::timeout, this, [this] { DoNext(); });
  connect(&look_, &QTimer::timeout, this, [this] { Look(); });
  look_.start(kLookEvery);
}

void Peer::ReadOrders() {
  char buffer[4096];
  const ssize_t size = ::read(STDIN_FILENO, buffer, sizeof buffer);
  if (size <= 0) {
    input_.setEnabled(false);
    return QCoreApplication::exit();
  }
  unread_.append(buffer, size);
  for (auto end = unread_.indexOf('\n'); end >= 0; end = unread_.indexOf('\n')) {
    const QString order = QString::fromUtf8(unread_.left(end));
    unread_.remove(0, end + 1);
    Obey(order);
  }
}

void Peer::Obey(const QString& order) {
  if (order.startsWith("enter ")) {
    work_.push_back([this, line = order.mid(6)] { Enter(line); });
  } else if (order.startsWith("click ")) {
    work_.push_back([this, name = order.mid(6)] { Click(name); });
  } else {
    for (const Step& step : StepsOf(PlayOf(order.split(' ')))) {
      work_.push_back([this, step] { Do(step); });
    }
    work_.push_back([this] { Report("played", ""); });
  }
  hands_.start(0);
}

// The program handles events while it works on a line, but the next key must wait until it is done.
void Peer::DoNext() {
  if (isBusy_) return;
  if (work_.empty()) return hands_.stop();
  isBusy_ = true;
  const auto next = std::move(work_.front());
  work_.pop_front();
  next();
  isBusy_ = false;
}

void Peer::Do(const Step& step) {
  RichTextBox& pane = platform_.frmMain.rtbCommands;
  switch (step.kind) {
    case StepKind::Bare:
      platform_.sckControl.SendData(step.text, TextKind::Line);
      return;
    case StepKind::Plain:
      return Enter(qt::ToQt(step.text));
    case StepKind::Action:
      return Enter("/ME " + qt::ToQt(step.text));
    case StepKind::Nickname:
      return Enter("/NICK " + qt::ToQt(step.text));
    case StepKind::Macro:
      return Enter("/" + qt::ToQt(kMacroName));
    case StepKind::Formatted:
      pane.SetText(step.text);
      pane.Select(step.text.size() / 2, step.text.size());
      pane.SetSelFormat(Emphasis());
      return PressEnter();
  }
}

void Peer::Enter(const QString& text) {
  platform_.frmMain.rtbCommands.SetText(qt::FromQt(text));
  PressEnter();
}

void Peer::Click(const QString& button) {
  commands_->window()->findChild<QPushButton*>(button)->click();
}

void Peer::PressEnter() {
  QKeyEvent press(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, QStringLiteral("\r"));
  QApplication::sendEvent(commands_, &press);
}

void Peer::Look() {
  if (!commands_) {
    commands_ = FindPane("rtbCommands");
    Report("ready", "");
  }
  AnswerBox();
  ReportLines();
  const MainWindow& frmMain = platform_.frmMain;
  ReportChange("lamp", QString::number(frmMain.shpStatus.FillColor()), lamp_);
  ReportChange("tip", qt::ToQt(frmMain.lblStatus.ToolTip()), toolTip_);
  ReportChange("again", TextOf(frmMain.againBar.fraAgain, frmMain.againBar.lblAgain), again_);
  ReportChange("resend", TextOf(frmMain.resendBar.fraResend, frmMain.resendBar.lblResend), resend_);
  ReportChange("waiting", qt::ToQt(frmMain.lblWaiting.Caption()), waiting_);
  // Last, so that a reader of the new status knows all the others too, except the lines.
  ReportChange("status", qt::ToQt(frmMain.lblStatus.Caption()), status_);
}

// A long line is inserted piece by piece, so lines are reported once the pane no longer changes.
void Peer::ReportLines() {
  const RichTextBox& pane = platform_.frmMain.rtbData;
  const std::size_t length = pane.TextLength();
  ticksUnchanged_ = length == std::exchange(length_, length) ? ticksUnchanged_ + 1 : 0;
  if (ticksUnchanged_ < kTicksUntilStable || length == lengthReported_) return;
  lengthReported_ = length;
  const QStringList lines = qt::ToQt(pane.Text()).split('\n');
  for (const QString& line : lines.mid(linesReported_)) Report("line", line);
  linesReported_ = lines.size();
}

void Peer::AnswerBox() {
  auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
  if (!dialog || !dialog->isVisible()) return;
  const auto* box = qobject_cast<QMessageBox*>(dialog);
  Report("box", box ? box->text() : dialog->windowTitle());
  if (QAbstractButton* yes = box ? box->button(QMessageBox::Yes) : nullptr) return yes->click();
  dialog->reject();
}

void Peer::Report(const char* what, const QString& text) {
  QString oneLine = text;
  oneLine.replace('\n', QStringLiteral("\\n"));
  std::printf("%s %s\n", what, oneLine.toUtf8().constData());
  std::fflush(stdout);
}

void Peer::ReportChange(const char* what, const QString& text, QString& last) {
  if (text != std::exchange(last, text)) Report(what, text);
}

}  // namespace verlume::network
