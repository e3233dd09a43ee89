#include "chatterbox.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QRegularExpression>
#include <QTextBlock>
#include <QTextStream>
#include <cstdlib>

#include "platform_qt/convert/text.h"
#include "verdict.h"

namespace verlume::soak {
namespace {

constexpr int kStep = 5;                     // ms
constexpr std::uint64_t kMostInFlight = 20;  // lines that the peer has not shown
constexpr int kPatience = 60'000;            // ms without any progress

// After how many lines each of these happens. Primes, so that they happen in all combinations.
constexpr int kActionLineEvery = 11;
constexpr int kMacroEvery = 37;
constexpr int kNicknameEvery = 89;
constexpr int kLanguageEvery = 149;
constexpr int kNewConversationEvery = 397;

QPlainTextEdit& Pane(const char* name) {
  for (QWidget* window : QApplication::topLevelWidgets()) {
    if (auto* pane = window->findChild<QPlainTextEdit*>(QLatin1String(name))) return *pane;
  }
  qFatal("There is no %s", name);
}

void PressKey(QWidget& widget, int key, const QString& text) {
  QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, text);
  QKeyEvent release(QEvent::KeyRelease, key, Qt::NoModifier, text);
  QApplication::sendEvent(&widget, &press);
  QApplication::sendEvent(&widget, &release);
}

[[noreturn]] void GiveUp(const QString& why) {
  QTextStream(stderr) << why << Qt::endl;
  std::_Exit(3);
}

}  // namespace

Chatterbox::Chatterbox(Platform& platform, const Program& program, SharedPage& page,
                       const Role& role)
    : platform_(platform),
      program_(program),
      page_(page),
      role_(role),
      data_(Pane("rtbData")),
      commands_(Pane("rtbCommands")) {
  connect(&data_, &QPlainTextEdit::textChanged, this, &Chatterbox::ReadPane);
  connect(&steps_, &QTimer::timeout, this, &Chatterbox::Step);
  sincePeriodBegan_.start();
  sinceProgress_.start();
  processorBefore_ = ProcessorMilliseconds();
  steps_.start(kStep);
}

void Chatterbox::Step() {
  EndIfStuck();
  NotePeersNickname();
  if (AnswerBox() || isTyping_ || isEnding_) return;
  isTyping_ =
      true;  // the program handles events while it works, but only one thing may be typed at a time
  if (!EndPeriodIfDue()) {
    if (!program_.State().IsConnected) {
      Connect();
    } else if (page_.isClosing) {
      CloseOnceAllIsShown();
    } else if (Own().linesSent - Peers().peersLinesShown < kMostInFlight) {
      SayNext();
    }
  }
  isTyping_ = false;
}

bool Chatterbox::AnswerBox() {
  QWidget* modal = QApplication::activeModalWidget();
  if (!modal) return false;
  auto* box = qobject_cast<QMessageBox*>(modal);
  const bool isCall = box && (box->windowTitle() == QStringLiteral("Incoming call") ||
                              box->windowTitle() == QStringLiteral("Εισερχόμενη κλήση"));
  if (!isCall) {
    GiveUp(QStringLiteral("A box nobody asked for: %1: %2")
               .arg(modal->windowTitle(), box ? box->text() : QString()));
  }
  box->button(QMessageBox::Yes)->click();
  return true;
}

void Chatterbox::Connect() {
  const AppState& state = program_.State();
  if (state.IsWaiting || state.IsCalling) return;
  Own().isQuiet = false;
  if (page_.isOver) return End();
  ++conversations_;
  if (role_.side == 1) return TypeCommand(QStringLiteral("/WAIT %1").arg(role_.port));
  page_.isClosing = false;
  TypeCommand(QStringLiteral("/CALL 127.0.0.1 %1").arg(role_.port));
}

void Chatterbox::End() {
  isEnding_ = period_ == role_.periods;
  if (!isEnding_) return;
  QTextStream(stdout) << "in all " << Own().linesSent << " lines, " << macros_ << " macros, "
                      << nickname_ << " nicknames, " << languages_ << " languages, "
                      << conversations_ << (role_.side == 0 ? " calls" : " waits") << Qt::endl;
  TypeCommand(QStringLiteral("/EXIT"));
}

bool Chatterbox::IsAllShown() {
  return Own().linesSent == Peers().peersLinesShown && Peers().linesSent == Own().peersLinesShown;
}

void Chatterbox::CloseOnceAllIsShown() {
  Own().isQuiet = true;
  if (role_.side == 0 && Peers().isQuiet && IsAllShown()) TypeCommand(QStringLiteral("/CLOSE"));
}

void Chatterbox::SayNext() {
  // A nickname has been sent: the number in it shows when it has arrived.
  if (Peers().peersNicknameShown != nickname_) return;
  ++turn_;
  if (turn_ % kNicknameEvery == 0) return TakeNickname();
  if (turn_ % kMacroEvery == 0) {
    ++macros_;
    return TypeCommand(QStringLiteral("/greet"));
  }
  if (turn_ % kLanguageEvery == 0) {
    const bool isGreek = ++languages_ % 2 == 1;
    return TypeCommand(isGreek ? QStringLiteral("/GREEK") : QStringLiteral("/ΑΓΓΛΙΚΉ"));
  }
  if (turn_ % kNewConversationEvery == 0 && role_.side == 0) {
    page_.isClosing = true;
    return;
  }
  SayLine();
}

