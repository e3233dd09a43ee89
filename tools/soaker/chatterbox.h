// The simulated user of one copy, who types without a pause: lines, action lines, macros,
// nicknames, languages, and every now and then begins a new conversation.
//
// Every line has its sender's letter and a number. Each side reads its own dialogue pane: a line
// that is lost, torn or out of order ends the soak.
#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QPlainTextEdit>
#include <QTimer>

#include "measures.h"
#include "platform/platform.h"
#include "shared_page.h"
#include "shell/program/program.h"

namespace verlume::soak {

struct Role {
  int side = 0;  // 0 calls and closes, 1 waits
  int port = 0;
  int periods = 0;
  int periodMilliseconds = 0;
};

class Chatterbox : public QObject {
 public:
  Chatterbox(Platform& platform, const Program& program, SharedPage& page, const Role& role);

 private:
  void Step();
  // Answers the question about a call; any other box ends the soak. True when there was one.
  bool AnswerBox();
  void Connect();
  void CloseOnceAllIsShown();
  void End();
  void SayNext();
  void SayLine();
  void TakeNickname();
  bool EndPeriodIfDue();
  void EndPeriod();
  void ReadPane();
  void NotePeersNickname();
  void TakeMark(QChar letter, std::uint64_t number);
  void EndIfStuck();

  QString NextText();
  void TypeCommand(const QString& command);
  void PasteLine(const QString& line);
  void PressEnter();

  SharedPage::Side& Own() { return page_.sides[role_.side]; }
  SharedPage::Side& Peers() { return page_.sides[1 - role_.side]; }
  QChar OwnLetter() const { return QLatin1Char(role_.side == 0 ? 'a' : 'b'); }
  bool IsAllShown();

  Platform& platform_;
  const Program& program_;
  SharedPage& page_;
  const Role role_;
  QPlainTextEdit& data_;
  QPlainTextEdit& commands_;

  QTimer steps_;
  bool isTyping_ = false;
  bool isEnding_ = false;
  int turn_ = 0;
  std::uint64_t nickname_ = 0;
  int macros_ = 0;
  int languages_ = 0;
  int conversations_ = 0;
  std::uint64_t ownLinesShown_ = 0;

  int readTo_ = 0;
  std::int64_t charactersShown_ = 0;
  std::uint64_t linesShown_ = 0;  // in this period
  int period_ = 0;
  QElapsedTimer sincePeriodBegan_;
  std::int64_t processorBefore_ = 0;
  QElapsedTimer sinceProgress_;
  AnswerTimes answers_;
};

}  // namespace verlume::soak
