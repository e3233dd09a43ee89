// Hostile callers: plain TCP sockets that misbehave.
#include <gtest/gtest.h>
#include <sys/resource.h>

#include <QAbstractEventDispatcher>
#include <QEventLoop>
#include <QTest>
#include <QTimer>
#include <chrono>
#include <iostream>
#include <list>

#include "platform/socket_contract.h"
#include "platform_qt/net/descriptors.h"
#include "platform_qt/net/raw_peer.h"
#include "platform_qt/net/socket.h"
#include "platform_qt/world.h"

namespace verlume::qt {
namespace {

int warnings = 0;

class QtSocketCallers : public testing::Test {
 protected:
  QtSocketCallers() {
    warnings = 0;
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString& text) {
      ++warnings;
      std::cerr << text.toStdString() << std::endl;
    });
    socket.SetLocalPort(0);
    socket.Listen();
    port = socket.LocalPort();
    WaitForThread(socket);
  }
  ~QtSocketCallers() override {
    qInstallMessageHandler(nullptr);
    EXPECT_EQ(warnings, 0) << "a caller must not be able to fill the log";
  }

  // The network thread opens a descriptor of its own when it starts.
  static void WaitForThread(const QtSocket& owner) {
    const auto* thread = owner.findChild<QThread*>();
    ASSERT_NE(thread, nullptr);
    ASSERT_TRUE(WaitFor([&] { return thread->eventDispatcher() != nullptr; }));
  }
  bool WaitForRequest() {
    return WaitFor([&] { return !user.requests.empty(); });
  }
  void Answer() {
    socket.Close();
    socket.Accept(user.requests.back());
  }
  void ConnectTo(RawPeer& peer) {
    ASSERT_TRUE(WaitForRequest());
    Answer();
    ASSERT_EQ(socket.State(), SocketState::Connected);
    ASSERT_TRUE(peer.IsConnected());
  }
  // How often the event loop wakes up while nothing happens for 300 ms.
  int WakeUpsWhileIdle() {
    int wakeUps = 0;
    QEventLoop loop;
    QObject::connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::awake, &loop,
                     [&] { ++wakeUps; });
    QTimer::singleShot(std::chrono::milliseconds(300), &loop, &QEventLoop::quit);
    loop.exec();
    return wakeUps;
  }
  // How many bytes Qt has read ahead.
  qint64 BytesHeld() const {
    qint64 held = 0;
    for (const QTcpSocket* each : socket.findChildren<QTcpSocket*>())
      held += each->bytesAvailable();
    return held;
  }

  QtSocket socket;
  SocketUser user{socket};
  std::int32_t port = 0;
};

TEST_F(QtSocketCallers, ARequestThatIsHeldIsRaisedAfterwards) {
  int asked = 0;
  socket.HoldRequestsWhile([&] { return ++asked < 3; });
  const RawPeer peer(port);
  ASSERT_TRUE(WaitForRequest());
  EXPECT_EQ(asked, 3);
  EXPECT_EQ(user.requests.size(), 1u);
}

TEST_F(QtSocketCallers, OneThatSaysNothingCostsNothing) {
  RawPeer peer(port);
  ASSERT_TRUE(WaitForRequest());
  EXPECT_LE(WakeUpsWhileIdle(), 5) << "while it is asked about";
  Answer();
  EXPECT_LE(WakeUpsWhileIdle(), 5) << "once it is answered";
  EXPECT_EQ(user.Events(), 1u);
}

TEST_F(QtSocketCallers, OneThatSaysNothingIsClosedAtOnce) {
  RawPeer peer(port);
  ASSERT_NO_FATAL_FAILURE(ConnectTo(peer));
  socket.Close();
  EXPECT_EQ(socket.State(), SocketState::Closed);
  EXPECT_TRUE(WaitFor([&] { return peer.HasEnded(); }));
  EXPECT_EQ(user.Events(), 1u);
}

TEST_F(QtSocketCallers, OneThatFloodsBeforeItIsAcceptedIsSlowedDown) {
  RawPeer peer(port, 64 << 10);
  ASSERT_TRUE(WaitForRequest());
  const std::string bytes(64 << 10, 'x');
  std::size_t sent = 0;
  qint64 held = 0;
  for (int idle = 0; idle < 50 && sent < (10 << 20); ++idle) {
    while (const std::size_t taken = peer.Send(bytes)) {
      sent += taken;
      idle = 0;
    }
    QTest::qWait(1);
    held = std::max(held, BytesHeld());
  }
  EXPECT_GT(sent, 0u);
  EXPECT_LT(sent, 4u << 20);
  EXPECT_LE(held, 256 << 10);
  EXPECT_EQ(user.Events(), 1u);

  Answer();
  EXPECT_TRUE(WaitFor([&] { return user.Received().size() == sent; }));
}

