#include "platform_qt/net/socket.h"

#include <gtest/gtest.h>

#include <QEventLoop>
#include <QTest>
#include <chrono>
#include <numeric>

#include "platform/socket_contract.h"
#include "platform_qt/convert/text.h"
#include "platform_qt/net/descriptors.h"
#include "platform_qt/net/socket_address.h"
#include "platform_qt/world.h"

namespace verlume::qt {
namespace {

class QtIPv6World : public QtWorld {
 public:
  std::u16string Host() const { return u"::1"; }
};

}  // namespace
}  // namespace verlume::qt

namespace verlume {
INSTANTIATE_TYPED_TEST_SUITE_P(QtSocket, SocketContract, qt::QtWorld);
INSTANTIATE_TYPED_TEST_SUITE_P(QtSocketOverIPv6, SocketContract, qt::QtIPv6World);
}  // namespace verlume

namespace verlume::qt {
namespace {

using namespace std::chrono_literals;
using std::chrono::steady_clock;

// A socket that accepts the call of a plain TCP peer.
class QtSocketTest : public testing::Test {
 protected:
  explicit QtSocketTest(std::chrono::milliseconds timeout = stream::ArrivalAssembler::kTimeout)
      : socket(std::make_unique<QtSocket>(timeout)) {
    user.answer = [this](std::int64_t id) {
      askingAddress = socket->RemoteHostIP();
      socket->Close();
      socket->Accept(id);
    };
  }

  void Connect(const QHostAddress& address = QHostAddress(QHostAddress::LocalHost)) {
    socket->SetLocalPort(0);
    socket->Listen();
    peer.connectToHost(address, static_cast<quint16>(socket->LocalPort()));
    ASSERT_TRUE(WaitFor([&] {
      return socket->State() == SocketState::Connected &&
             peer.state() == QAbstractSocket::ConnectedState;
    }));
  }
  bool WaitForTexts(std::size_t count) {
    return WaitFor([&] { return user.texts.size() >= count; });
  }

  std::unique_ptr<QtSocket> socket;
  SocketUser user{*socket};
  std::u16string askingAddress;
  QTcpSocket peer;
};

// A socket with a short timeout for incomplete texts.
class QtSocketTimeoutTest : public QtSocketTest {
 protected:
  QtSocketTimeoutTest() : QtSocketTest(kTimeout) {}
  static constexpr std::chrono::milliseconds kTimeout{300};
};

// A call that must fail.
class QtSocketCallTest : public testing::Test {
 protected:
  void ExpectClose(std::u16string_view host, std::int32_t port) {
    socket.SetRemoteHost(host);
    socket.SetRemotePort(port);
    socket.Connect();
    EXPECT_EQ(user.closes, 0u);
    EXPECT_TRUE(WaitFor([&] { return user.closes == 1; }));
    EXPECT_EQ(user.connects, 0u);
    EXPECT_EQ(socket.State(), SocketState::Closed);
  }

