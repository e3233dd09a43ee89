// How two sockets in memory make their conversation private.
#include <gtest/gtest.h>

#include "platform/protocol_marker.h"
#include "platform_fake/fake_socket.h"

namespace verlume {
namespace {

class FakePrivacyTest : public testing::Test {
 protected:
  FakePrivacyTest() {
    for (fake::FakeSocket* socket : {&caller, &callee}) {
      socket->privacy.SetOffer(PrivacyOffer::WhenPossible);
      socket->privacy.PrepareOwnKey();
      socket->onClose = [this] { ++closed; };
      Read(*socket);
    }
    caller.privacy.SetOwnName(u"Ann");
    callee.privacy.SetOwnName(u"Bob");
    caller.privacy.onPeerKnown = [this] { ++callerKnows; };
    callee.privacy.onPeerKnown = [this] { ++calleeKnows; };
    callee.onConnectionRequest = [this](std::int64_t id) {
      callee.Close();
      callee.Accept(id);
      callee.SendData(Start(u"Bob"), TextKind::Signal);
    };
  }
  void Read(fake::FakeSocket& socket) {
    socket.onDataArrival = [this, &socket](std::int32_t) { read[&socket] += socket.GetData(); };
  }
  static std::u16string Start(std::u16string_view name) {
    std::u16string text(kMarkerLength, u'\0');
    return text.append(u"S").append(name) + u'\0';
  }
  void Call() {
    callee.SetLocalPort(4000);
    callee.Listen();
    caller.SetRemotePort(4000);
    caller.Connect();
    network.RunUntilIdle();
  }
  void AdmitBoth() {
    caller.privacy.AdmitPeer();
    callee.privacy.AdmitPeer();
    network.RunUntilIdle();
  }

  fake::FakeNetwork network;
  fake::FakeSocket caller{network};
  fake::FakeSocket callee{network};
  std::map<fake::FakeSocket*, std::u16string> read;
  int callerKnows = 0;
  int calleeKnows = 0;
  int closed = 0;
};

TEST_F(FakePrivacyTest, TwoThatCanShowTheirKeysBeforeAnythingIsRead) {
  Call();
  EXPECT_EQ(caller.privacy.State(), Privacy::Private);
  EXPECT_EQ(callee.privacy.State(), Privacy::Private);
  ASSERT_TRUE(caller.privacy.CurrentPeer() && callee.privacy.CurrentPeer());
  EXPECT_EQ(caller.privacy.CurrentPeer()->key, callee.privacy.key);
  EXPECT_EQ(caller.privacy.CurrentPeer()->name, u"Bob");
  EXPECT_EQ(callee.privacy.CurrentPeer()->name, u"Ann");
  EXPECT_EQ(callerKnows, 1);
  EXPECT_EQ(calleeKnows, 1);
  EXPECT_EQ(read[&caller], u"");
  caller.SendData(u"early", TextKind::Line);
  network.RunUntilIdle();
  EXPECT_EQ(caller.LinesWaiting(), 1u);
  caller.privacy.AdmitPeer();
  network.RunUntilIdle();
  EXPECT_EQ(read[&caller], Start(u"Bob"));
  EXPECT_EQ(caller.LinesWaiting(), 1u);
  EXPECT_EQ(read[&callee], u"") << "the callee has not let anybody in";
  callee.privacy.AdmitPeer();
  network.RunUntilIdle();
  EXPECT_EQ(read[&callee], u"early");
  EXPECT_EQ(caller.LinesWaiting(), 0u);
}

TEST_F(FakePrivacyTest, InPrivateNoCharacterIsLost) {
  Call();
  AdmitBoth();
  caller.SendData(u"你好", TextKind::Line);
  network.RunUntilIdle();
  EXPECT_EQ(read[&callee], u"你好");
}

TEST_F(FakePrivacyTest, WithAPeerThatCannotItGoesInClearAndBothAreAsked) {
  callee.privacy.SetOffer(PrivacyOffer::Never);
  Call();
  EXPECT_EQ(caller.privacy.State(), Privacy::Clear);
  ASSERT_TRUE(caller.privacy.CurrentPeer());
  EXPECT_FALSE(caller.privacy.CurrentPeer()->key);
  EXPECT_EQ(caller.privacy.CurrentPeer()->name, u"Bob");
  EXPECT_EQ(calleeKnows, 0) << "who offers nothing is not asked";
  EXPECT_EQ(read[&caller], u"");
  caller.privacy.AdmitPeer();
  caller.SendData(u"你好", TextKind::Line);
  network.RunUntilIdle();
  EXPECT_EQ(read[&caller], Start(u"Bob"));
  EXPECT_EQ(read[&callee], u"??");
}

TEST_F(FakePrivacyTest, WithoutAPreparedKeyItGoesInClear) {
  caller.privacy.ownKey = OwnKey::Unreadable;
  EXPECT_EQ(caller.privacy.PrepareOwnKey(), OwnKey::Unreadable);
  EXPECT_FALSE(caller.privacy.OwnFingerprint());
  Call();
  EXPECT_EQ(caller.privacy.State(), Privacy::Clear);
}

TEST_F(FakePrivacyTest, WhatHasToBePrivateEndsWhereItCannotBe) {
  callee.privacy.SetOffer(PrivacyOffer::Never);
  caller.privacy.SetOffer(PrivacyOffer::Only);
  Call();
  EXPECT_EQ(caller.privacy.LastFailure(), PrivacyFailure::NotOffered);
  EXPECT_EQ(caller.State(), SocketState::Closed);
  EXPECT_EQ(closed, 2);
  EXPECT_EQ(callerKnows, 0);
}

TEST_F(FakePrivacyTest, OnlyTheExpectedKeyIsAccepted) {
  caller.privacy.ExpectKey(caller.privacy.key);
  Call();
  EXPECT_EQ(caller.privacy.LastFailure(), PrivacyFailure::OtherKey);
  caller.privacy.ExpectKey(callee.privacy.key);
  Call();
  EXPECT_EQ(caller.privacy.State(), Privacy::Private);
  EXPECT_EQ(caller.privacy.LastFailure(), PrivacyFailure::None);
}

TEST_F(FakePrivacyTest, KeysAreProvedWhenTheTestSays) {
  caller.privacy.provesKeys = false;
  Call();
  EXPECT_EQ(caller.privacy.State(), Privacy::Becoming);
  EXPECT_EQ(callee.privacy.State(), Privacy::Becoming);
  caller.privacy.fails = PrivacyFailure::Late;
  caller.privacy.ProveKeys();
  network.RunUntilIdle();
  EXPECT_EQ(caller.privacy.LastFailure(), PrivacyFailure::Late);
  EXPECT_EQ(caller.privacy.State(), Privacy::None);
  EXPECT_EQ(callee.State(), SocketState::Closed);
}

}  // namespace
}  // namespace verlume
