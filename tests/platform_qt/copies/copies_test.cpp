#include <sys/stat.h>

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QLocalServer>

#include "platform_qt/copies/copies_fixture.h"
#include "platform_qt/system/unprivileged.h"

namespace verlume::qt {
namespace {

using Copies = CopiesFixture;

TEST_F(Copies, TheFirstTakesThePlaceAndTheSecondDoesNot) {
  const FirstCopy first(Place());
  const FirstCopy second(Place());
  EXPECT_TRUE(first.IsFirst());
  EXPECT_FALSE(second.IsFirst());
  EXPECT_FALSE(first.IsOtherFirst());
  EXPECT_TRUE(second.IsOtherFirst());
}

TEST_F(Copies, WithTheFirstThePlaceBecomesFree) {
  { const FirstCopy first(Place()); }
  EXPECT_TRUE(FirstCopy(Place()).IsFirst());
  EXPECT_TRUE(QDir(runtime.path()).isEmpty());
}

TEST_F(Copies, CopiesOfOtherFoldersDoNotMeet) {
  const QTemporaryDir other;
  const FirstCopy first(Place());
  EXPECT_TRUE(FirstCopy(MeetingPlaceOf(other.path())).IsFirst());
}

TEST_F(Copies, OneFolderIsOnePlaceHoweverItIsNamed) {
  const QString link = runtime.filePath("link");
  ASSERT_TRUE(QFile::link(settings.path(), link));
  EXPECT_EQ(MeetingPlaceOf(link).server, Place().server);
  EXPECT_EQ(MeetingPlaceOf(settings.path() + "/./").server, Place().server);
}

TEST_F(Copies, TheTaskIsHandedOver) {
  FirstCopy first(Place());
  Serve(first);
  EXPECT_TRUE(HandOverFromElsewhere("task 1\nwith lines\n", "token_TIME1"));
  EXPECT_TRUE(WaitFor([this] { return !tasks.empty(); }));
  EXPECT_EQ(tasks, std::vector<std::string>{"task 1\nwith lines\n"});
  EXPECT_EQ(tokens, std::vector<QByteArray>{"token_TIME1"});
}

TEST_F(Copies, ATaskBeforeTheFirstServesIsDoneWhenItDoes) {
  FirstCopy first(Place());
  bool isTaken = false;
  std::thread other([&, place = Place()] { isTaken = HandOver(place, "task", {}); });
  Serve(first);
  EXPECT_TRUE(WaitFor([this] { return !tasks.empty(); }));
  other.join();
  EXPECT_TRUE(isTaken);
}

TEST_F(Copies, WhatIsNotUnderstoodIsNotTaken) {
  FirstCopy first(Place());
  Serve(first);
  EXPECT_FALSE(HandOverFromElsewhere("nonsense"));
  EXPECT_FALSE(HandOverFromElsewhere("task", "two words"));
  EXPECT_TRUE(tasks.empty());
  EXPECT_TRUE(tokens.empty());
}

TEST_F(Copies, ATaskWaitsUntilTheProgramIsFree) {
  isFree = false;
  FirstCopy first(Place());
  Serve(first);
  EXPECT_TRUE(HandOverFromElsewhere("task 1"));
  EXPECT_TRUE(HandOverFromElsewhere("task 2"));
  EXPECT_TRUE(WaitFor([this] { return timesAsked >= 3; }));
  EXPECT_TRUE(tasks.empty());
  isFree = true;
  EXPECT_TRUE(WaitFor([this] { return tasks.size() == 2; }));
  EXPECT_EQ(tasks.front(), "task 1");
}

TEST_F(Copies, ABusyProgramDoesNotTakeTasksWithoutEnd) {
  isFree = false;
  FirstCopy first(Place());
  Serve(first);
  int taken = 0;
  while (taken < 100 && HandOverFromElsewhere("task")) ++taken;
  EXPECT_EQ(taken, 4);
}

TEST_F(Copies, ATaskWaitsForTheWindowButNotForEver) {
  isInFront = false;
  FirstCopy first(Place());
  Serve(first);
  QElapsedTimer time;
  time.start();
  EXPECT_TRUE(HandOverFromElsewhere("task"));
  EXPECT_TRUE(WaitFor([this] { return !tasks.empty(); }));
  EXPECT_GE(time.elapsed(), 450);
}

TEST_F(Copies, WithoutAFirstNothingIsHandedOver) {
  EXPECT_FALSE(HandOver(Place(), "task", {}));
}

TEST_F(Copies, ASilentFirstIsNotWaitedForLongAndDoesNothingLater) {
  FirstCopy first(Place());
  QElapsedTimer time;
  time.start();
  // Nobody handles events here meanwhile.
  EXPECT_FALSE(HandOver(Place(), "task", {}));
  EXPECT_LT(time.elapsed(), 4000);
  Serve(first);
  EXPECT_TRUE(HandOverFromElsewhere("task 2"));
  EXPECT_TRUE(WaitFor([this] { return !tasks.empty(); }));
  EXPECT_EQ(tasks, std::vector<std::string>{"task 2"});
}

TEST_F(Copies, ASocketThatAKilledCopyLeftIsReplaced) {
  QFile(Place().server).open(QFile::WriteOnly);
  FirstCopy first(Place());
  EXPECT_TRUE(first.IsFirst());
  Serve(first);
  EXPECT_TRUE(HandOverFromElsewhere("task"));
}

TEST_F(Copies, OnlyTheUserCanOpenTheSocket) {
  const FirstCopy first(Place());
  struct stat found;
  ASSERT_EQ(::stat(Place().server.toUtf8().constData(), &found), 0);
  EXPECT_EQ(found.st_mode & 077, 0u);
}

TEST_F(Copies, AFolderInWhichOthersMayWriteIsNoMeetingPlace) {
  const QTemporaryDir cache;
  const QByteArray before = qgetenv("XDG_CACHE_HOME");
  qputenv("XDG_CACHE_HOME", cache.path().toUtf8());
  ASSERT_EQ(::chmod(runtime.path().toUtf8().constData(), 0777), 0);
  EXPECT_TRUE(Place().server.startsWith(cache.path())) << Place().server.toStdString();
  qputenv("XDG_CACHE_HOME", "/proc/none");
  EXPECT_FALSE(Place().IsUsable());
  EXPECT_FALSE(FirstCopy(Place()).IsFirst());
  EXPECT_FALSE(FirstCopy(Place()).IsOtherFirst());
  EXPECT_FALSE(HandOver(Place(), "task", {}));
  if (before.isNull()) {
    qunsetenv("XDG_CACHE_HOME");
  } else {
    qputenv("XDG_CACHE_HOME", before);
  }
}

// Only an administrator can be two users here.
TEST_F(Copies, AnotherUserIsNotListenedTo) {
  if (::geteuid() != 0) return;
  FirstCopy first(Place());
  Serve(first);
  ASSERT_EQ(::chmod(runtime.path().toUtf8().constData(), 0755), 0);
  ASSERT_EQ(::chmod(Place().server.toUtf8().constData(), 0777), 0);
  const QString server = Place().server;
  QLocalSocket stranger;
  {
    const Unprivileged user;
    stranger.connectToServer(server);
    ASSERT_TRUE(stranger.waitForConnected(5000));
  }
  stranger.write(QByteArray("\0task\0", 6));
  bool isAnswered = false;
  EXPECT_TRUE(WaitFor([&] {
    isAnswered = isAnswered || stranger.bytesAvailable() > 0;
    return stranger.state() == QLocalSocket::UnconnectedState;
  }));
  EXPECT_FALSE(isAnswered);
}

TEST_F(Copies, AServerOfAnotherUserIsToldNothing) {
  if (::geteuid() != 0) return;
  ASSERT_EQ(::chmod(runtime.path().toUtf8().constData(), 0777), 0);
  const QString path = runtime.filePath("impostor");
  QLocalServer impostor;
  {
    const Unprivileged user;
    ASSERT_TRUE(impostor.listen(path));
  }
  EXPECT_FALSE(HandOver({path + ".lock", path}, "task", {}));
  ASSERT_TRUE(impostor.waitForNewConnection(5000));
  QLocalSocket* visitor = impostor.nextPendingConnection();
  EXPECT_TRUE(WaitFor([&] { return visitor->state() == QLocalSocket::UnconnectedState; }));
  EXPECT_EQ(visitor->readAll(), "");
}

TEST(ActivationToken, IsShortPrintableAscii) {
  EXPECT_TRUE(IsActivationToken("xfce4-1_TIME123"));
  EXPECT_TRUE(IsActivationToken(""));
  EXPECT_FALSE(IsActivationToken("a b"));
  EXPECT_FALSE(IsActivationToken("a\n"));
  EXPECT_FALSE(IsActivationToken("\xce\xb1"));
  EXPECT_FALSE(IsActivationToken(QByteArray(257, 'x')));
}

}  // namespace
}  // namespace verlume::qt
