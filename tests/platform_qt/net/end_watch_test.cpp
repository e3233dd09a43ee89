// The end of a connection, before and after its socket came into other hands.
#include "platform_qt/net/end_watch.h"

#include <gtest/gtest.h>

#include <QTcpServer>
#include <QTest>

#include "platform_qt/net/raw_peer.h"
#include "platform_qt/os/tcp.h"

namespace verlume::qt {
namespace {

class EndWatchTest : public testing::Test {
 protected:
  EndWatchTest() {
    EXPECT_TRUE(server.listen(QHostAddress::LocalHost));
    peer.emplace(server.serverPort());
    EXPECT_TRUE(QTest::qWaitFor([this] { return server.hasPendingConnections(); }, 10000));
    accepted = server.nextPendingConnection();
  }

  // What the connection does when it becomes private.
  void ComeIntoOtherHands() {
    const SocketNumber number = DuplicateSocket(accepted->socketDescriptor());
    accepted->abort();
    QObject::connect(&socket, &QTcpSocket::disconnected, [this] { ++ends; });
    ASSERT_TRUE(socket.setSocketDescriptor(number));
    new EndWatch(&socket);
  }
  bool HasEnded() {
    return QTest::qWaitFor([this] { return ends > 0; }, 10000);
  }

  QTcpServer server;
  std::optional<RawPeer> peer;
  QTcpSocket* accepted = nullptr;
  QTcpSocket socket;
  int ends = 0;
};

TEST_F(EndWatchTest, ATextCanBeReadAndSoCanAReset) {
  const SocketNumber number = DuplicateSocket(accepted->socketDescriptor());
  EXPECT_FALSE(CanRead(number));
  peer->Send("hello");
  ASSERT_TRUE(QTest::qWaitFor([this] { return accepted->bytesAvailable() == 5; }, 10000));
  EXPECT_FALSE(CanRead(number)) << "Qt has read it";
  peer->Reset();
  EXPECT_TRUE(QTest::qWaitFor([&] { return CanRead(number); }, 10000));
  CloseSocket(number);
}

TEST_F(EndWatchTest, AResetBeforeIsNoticed) {
  peer->Reset();
  ASSERT_NO_FATAL_FAILURE(ComeIntoOtherHands());
  EXPECT_TRUE(HasEnded());
}

TEST_F(EndWatchTest, AResetDuringTheChangeIsNoticed) {
  ASSERT_NO_FATAL_FAILURE(ComeIntoOtherHands());
  peer->Reset();
  EXPECT_TRUE(HasEnded());
}

TEST_F(EndWatchTest, ATextBeforeTheEndIsRead) {
  peer->Send("hello");
  peer->HalfClose();
  ASSERT_NO_FATAL_FAILURE(ComeIntoOtherHands());
  ASSERT_TRUE(QTest::qWaitFor([this] { return socket.bytesAvailable() == 5; }, 10000));
  EXPECT_EQ(socket.readAll(), "hello");
  EXPECT_TRUE(HasEnded());
}

TEST_F(EndWatchTest, AConnectionThatGoesOnIsLeftAlone) {
  ASSERT_NO_FATAL_FAILURE(ComeIntoOtherHands());
  const bool isQuiet =
      QTest::qWaitFor([this] { return !socket.findChild<QTimer*>()->isActive(); }, 10000);
  ASSERT_TRUE(isQuiet);
  peer->Send("hello");
  ASSERT_TRUE(QTest::qWaitFor([this] { return socket.bytesAvailable() == 5; }, 10000));
  EXPECT_EQ(ends, 0);
}

}  // namespace
}  // namespace verlume::qt
