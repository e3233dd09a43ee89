// The program's socket in a conversation with a peer that keeps to the protocol as far as a test
// wants.
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QCryptographicHash>
#include <optional>
#include <string>
#include <vector>

#include "platform/socket_user.h"
#include "platform_qt/net/descriptors.h"
#include "platform_qt/net/privacy_world.h"
#include "platform_qt/net/private_peer.h"
#include "richtext/code_pages.h"
#include "stream/tail.h"

namespace verlume::qt {

using stream::FrameKind;
using stream::Greeting;

// Which side the program is; the peer is the other.
class PrivacyTest : public testing::TestWithParam<stream::Role> {
 protected:
  PrivacyTest() {
    privacy.SetOffer(PrivacyOffer::WhenPossible);
    privacy.SetOwnName(u"Alice");
    privacy.onPeerKnown = [this] {
      ++known;
      if (admits) privacy.AdmitPeer();
    };
    socket.onUndelivered = [this](std::size_t lines, ConnectionNumber) { undelivered += lines; };
    EXPECT_EQ(privacy.PrepareOwnKey(), OwnKey::Ready);
  }

  bool IsCaller() const { return GetParam() == stream::Role::Caller; }

  // A TCP connection, accepted. The program says its start if it was called.
  void Connect(bool says = true) {
    user.requests.clear();
    user.connects = user.closes = 0;
    user.texts.clear();
    known = 0;
    if (IsCaller()) {
      ConnectAsCaller();
    } else {
      ConnectAsCallee();
      if (says) socket.SendData(OwnStart(), TextKind::Signal);
    }
  }
  static std::u16string OwnStart() {
    return richtext::DecodeGreek(stream::WriteGreeting(Greeting::Start, "Alice", false));
  }
  // What the peer says first, with or without its tail.
  std::string Opening(bool withTail = true) const {
    return IsCaller() ? stream::WriteGreeting(Greeting::Start, "Bob", withTail)
                      : stream::WriteGreeting(Greeting::Confirm, "", withTail);
  }
  // What the program says first.
  std::string Expected() const {
    return IsCaller() ? stream::WriteGreeting(Greeting::Confirm, "", true)
                      : stream::WriteGreeting(Greeting::Start, "Alice", true);
  }
  bool HasHeard(const std::string& bytes) {
    peer->Line().HasEnded();
    return peer->Line().Received().starts_with(bytes);
  }
  // A caller says nothing of its own accord.
  bool HasSaidItsStart() {
    return IsCaller() || WaitFor([&] { return HasHeard(Expected()); });
  }
  // Both tails are said, and TLS has begun.
  void Open(const TlsManner& manner) {
    ASSERT_NO_FATAL_FAILURE(Connect());
    if (IsCaller()) peer->Line().Send(Opening());
    ASSERT_TRUE(WaitFor([&] { return HasHeard(Expected()); }));
    // The program's own TLS may have come along: only a client speaks first.
    if (!IsCaller()) peer->Line().Send(Opening());
    peer->StartTls(!IsCaller(), manner, Expected().size());
  }
  bool WaitForEnd() {
    return WaitFor([&] {
      peer->Step();
      return user.closes > 0;
    });
  }
  void ExpectBroken() {
    ASSERT_TRUE(WaitForEnd());
    EXPECT_EQ(known, 0);
    EXPECT_TRUE(user.texts.empty());
    EXPECT_EQ(privacy.LastFailure(), PrivacyFailure::Broken);
  }
  stream::Hello PeersHello() const {
    const std::string said = IsCaller() ? Opening() + Expected() : Expected() + Opening();
    const QByteArray hash = QCryptographicHash::hash(
        QByteArray(said.data(), qsizetype(said.size())), QCryptographicHash::Sha256);
    stream::Hello hello;
    hello.role = IsCaller() ? stream::Role::Callee : stream::Role::Caller;
    std::copy_n(hash.begin(), hello.transcript.size(), hello.transcript.begin());
    hello.nickname = "Bob";
    return hello;
  }
  // TLS is there, and no frame has been sent.
  void Encrypt(const TlsManner& manner = GoodManner()) {
    ASSERT_NO_FATAL_FAILURE(Open(manner));
    ASSERT_TRUE(WaitFor([&] {
      peer->Step();
      return peer->IsEncrypted();
    }));
  }
  // The peer is known.
  void Meet() {
    ASSERT_NO_FATAL_FAILURE(Encrypt());
    peer->Send(stream::WriteHello(PeersHello()));
    ASSERT_TRUE(WaitFor([&] {
      peer->Step();
      return known == 1;
    }));
  }
  void SendText(std::string_view text) { peer->Send(stream::WriteFrame(FrameKind::Text, text)); }
  // The frames that have come from the program.
  std::vector<stream::Frame> Frames() {
    peer->Step();
    std::string_view bytes = peer->Received();
    std::vector<stream::Frame> frames;
    stream::FrameReader reader;
    while (auto frame = reader.Read(bytes)) frames.push_back(std::move(*frame));
    EXPECT_FALSE(reader.IsBroken());
    return frames;
  }
  std::size_t Count(FrameKind kind) {
    const auto frames = Frames();
    return static_cast<std::size_t>(std::count_if(
        frames.begin(), frames.end(), [kind](const auto& frame) { return frame.kind == kind; }));
  }
  std::uint64_t LastAcknowledgement() {
    std::uint64_t last = 0;
    for (const auto& frame : Frames()) {
      if (frame.kind == FrameKind::Acknowledgement) last = stream::ReadAcknowledgement(frame.body);
    }
    return last;
  }

  PrivateSide side;
  QtSocket& socket = side.qtSocket;
  QtPeerPrivacy& privacy = socket.ConnectionPrivacy();
  SocketUser user{socket};
  bool admits = true;
  int known = 0;
  std::size_t undelivered = 0;
  std::optional<PrivatePeer> peer;

 private:
  void ConnectAsCaller() {
    QTcpServer server;
    ASSERT_TRUE(server.listen(QHostAddress::LocalHost));
    socket.SetRemoteHost(u"127.0.0.1");
    socket.SetRemotePort(server.serverPort());
    socket.Connect();
    ASSERT_TRUE(WaitFor([&] { return server.hasPendingConnections() && user.connects == 1; }));
    const std::unique_ptr<QTcpSocket> accepted(server.nextPendingConnection());
    peer.emplace(RawPeer::Of(DuplicateSocket(accepted->socketDescriptor())));
  }
  void ConnectAsCallee() {
    socket.SetLocalPort(0);
    socket.Listen();
    peer.emplace(RawPeer(socket.LocalPort()));
    ASSERT_TRUE(WaitFor([&] { return user.requests.size() == 1; }));
    socket.Close();
    socket.Accept(user.requests.back());
  }
};

}  // namespace verlume::qt