void Chatterbox::TakeNickname() {
  ++nickname_;
  TypeCommand(QStringLiteral("/NICK %1 %2").arg(OwnLetter()).arg(nickname_));
}

void Chatterbox::SayLine() {
  const QString text = NextText();
  ++Own().linesSent;
  if (turn_ % kActionLineEvery == 0) return PasteLine(QStringLiteral("/me ") + text);
  PasteLine(text);
}

QString Chatterbox::NextText() {
  const QString mark = QStringLiteral("#%1%2;").arg(OwnLetter()).arg(Own().linesSent + 1);
  switch (turn_ % 7) {
    case 0:
      return mark + QStringLiteral(" Καλημέρα, $r, εδώ $l. ") + QString(turn_ % 60, QChar(u'λ'));
    case 1:
      return mark + QStringLiteral(" 日本語 😀 {\\rtf1 is only text here} ");
    case 2:
      return mark + QChar(u' ') + QString(turn_ % 29 == 0 ? 4000 : 300, QChar(u'm'));
    default:
      return mark + QStringLiteral(" a line like most others are");
  }
}

void Chatterbox::TypeCommand(const QString& command) {
  for (const QChar c : command) PressKey(commands_, 0, QString(c));
  PressEnter();
}

void Chatterbox::PasteLine(const QString& line) {
  platform_.frmMain.rtbCommands.SetSelText(qt::FromQt(line));
  PressEnter();
}

void Chatterbox::PressEnter() {
  PressKey(commands_, Qt::Key_Return, QStringLiteral("\r"));
}

// Called after every change of the pane, so that nothing is missed before it is cleared.
void Chatterbox::ReadPane() {
  const int length = data_.document()->characterCount() - 1;
  if (length < readTo_) readTo_ = 0;
  if (length == readTo_) return;
  QTextCursor cursor(data_.document());
  cursor.setPosition(readTo_);
  cursor.movePosition(QTextCursor::End, QTextCursor::KeepAnchor);
  const QString text = cursor.selectedText();
  static const QRegularExpression kMark(QStringLiteral("#([ab])([0-9]+);"));
  int end = 0;
  for (auto marks = kMark.globalMatch(text); marks.hasNext();) {
    const QRegularExpressionMatch mark = marks.next();
    TakeMark(mark.captured(1).front(), mark.captured(2).toULongLong());
    end = static_cast<int>(mark.capturedEnd());
  }
  charactersShown_ += end;
  readTo_ += end;
}

void Chatterbox::TakeMark(QChar letter, std::uint64_t number) {
  const bool isOwn = letter == OwnLetter();
  const std::uint64_t expected = 1 + (isOwn ? ownLinesShown_ : Own().peersLinesShown.load());
  if (number != expected) {
    GiveUp(QStringLiteral("Line %1%2 where %3 should be").arg(letter).arg(number).arg(expected));
  }
  if (isOwn) {
    ownLinesShown_ = number;
  } else {
    Own().peersLinesShown = number;
  }
  ++linesShown_;
  sinceProgress_.restart();
}

void Chatterbox::NotePeersNickname() {
  const QString shown = qt::ToQt(platform_.frmMain.lblRemoteNickname.Caption());
  Own().peersNicknameShown = shown.section(QLatin1Char(' '), -1).toULongLong();
}

bool Chatterbox::EndPeriodIfDue() {
  if (period_ == role_.periods || !sincePeriodBegan_.hasExpired(role_.periodMilliseconds)) {
    return false;
  }
  EndPeriod();
  if (++period_ == role_.periods && role_.side == 0) {
    page_.isOver = true;
    page_.isClosing = true;
  }
  return true;
}

void Chatterbox::EndPeriod() {
  Period period;
  period.lines = static_cast<std::int64_t>(linesShown_);
  period.milliseconds = sincePeriodBegan_.elapsed();
  period.processor = ProcessorMilliseconds() - processorBefore_;
  period.characters = charactersShown_;
  period.residentFull = ResidentBytes();
  period.worstAnswer = answers_.Worst();
  period.worstOwnAnswer = answers_.WorstOwn();
  TypeCommand(QStringLiteral("/CLEARDIALOGUE"));
  TypeCommand(QStringLiteral("/CLEARHISTORY"));
  ReturnReserve();
  period.residentClear = ResidentBytes();
  period.heapClear = HeapBytes();
  period.descriptors = Descriptors();
  QTextStream(stdout) << PeriodLine(period) << Qt::endl;
  linesShown_ = 0;
  charactersShown_ = 0;
  processorBefore_ = ProcessorMilliseconds();
  sincePeriodBegan_.restart();
  answers_.Restart();
}

void Chatterbox::EndIfStuck() {
  if (!sinceProgress_.hasExpired(kPatience)) return;
  GiveUp(QStringLiteral("Stuck: %1 lines sent, %2 of them shown; %3 of %4 lines of the peer's; "
                        "status: %5")
             .arg(Own().linesSent.load())
             .arg(Peers().peersLinesShown.load())
             .arg(Own().peersLinesShown.load())
             .arg(Peers().linesSent.load())
             .arg(qt::ToQt(platform_.frmMain.lblStatus.Caption())));
}

}  // namespace verlume::soak
