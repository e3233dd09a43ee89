// The way of a text from SendData to the acknowledgement by the peer's machine.
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <sys/socket.h>

#include <QTcpServer>
#include <chrono>
#include <thread>

#include "platform_qt/net/descriptors.h"
#include "platform_qt/net/socket.h"
#include "platform_qt/world.h"

namespace verlume::qt {
namespace {

using namespace std::chrono_literals;
using std::chrono::steady_clock;
using testing::ElementsAre;

// A socket that has called a plain TCP peer, which reads at once or not at all.
class QtSenderTest : public testing::Test {
 protected:
  void SetUp() override {
    socket.onAcknowledged = [this] { waitingWhenAcknowledged.push_back(socket.LinesWaiting()); };
    socket.onUndelivered = [this](std::size_t lines, ConnectionNumber connection) {
      undelivered.push_back(lines);
      undeliveredOf = connection;
      closesBefore = closes;
    };
    socket.onClose = [this] { ++closes; };
    ASSERT_TRUE(server.listen(QHostAddress::LocalHost));
    socket.SetRemoteHost(u"127.0.0.1");
    socket.SetRemotePort(server.serverPort());
    socket.Connect();
    ASSERT_TRUE(WaitFor([&] {
      return server.hasPendingConnections() && socket.State() == SocketState::Connected;
    }));
    peer.reset(server.nextPendingConnection());
  }
  void TearDown() override { peer.reset(); }

  void PeerReads() {
    QObject::connect(peer.get(), &QTcpSocket::readyRead, [this] { read += peer->readAll(); });
  }
  // More than the buffers of both systems hold, so that the line stays in flight while the peer
  // does not read.
  void SendMoreThanFits() {
    peer->setReadBufferSize(1);
    socket.SendData(std::u16string(16 << 20, u'x'), TextKind::Line);
  }
  static int Option(int socket, int level, int option) {
    int value = 0;
    socklen_t size = sizeof value;
    ::getsockopt(socket, level, option, &value, &size);
    return value;
  }