  QtSocket socket;
  SocketUser user{socket};
};

TEST_F(QtSocketTest, AnIPv4CallerIsShownAsPlainIPv4) {
  ASSERT_NO_FATAL_FAILURE(Connect());
  EXPECT_EQ(askingAddress, u"127.0.0.1");
  EXPECT_EQ(socket->RemoteHostIP(), u"127.0.0.1");
  EXPECT_EQ(socket->RemotePort(), peer.localPort());
}

TEST_F(QtSocketTest, IPv6CallersGetThrough) {
  ASSERT_NO_FATAL_FAILURE(Connect(QHostAddress(QHostAddress::LocalHostIPv6)));
  EXPECT_EQ(askingAddress, u"::1");
}

TEST_F(QtSocketTest, HostsMayBeNamesOrAddressesOfEitherKind) {
  for (const auto* host : {u"127.0.0.1", u" 127.0.0.1 ", u"localhost", u"::1", u"[::1]"}) {
    QtSocket caller;
    SocketUser callerUser(caller);
    user.answer = nullptr;
    socket->SetLocalPort(0);
    socket->Listen();
    caller.SetRemoteHost(host);
    caller.SetRemotePort(socket->LocalPort());
    caller.Connect();
    EXPECT_TRUE(WaitFor([&] { return callerUser.connects == 1; })) << ToQt(host).toStdString();
    EXPECT_EQ(caller.RemotePort(), socket->LocalPort());
  }
}

TEST_F(QtSocketTest, ADocumentInTwoWritesArrivesAsOne) {
  ASSERT_NO_FATAL_FAILURE(Connect());
  peer.write("{\\rtf1 {\\b he");
  QTimer::singleShot(30, &peer, [&] { peer.write("llo}}"); });
  ASSERT_TRUE(WaitForTexts(1));
  EXPECT_EQ(user.texts, std::vector<std::u16string>{u"{\\rtf1 {\\b hello}}"});
}

TEST_F(QtSocketTimeoutTest, AnIncompleteDocumentIsDeliveredAfterTheTimeout) {
  ASSERT_NO_FATAL_FAILURE(Connect());
  const auto start = steady_clock::now();
  peer.write("{\\rtf1 he");
  ASSERT_TRUE(WaitForTexts(1));
  EXPECT_EQ(user.texts[0], u"{\\rtf1 he");
  EXPECT_GE(steady_clock::now() - start, kTimeout);
}

TEST_F(QtSocketTest, AnIncompleteDocumentArrivesBeforeTheClose) {
  ASSERT_NO_FATAL_FAILURE(Connect());
  peer.write("{\\rtf1 he");
  peer.disconnectFromHost();
  ASSERT_TRUE(WaitFor([&] { return user.closes == 1; }));
  EXPECT_EQ(user.textsBeforeClose, 1u);
  EXPECT_EQ(user.Received(), u"{\\rtf1 he");
}

TEST_F(QtSocketTest, AFloodOfPausedArrivalsSlowsThePeerDown) {
  ASSERT_NO_FATAL_FAILURE(Connect());
  peer.write("first");
  ASSERT_TRUE(WaitForTexts(1));
  socket->PauseArrivals();
  // More than the two machines hold for each other.
  const QByteArray flood(32 << 20, 'x');
  peer.write(flood);
  qint64 toWrite = flood.size();
  auto lastWrite = steady_clock::now();
  ASSERT_TRUE(WaitFor([&] {
    const qint64 before = std::exchange(toWrite, peer.bytesToWrite());
    if (toWrite != before) lastWrite = steady_clock::now();
    return toWrite < flood.size() && steady_clock::now() - lastWrite > 300ms;
  }));
  EXPECT_GT(peer.bytesToWrite(), 0);
  EXPECT_EQ(user.texts.size(), 1u);
  socket->ResumeArrivals();
  const auto arrived = [&] {
    return std::accumulate(user.totals.begin(), user.totals.end(), std::int64_t{0});
  };
  EXPECT_TRUE(WaitFor([&] { return arrived() == 5 + flood.size(); })) << arrived();
}

TEST_F(QtSocketTimeoutTest, ADocumentDoesNotTimeOutWhileNothingIsRead) {
  socket->PauseArrivals();
  ASSERT_NO_FATAL_FAILURE(Connect());
  // Two of these fill the queue of arrivals; then no more is read.
  const QByteArray document = "{\\rtf1 " + QByteArray(stream::ArrivalQueue::kLimit / 2, 'x') + "}";
  peer.write(document + document + "{\\rtf1 he");
  ASSERT_TRUE(WaitFor([&] { return peer.bytesToWrite() == 0; }));
  const auto start = steady_clock::now();
  ASSERT_TRUE(WaitFor([&] { return steady_clock::now() - start > 2 * kTimeout; }));
  peer.write("llo}");
  ASSERT_TRUE(WaitFor([&] { return peer.bytesToWrite() == 0; }));
  socket->ResumeArrivals();
  ASSERT_TRUE(WaitForTexts(3));
  EXPECT_EQ(user.texts[2], u"{\\rtf1 hello}");
}

// The sender allows 20 ms for reading a text; this thread handles no event until all are sent.
TEST_F(QtSocketTest, TextsThatComeWhileTheUserInterfaceIsBusyArriveApart) {
  QtSocket caller;
  socket->SetLocalPort(0);
  socket->Listen();
  caller.SetRemoteHost(u"127.0.0.1");
  caller.SetRemotePort(socket->LocalPort());
  caller.Connect();
  ASSERT_TRUE(WaitFor([&] {
    return socket->State() == SocketState::Connected && caller.State() == SocketState::Connected;
  }));
  const std::vector<std::u16string> texts = {u"one", u"two", u"three", u"four"};
  for (const std::u16string& text : texts) caller.SendData(text, TextKind::Line);
  const auto deadline = steady_clock::now() + 10s;
  while (caller.LinesWaiting() > 0 && steady_clock::now() < deadline) {
    QThread::yieldCurrentThread();
  }
  ASSERT_EQ(caller.LinesWaiting(), 0u);
  EXPECT_TRUE(user.texts.empty());
  ASSERT_TRUE(WaitForTexts(texts.size()));
  EXPECT_EQ(user.texts, texts);
}

TEST_F(QtSocketTest, ALargeDocumentArrivesComplete) {
  ASSERT_NO_FATAL_FAILURE(Connect());
  const QByteArray document = "{\\rtf1 " + QByteArray(1 << 20, 'x') + "}";
  peer.write(document);
  ASSERT_TRUE(WaitForTexts(1));
  EXPECT_EQ(user.totals[0], document.size());
  EXPECT_EQ(user.texts[0].size(), static_cast<std::size_t>(document.size()));
}

TEST_F(QtSocketTest, AFloodIsReadInBoundedReads) {
  ASSERT_NO_FATAL_FAILURE(Connect());
  constexpr std::size_t kFlood = 8 << 20;
  peer.write(QByteArray(kFlood, 'x'));
  std::size_t received = 0;
  std::int32_t largest = 0;
  socket->onDataArrival = [&](std::int32_t total) {
    received += socket->GetData().size();
    largest = std::max(largest, total);
  };
  ASSERT_TRUE(WaitFor([&] { return received == kFlood; }));
  EXPECT_LE(largest, 256 << 10);
}

TEST_F(QtSocketTest, ALargeTextStillArrivesAfterTheClose) {
  ASSERT_NO_FATAL_FAILURE(Connect());
  const std::u16string text(8 << 20, u'x');
  socket->SendData(text, TextKind::Line);
  socket->Close();
  QByteArray received;
  QObject::connect(&peer, &QTcpSocket::readyRead, [&] { received += peer.readAll(); });
  ASSERT_TRUE(WaitFor([&] { return peer.state() == QAbstractSocket::UnconnectedState; }));
  received += peer.readAll();
  EXPECT_EQ(static_cast<std::size_t>(received.size()), text.size());
}

TEST_F(QtSocketTest, UnreadArrivalsDoNotLoseTheLastText) {
  ASSERT_NO_FATAL_FAILURE(Connect());
  const std::u16string lastText(4 << 20, u'x');
  const QByteArray chatter(64 << 10, 'y');
  qsizetype received = 0;
  QObject::connect(&peer, &QTcpSocket::readyRead, [&] { received += peer.readAll().size(); });
  QObject::connect(&peer, &QTcpSocket::bytesWritten, [&] {
    if (peer.bytesToWrite() == 0) peer.write(chatter);
  });
  peer.write(chatter);
  ASSERT_TRUE(WaitForTexts(1));
  socket->SendData(lastText, TextKind::Line);
  socket->Close();
  ASSERT_TRUE(WaitFor([&] { return peer.state() == QAbstractSocket::UnconnectedState; }));
  received += peer.readAll().size();
  EXPECT_EQ(static_cast<std::size_t>(received), lastText.size());
}

TEST_F(QtSocketTest, TheLastTextArrivesWhenTheSocketIsDestroyed) {
  ASSERT_NO_FATAL_FAILURE(Connect());
  socket->SendData(u"good bye", TextKind::Line);
  socket->Close();
  socket.reset();
  ASSERT_TRUE(WaitFor([&] { return peer.state() == QAbstractSocket::UnconnectedState; }));
  EXPECT_EQ(peer.readAll(), "good bye");
}

TEST_F(QtSocketTest, APeerThatNeverClosesIsAbortedAfterAWhile) {
  ASSERT_NO_FATAL_FAILURE(Connect());
  const auto isOpen = [this] { return SocketConnectedTo(peer.localPort()) != kNoSocket; };
  peer.setReadBufferSize(1);
  socket->SendData(std::u16string(16 << 20, u'x'), TextKind::Line);
  socket->Close();
  EXPECT_TRUE(isOpen());
  EXPECT_TRUE(WaitFor([&] { return !isOpen(); }));
}

TEST_F(QtSocketTest, EventsComeThroughWhileAHandlerBlocks) {
  ASSERT_NO_FATAL_FAILURE(Connect());
  QEventLoop box;
  int depth = 0;
  socket->onDataArrival = [&](std::int32_t) {
    user.texts.push_back(socket->GetData());
    if (++depth == 1) box.exec();
  };
  socket->onClose = [&] {
    ++user.closes;
    box.quit();
  };
  peer.write("first");
  QTimer::singleShot(30, &peer, [&] {
    peer.write("second");
    peer.disconnectFromHost();
  });
  ASSERT_TRUE(WaitFor([&] { return user.closes == 1; }));
  EXPECT_EQ(user.texts, (std::vector<std::u16string>{u"first", u"second"}));
}

TEST_F(QtSocketTest, AHandlerThatBlocksMayFindItsConnectionEnded) {
  ASSERT_NO_FATAL_FAILURE(Connect());
  QEventLoop box;
  bool isBack = false;
  socket->onDataArrival = [&](std::int32_t) {
    box.exec();
    socket->SendData(u"into the void", TextKind::Line);
    isBack = true;
  };
  socket->onClose = [&] {
    socket->Close();
    QTimer::singleShot(0, &box, &QEventLoop::quit);
  };
  peer.write("text");
  QTimer::singleShot(30, &peer, [&] { peer.abort(); });
  EXPECT_TRUE(WaitFor([&] { return isBack; }));
  EXPECT_EQ(socket->State(), SocketState::Closed);
}

TEST_F(QtSocketTest, ACallerMayLeaveWhileTheUserIsAsked) {
  socket->onConnectionRequest = [&](std::int64_t id) {
    QEventLoop box;
    QObject::connect(&peer, &QTcpSocket::disconnected, &box, &QEventLoop::quit);
    peer.write("hello");
    QTimer::singleShot(30, &peer, [&] { peer.disconnectFromHost(); });
    box.exec();
    socket->Close();
    socket->Accept(id);
  };
  socket->SetLocalPort(0);
  socket->Listen();
  peer.connectToHost(QHostAddress::LocalHost, static_cast<quint16>(socket->LocalPort()));
  ASSERT_TRUE(WaitFor([&] { return user.closes == 1; }));
  EXPECT_EQ(user.textsBeforeClose, 1u);
  EXPECT_EQ(user.Received(), u"hello");
}

TEST_F(QtSocketTest, AConnectionThatBreaksCloses) {
  ASSERT_NO_FATAL_FAILURE(Connect());
  socket->SendData(u"unread", TextKind::Line);  // makes the peer's end a reset
  ASSERT_TRUE(WaitFor([&] { return peer.bytesAvailable() > 0; }));
  peer.abort();
  EXPECT_TRUE(WaitFor([&] { return user.closes == 1; }));
}

TEST_F(QtSocketCallTest, PortsThatDoNotExistClose) {
  ExpectClose(u"127.0.0.1", 0);
}

TEST_F(QtSocketCallTest, PortsBeyondTheLastOneClose) {
  ExpectClose(u"127.0.0.1", 65536 + 80);
}

TEST_F(QtSocketCallTest, AnEmptyHostCloses) {
  ExpectClose(u"", 1000);
  EXPECT_EQ(socket.LastCallFailure(), CallFailure::Other);
}

TEST_F(QtSocketCallTest, EmptyBracketsClose) {
  ExpectClose(u" [ ] ", 1000);
}

TEST_F(QtSocketCallTest, AnUnknownNameCloses) {
  ExpectClose(u"nobody.invalid", 1000);
}

TEST_F(QtSocketCallTest, AMalformedNameCloses) {
  ExpectClose(u"\xD800 ..\x01 αβγ" + std::u16string(400, u'x'), 1000);
}

TEST_F(QtSocketCallTest, ACancelledLookUpIsKnownUntilTheSystemHasAnswered) {
  socket.SetRemoteHost(u"nobody.invalid");
  socket.SetRemotePort(1000);
  socket.Connect();
  EXPECT_TRUE(socket.IsLookingUp());
  socket.Close();
  EXPECT_TRUE(socket.IsLookingUp());
  EXPECT_TRUE(WaitFor([&] { return !socket.IsLookingUp(); }));
  EXPECT_EQ(user.Events(), 0u);
}

TEST_F(QtSocketCallTest, AnAddressIsNotLookedUp) {
  socket.SetRemoteHost(u"[::1]");
  socket.SetRemotePort(1000);
  socket.Connect();
  EXPECT_FALSE(socket.IsLookingUp());
}

TEST(QtSocketListening, APortBeyondTheLastOneFails) {
  QtSocket socket;
  socket.SetLocalPort(65536);
  EXPECT_THROW(socket.Listen(), RunTimeFailure);
  socket.SetLocalPort(-1);
  EXPECT_THROW(socket.Listen(), RunTimeFailure);
}

TEST(QtSocketAddress, IPv4OverIPv6IsShownPlain) {
  EXPECT_EQ(AddressText(QHostAddress("::ffff:192.0.2.7")), "192.0.2.7");
  EXPECT_EQ(AddressText(QHostAddress("2001:db8::7")), "2001:db8::7");
}

TEST(QtSocketAddress, TheOwnAddressIsAnAddress) {
  EXPECT_FALSE(QHostAddress(OwnAddress()).isNull());
}

}  // namespace
}  // namespace verlume::qt
