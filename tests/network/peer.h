// The program with a simulated user, who carries out orders from standard input and reports on
// standard output what the window shows, one line each.
//
// Orders: "enter TEXT" types a line and presses Enter; "click NAME" presses a button; "play SIDE
// SEED STEPS LONGEST LONG_LINES" plays a script (script.h) as fast as it can; the end of the input
// ends the program. A call is accepted, every other box is dismissed. Reports: "ready"; "line TEXT"
// for each line of the dialogue pane; "lamp COLOUR", "waiting TEXT", "tip TEXT" (of the status
// line), "again TEXT" and "resend TEXT" (of the bars) and "status TEXT" whenever they change; "box
// TEXT"; "played" at a script's end.
#pragma once

#include <QByteArray>
#include <QObject>
#include <QPlainTextEdit>
#include <QSocketNotifier>
#include <QTimer>
#include <deque>
#include <functional>

#include "network/script.h"
#include "platform/platform.h"

namespace verlume::network {

class Peer : public QObject {
 public:
  explicit Peer(Platform& platform);

 private:
  void ReadOrders();
  void Obey(const QString& order);
  void DoNext();
  void Do(const Step& step);
  void Enter(const QString& text);
  void Click(const QString& button);
  void PressEnter();
  void Look();
  void ReportLines();
  void AnswerBox();
  void Report(const char* what, const QString& text);
  // Reports the text if it differs from `last`.
  void ReportChange(const char* what, const QString& text, QString& last);

  Platform& platform_;
  QSocketNotifier input_;
  QByteArray unread_;
  QPlainTextEdit* commands_ = nullptr;
  std::deque<std::function<void()>> work_;
  bool isBusy_ = false;
  QTimer hands_;
  QTimer look_;
  std::size_t length_ = 0;  // of the dialogue pane's text
  int ticksUnchanged_ = 0;
  std::size_t lengthReported_ = 0;
  qsizetype linesReported_ = 0;
  QString status_;
  QString lamp_;
  QString toolTip_;
  QString waiting_;
  QString again_;
  QString resend_;
};

}  // namespace verlume::network
