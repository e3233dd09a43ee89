// What else may come to the socket of the first copy.
#include <algorithm>
#include <memory>
#include <random>

#include "platform_qt/copies/copies_fixture.h"

namespace verlume::qt {
namespace {

class HostileVisitors : public CopiesFixture {
 protected:
  HostileVisitors() { Serve(first); }

  std::unique_ptr<QLocalSocket> Visit() {
    auto socket = std::make_unique<QLocalSocket>();
    socket->connectToServer(Place().server);
    EXPECT_TRUE(socket->waitForConnected(5000));
    return socket;
  }
  static bool HasBeenLeft(QLocalSocket& socket) {
    return WaitFor([&] { return socket.state() == QLocalSocket::UnconnectedState; });
  }
  void ExpectToWorkStill() {
    tasks.clear();
    EXPECT_TRUE(HandOverFromElsewhere("task afterwards"));
    EXPECT_TRUE(WaitFor([this] { return !tasks.empty(); }));
    EXPECT_EQ(tasks, std::vector<std::string>{"task afterwards"});
  }

  FirstCopy first{Place()};
};

TEST_F(HostileVisitors, WhoSaysNothingIsLeft) {
  const auto silent = Visit();
  EXPECT_TRUE(HasBeenLeft(*silent));
  ExpectToWorkStill();
}

TEST_F(HostileVisitors, WhoDoesNotConfirmIsLeftAndNothingIsDone) {
  const auto visitor = Visit();
  visitor->write(QByteArray("\0task\0", 6));
  EXPECT_TRUE(WaitFor([&] { return visitor->bytesAvailable() > 0; }));
  EXPECT_EQ(visitor->readAll(), "y");
  EXPECT_TRUE(HasBeenLeft(*visitor));
  EXPECT_TRUE(tasks.empty());
}

TEST_F(HostileVisitors, WhoSaysNoHasNothingDone) {
  const auto visitor = Visit();
  visitor->write(QByteArray("\0task\0", 6));
  EXPECT_TRUE(WaitFor([&] { return visitor->bytesAvailable() > 0; }));
  visitor->write("n");
  EXPECT_TRUE(HasBeenLeft(*visitor));
  EXPECT_TRUE(tokens.empty());
}

TEST_F(HostileVisitors, WhoLeavesBeforeTheAnswerHasNothingDone) {
  const auto visitor = Visit();
  visitor->write(QByteArray("\0task\0", 6));
  visitor->flush();
  visitor->abort();
  ExpectToWorkStill();
}

TEST_F(HostileVisitors, WhoConfirmsInAdvanceIsLeft) {
  const auto visitor = Visit();
  visitor->write(QByteArray("\0task\0y", 7));
  bool isAnswered = false;
  EXPECT_TRUE(WaitFor([&] {
    isAnswered = isAnswered || visitor->bytesAvailable() > 0;
    return visitor->state() == QLocalSocket::UnconnectedState;
  }));
  EXPECT_FALSE(isAnswered);
  EXPECT_TRUE(tasks.empty());
}

TEST_F(HostileVisitors, OneByteAtATimeIsUnderstood) {
  const auto visitor = Visit();
  for (const char byte : QByteArray("\0task\0", 6)) {
    visitor->write(&byte, 1);
    visitor->flush();
    QCoreApplication::processEvents();
  }
  EXPECT_TRUE(WaitFor([&] { return visitor->bytesAvailable() > 0; }));
  visitor->write("y");
  EXPECT_TRUE(WaitFor([this] { return !tasks.empty(); }));
}

TEST_F(HostileVisitors, MegabytesAreNotRead) {
  const auto visitor = Visit();
  visitor->write(QByteArray(20'000'000, 'x'));
  EXPECT_TRUE(HasBeenLeft(*visitor));
  ExpectToWorkStill();
}

TEST_F(HostileVisitors, GarbageIsLeft) {
  std::mt19937 random(1);
  for (int round = 0; round < 200; ++round) {
    QByteArray garbage(static_cast<qsizetype>(random() % 300 + 2), Qt::Uninitialized);
    for (char& byte : garbage) byte = static_cast<char>(random() % 4 == 0 ? 0 : random());
    garbage.append(QByteArray(2, '\0'));
    const auto visitor = Visit();
    visitor->write(garbage);
    EXPECT_TRUE(HasBeenLeft(*visitor));
  }
  EXPECT_TRUE(tasks.empty());
  ExpectToWorkStill();
}

TEST_F(HostileVisitors, AThousandAtOnceDoNotStopTheProgram) {
  std::vector<std::unique_ptr<QLocalSocket>> crowd;
  for (int count = 0; count < 1000; ++count) {
    crowd.push_back(std::make_unique<QLocalSocket>());
    crowd.back()->connectToServer(Place().server);
    QCoreApplication::processEvents();
  }
  // Those who were let in are left when the patience with them ends.
  EXPECT_TRUE(WaitFor([&] {
    return std::ranges::all_of(crowd, [](const auto& visitor) {
      return visitor->state() == QLocalSocket::UnconnectedState;
    });
  }));
  ExpectToWorkStill();
}

}  // namespace
}  // namespace verlume::qt