TEST_F(QtSocketCallers, OneThatHasResetBeforeItIsTakenIsNotAskedAbout) {
  for (int i = 0; i < 20; ++i) RawPeer(port).Reset();
  RawPeer peer(port);
  ASSERT_TRUE(WaitForRequest());
  EXPECT_EQ(socket.RemoteHostIP(), u"127.0.0.1");
  EXPECT_EQ(socket.RemotePort(), peer.OwnPort());
  EXPECT_EQ(user.requests.size(), 1u);
}

TEST_F(QtSocketCallers, OneThatResetsWhileAskedAboutCloses) {
  RawPeer peer(port);
  peer.Send("hello");
  ASSERT_TRUE(WaitForRequest());
  peer.Reset();
  Answer();
  socket.SendData(u"into the void", TextKind::Line);
  EXPECT_TRUE(WaitFor([&] { return user.closes == 1; }));
  EXPECT_EQ(socket.State(), SocketState::Closed);
}

TEST_F(QtSocketCallers, OneThatResetsAfterALotOfTextCloses) {
  RawPeer peer(port);
  const std::string bytes(1 << 20, 'x');
  ASSERT_TRUE(WaitForRequest());
  ASSERT_TRUE(WaitFor([&] {
    peer.Send(bytes);
    return BytesHeld() == 256 << 10;
  }));
  peer.Reset();
  Answer();
  socket.SendData(u"into the void", TextKind::Line);
  EXPECT_TRUE(WaitFor([&] { return user.closes == 1; }));
  EXPECT_EQ(user.textsBeforeClose, user.texts.size());
}

TEST_F(QtSocketCallers, OneThatHalfClosesHasLeft) {
  RawPeer asked(port);
  ASSERT_TRUE(WaitForRequest());
  asked.HalfClose();
  Answer();
  EXPECT_TRUE(WaitFor([&] { return user.closes == 1; })) << "while it is asked about";

  socket.Listen();
  user.requests.clear();
  RawPeer connected(port);
  ASSERT_NO_FATAL_FAILURE(ConnectTo(connected));
  connected.Send("good bye");
  connected.HalfClose();
  EXPECT_TRUE(WaitFor([&] { return user.closes == 2; })) << "in the conversation";
  EXPECT_EQ(user.Received(), u"good bye");
  EXPECT_TRUE(WaitFor([&] { return connected.HasEnded(); }));
}

TEST_F(QtSocketCallers, ManyThatAreTurnedAwayLeaveNothingBehind) {
  user.answer = [this](std::int64_t id) { socket.Reject(id); };
  std::size_t descriptors = 0;
  for (std::size_t call = 1; call <= 300; ++call) {
    RawPeer peer(port);
    peer.Send("take me");
    ASSERT_TRUE(WaitFor([&] { return peer.HasEnded(); }));
    EXPECT_EQ(user.requests.size(), call);
    const auto inUse = static_cast<std::size_t>(DescriptorsInUse());
    if (call == 10) descriptors = inUse;
    if (call > 10) {
      EXPECT_LE(inUse, descriptors + 1);
    }
  }
  EXPECT_EQ(socket.State(), SocketState::Listening);
  EXPECT_EQ(user.texts.size() + user.closes, 0u);
}

TEST_F(QtSocketCallers, AThousandInTheBacklogCostNoDescriptor) {
  RawPeer first(port);
  ASSERT_TRUE(WaitForRequest());
  const qsizetype before = DescriptorsInUse();
  for (int i = 0; i < 1000; ++i) {
    RawPeer peer(port);
    peer.Send("hello");
    if (i % 2 == 0) peer.Reset();
    QTest::qWait(0);
  }
  EXPECT_EQ(DescriptorsInUse(), before);
  EXPECT_EQ(user.Events(), 1u);
  Answer();
  EXPECT_EQ(socket.State(), SocketState::Connected);
  socket.SendData(u"welcome", TextKind::Line);
  EXPECT_TRUE(WaitFor([&] {
    EXPECT_FALSE(first.HasEnded());
    return first.Received() == "welcome";
  }));
}

