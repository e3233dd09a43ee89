// A peer that is killed while lines are on their way to it, and comes back.
#include <gtest/gtest.h>

#include <QStringList>
#include <csignal>

#include "copy.h"

namespace verlume::e2e {
namespace {

class ResendEndToEnd : public testing::Test {
 protected:
  // Bob waits, and Ann calls him.
  void Connect() {
    const qsizetype before = Conversations();
    bob.TypeLine("/WAIT " + port);
    ann.TypeLine("/CALL 127.0.0.1 " + port);
    ASSERT_TRUE(bob.AnswerBox("Incoming call", "Return"));
    ASSERT_TRUE(WaitUntil([&] { return Conversations() == before + 1; }));
  }
  qsizetype Conversations() const { return ann.Log("Bob").count("Active connection."); }
  // What Bob's log has of Ann's lines.
  QString LinesThatCame() const {
    QStringList lines;
    for (const QString& line : bob.Log("Ann").split("\r\n")) {
      const qsizetype tag = line.indexOf("]<Ann>");
      if (tag >= 0) lines << line.mid(tag + 6);
    }
    return lines.join(' ');
  }
  // By keys: from the command pane up over the format controls to the first button of the bar.
  void PressSendThem() {
    ann.Activate();
    for (int i = 0; i < 6; ++i) ann.PressKeys("shift+Tab");
    ann.PressKeys("space");
  }

  const QString port = NextPort();
  Copy ann{"Ann", false};
  Copy bob{"Bob", false};
};

TEST_F(ResendEndToEnd, WhatAKilledProgramHasNotReadArrivesWhenItIsBack) {
  ASSERT_NO_FATAL_FAILURE(Connect());
  ann.TypeLine("before");
  ASSERT_TRUE(WaitUntil([&] { return LinesThatCame() == "before"; }));
  ::kill(static_cast<pid_t>(bob.Process()), SIGSTOP);
  const QStringList burst = {"one", "two", "three", "four", "five"};
  for (const QString& line : burst) ann.TypeLine(line);
  bob.Kill();
  ASSERT_TRUE(WaitUntil([&] { return ann.Log("Bob").contains("5 lines were not delivered."); }));

  bob.Restart();
  ASSERT_NO_FATAL_FAILURE(Connect());
  ann.TypeLine("back");
  ASSERT_TRUE(WaitUntil([&] { return LinesThatCame() == "before back"; }));
  PressSendThem();
  EXPECT_TRUE(WaitUntil([&] { return LinesThatCame() == "before back " + burst.join(' '); }))
      << LinesThatCame().toStdString();
  EXPECT_TRUE(ann.Dialogue().endsWith("<Ann>four\n<Ann>five"));
}

}  // namespace
}  // namespace verlume::e2e