  QTcpServer server;
  QtSocket socket;
  std::unique_ptr<QTcpSocket> peer;
  QByteArray read;
  std::vector<std::size_t> waitingWhenAcknowledged;
  std::vector<std::size_t> undelivered;
  ConnectionNumber undeliveredOf = 0;
  int closes = 0;
  int closesBefore = -1;
};

TEST_F(QtSenderTest, TextsSentAtOnceArriveApart) {
  std::vector<QByteArray> arrivals;
  QObject::connect(peer.get(), &QTcpSocket::readyRead,
                   [&] { arrivals.push_back(peer->readAll()); });
  for (const char16_t* text : {u"one", u"two", u"three", u"four"}) {
    socket.SendData(text, TextKind::Line);
  }
  ASSERT_TRUE(WaitFor([&] { return arrivals.size() == 4; }));
  EXPECT_THAT(arrivals, ElementsAre("one", "two", "three", "four"));
}

TEST_F(QtSenderTest, ALineWaitsUntilThePeersMachineHasAllOfIt) {
  SendMoreThanFits();
  socket.SendData(u"second", TextKind::Line);
  socket.SendData(u"my name", TextKind::Signal);
  EXPECT_EQ(socket.LinesWaiting(), 2u);
  ASSERT_TRUE(WaitFor([&] { return peer->bytesAvailable() == 1; }));
  EXPECT_EQ(socket.LinesWaiting(), 2u);
  peer->setReadBufferSize(0);
  PeerReads();
  ASSERT_TRUE(WaitFor([&] { return read.endsWith("my name"); }));
  EXPECT_EQ(read.size(), (16 << 20) + 6 + 7);
  EXPECT_TRUE(
      WaitFor([&] { return !waitingWhenAcknowledged.empty() && socket.LinesWaiting() == 0; }));
  EXPECT_EQ(waitingWhenAcknowledged.back(), 0u);
}

TEST_F(QtSenderTest, ABrokenConnectionRaisesUndeliveredBeforeClose) {
  SendMoreThanFits();
  socket.SendData(u"second", TextKind::Line);
  socket.SendData(u"my name", TextKind::Signal);
  peer->abort();
  ASSERT_TRUE(WaitFor([&] { return closes == 1; }));
  EXPECT_THAT(undelivered, ElementsAre(2));
  EXPECT_EQ(closesBefore, 0);
}

TEST_F(QtSenderTest, WhatThePeersMachineHasAcknowledgedIsDelivered) {
  PeerReads();
  socket.SendData(u"one", TextKind::Line);
  ASSERT_TRUE(WaitFor([&] { return read == "one"; }));
  peer->disconnectFromHost();
  ASSERT_TRUE(WaitFor([&] { return closes == 1; }));
  EXPECT_THAT(undelivered, ElementsAre());
}

TEST_F(QtSenderTest, AClosedConnectionRaisesUndeliveredForWhatItCouldNotSend) {
  SendMoreThanFits();
  socket.Close();
  EXPECT_THAT(undelivered, ElementsAre());
  EXPECT_EQ(socket.LinesWaiting(), 0u);
  ASSERT_TRUE(WaitFor([&] { return !undelivered.empty(); }));
  EXPECT_THAT(undelivered, ElementsAre(1));
  EXPECT_EQ(closes, 0);
}

TEST_F(QtSenderTest, WhatIsUndeliveredIsOfTheConnectionThatWasClosed) {
  SendMoreThanFits();
  const ConnectionNumber first = socket.CurrentConnection();
  socket.Close();
  socket.Connect();
  ASSERT_TRUE(WaitFor([&] { return socket.State() == SocketState::Connected; }));
  ASSERT_TRUE(WaitFor([&] { return !undelivered.empty(); }));
  EXPECT_EQ(undeliveredOf, first);
  EXPECT_NE(socket.CurrentConnection(), first);
}

TEST_F(QtSenderTest, AClosedConnectionStillSendsWhatIsQueued) {
  PeerReads();
  for (const char16_t* text : {u"one ", u"two ", u"three"}) socket.SendData(text, TextKind::Line);
  socket.Close();
  ASSERT_TRUE(WaitFor([&] { return peer->state() == QAbstractSocket::UnconnectedState; }));
  EXPECT_EQ(read, "one two three");
  EXPECT_THAT(undelivered, ElementsAre());
}

TEST_F(QtSenderTest, FinishSendingWaitsTwoSecondsAtMost) {
  SendMoreThanFits();
  socket.Close();
  const auto start = steady_clock::now();
  socket.FinishSending();
  EXPECT_GE(steady_clock::now() - start, 1900ms);
  EXPECT_LT(steady_clock::now() - start, 4s);
  EXPECT_THAT(undelivered, ElementsAre(1));
}

TEST_F(QtSenderTest, FinishSendingReturnsWhenEverythingIsSent) {
  socket.SendData(u"one ", TextKind::Line);
  socket.SendData(u"two", TextKind::Line);
  socket.Close();
  const auto start = steady_clock::now();
  socket.FinishSending();
  EXPECT_LT(steady_clock::now() - start, 1s);
  EXPECT_THAT(undelivered, ElementsAre());
  PeerReads();
  EXPECT_TRUE(WaitFor([&] { return read == "one two"; }));
}

TEST_F(QtSenderTest, VanishedPeersAreDetectedInTime) {
  const auto connection = static_cast<int>(SocketConnectedTo(server.serverPort()));
  ASSERT_GE(connection, 0);
  EXPECT_TRUE(WaitFor([&] { return Option(connection, IPPROTO_TCP, TCP_USER_TIMEOUT) > 0; }));
  EXPECT_LE(Option(connection, IPPROTO_TCP, TCP_USER_TIMEOUT), 20'000);
  EXPECT_EQ(Option(connection, SOL_SOCKET, SO_KEEPALIVE), 1);
  const int probes =
      Option(connection, IPPROTO_TCP, TCP_KEEPINTVL) * Option(connection, IPPROTO_TCP, TCP_KEEPCNT);
  EXPECT_LE(Option(connection, IPPROTO_TCP, TCP_KEEPIDLE) + probes, 30);
}

TEST(QtSenderThreadTest, UseOnAnotherThreadIsCaughtInDebugBuilds) {
  QTcpSocket connection;
  Sender sender(&connection);
  sender.Flush();
  EXPECT_DEATH(std::thread([&] { sender.Flush(); }).join(), "ASSERT.*thread");
}

}  // namespace
}  // namespace verlume::qt