TEST_F(QtSocketCallers, HundredsThatAreRefusedLeakNothing) {
  const qsizetype before = DescriptorsInUse();
  for (std::size_t i = 0; i < 300; ++i) {
    socket.SetLocalPort(port);
    socket.Listen();
    RawPeer peer(port);
    ASSERT_TRUE(WaitFor([&] { return user.requests.size() == i + 1; }));
    socket.Close();
    ASSERT_TRUE(WaitFor([&] { return peer.HasEnded(); }));
  }
  EXPECT_EQ(user.closes, 0u);
  socket.Listen();
  EXPECT_TRUE(WaitFor([&] { return DescriptorsInUse() == before; }));
  EXPECT_TRUE(WaitFor([&] { return socket.findChildren<QTcpSocket*>().isEmpty(); }));
}

TEST_F(QtSocketCallers, AlternatingListenAndConnectLeaksNothing) {
  QtSocket callee;
  callee.SetLocalPort(0);
  callee.Listen();
  socket.SetRemoteHost(u"127.0.0.1");
  socket.SetRemotePort(callee.LocalPort());
  WaitForThread(callee);
  const qsizetype before = DescriptorsInUse();
  for (int i = 0; i < 1000; ++i) {
    socket.Connect();
    if (i % 10 == 0) QCoreApplication::processEvents();
    socket.SetLocalPort(port);
    socket.Listen();
  }
  EXPECT_EQ(socket.State(), SocketState::Listening);
  EXPECT_EQ(user.requests.size() + user.closes, 0u);
  EXPECT_TRUE(WaitFor([&] { return DescriptorsInUse() == before; }));
  EXPECT_TRUE(WaitFor([&] { return socket.findChildren<QTcpSocket*>().isEmpty(); }));
  RawPeer peer(port);
  EXPECT_TRUE(WaitForRequest()) << "and it still listens";
}

TEST_F(QtSocketCallers, OthersAreRefusedDuringAConversation) {
  RawPeer peer(port);
  ASSERT_NO_FATAL_FAILURE(ConnectTo(peer));
  for (int i = 0; i < 10; ++i) {
    RawPeer late(port);
    EXPECT_TRUE(WaitFor([&] { return late.HasEnded(); }));
    EXPECT_FALSE(late.IsConnected());
  }
  EXPECT_EQ(user.Events(), 1u);
  EXPECT_FALSE(peer.HasEnded());
}

TEST_F(QtSocketCallers, TheBacklogIsRefusedWhenTheFirstIsAccepted) {
  RawPeer first(port);
  ASSERT_TRUE(WaitForRequest());
  std::list<RawPeer> waiting;
  for (int i = 0; i < 10; ++i) waiting.emplace_back(port);
  for (const RawPeer& peer : waiting) ASSERT_TRUE(WaitFor([&] { return peer.IsConnected(); }));
  Answer();
  for (RawPeer& peer : waiting) EXPECT_TRUE(WaitFor([&] { return peer.HasEnded(); }));
  EXPECT_FALSE(first.HasEnded());
  EXPECT_EQ(user.Events(), 1u);
}

// Uses up the descriptors of the process while it exists.
class NoDescriptors {
 public:
  NoDescriptors() {
    ::getrlimit(RLIMIT_NOFILE, &before_);
    const rlimit few = {256, before_.rlim_max};
    ::setrlimit(RLIMIT_NOFILE, &few);
    for (int taken = ::dup(0); taken >= 0; taken = ::dup(0)) taken_.push_back(taken);
  }
  ~NoDescriptors() {
    for (const int taken : taken_) ::close(taken);
    ::setrlimit(RLIMIT_NOFILE, &before_);
  }

 private:
  rlimit before_;
  std::vector<int> taken_;
};

TEST_F(QtSocketCallers, OneThatCouldNotBeAcceptedIsAskedAboutLater) {
  // Sanitizers open descriptors when they see a class for the first time.
  WakeUpsWhileIdle();
  RawPeer peer(port);
  {
    const NoDescriptors none;
    EXPECT_LE(WakeUpsWhileIdle(), 10) << "no busy loop";
    EXPECT_EQ(user.Events(), 0u);
  }
  EXPECT_TRUE(WaitForRequest());
}

}  // namespace
}  // namespace verlume::qt
