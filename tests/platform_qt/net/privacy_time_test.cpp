// What a private conversation says without being asked, and how long it waits.
#include <QTcpServer>

#include "platform_qt/net/privacy_fixture.h"

namespace verlume::qt {
namespace {

using namespace std::chrono_literals;

class PrivacyTimeTest : public PrivacyTest {
 protected:
  PrivacyLimits limits{.tail = 20s, .proof = 20s, .alive = 20s, .silence = 20s, .goodbye = 20s};
};
INSTANTIATE_TEST_SUITE_P(Sides, PrivacyTimeTest,
                         testing::Values(stream::Role::Caller, stream::Role::Callee));

TEST_P(PrivacyTimeTest, ATailThatDoesNotEndIsNoTail) {
  limits.tail = 50ms;
  privacy.SetLimits(limits);
  ASSERT_NO_FATAL_FAILURE(Connect());
  ASSERT_TRUE(HasSaidItsStart());
  const std::string opening = Opening();
  peer->Line().Send(opening.substr(0, opening.size() - 1));
  ASSERT_TRUE(WaitFor([&] { return user.texts.size() == 1; }));
  EXPECT_EQ(privacy.State(), Privacy::Clear);
  EXPECT_EQ(richtext::EncodeGreek(user.texts[0]), opening.substr(0, opening.size() - 1));
}

TEST_P(PrivacyTimeTest, ATailThatEndsInTimeIsOne) {
  privacy.SetLimits(limits);
  ASSERT_NO_FATAL_FAILURE(Connect());
  ASSERT_TRUE(HasSaidItsStart());
  const std::string opening = Opening();
  peer->Line().Send(opening.substr(0, opening.size() - 4));
  int rounds = 0;
  WaitFor([&] { return ++rounds > 5; });
  peer->Line().Send(opening.substr(opening.size() - 4));
  EXPECT_TRUE(WaitFor([&] { return privacy.State() == Privacy::Becoming; }));
}

TEST_P(PrivacyTimeTest, AHandshakeThatDoesNotEndIsLate) {
  limits.proof = 100ms;
  privacy.SetLimits(limits);
  ASSERT_NO_FATAL_FAILURE(Connect());
  ASSERT_TRUE(HasSaidItsStart());
  peer->Line().Send(Opening());
  ASSERT_TRUE(WaitFor([&] { return user.closes > 0; }));
  EXPECT_EQ(privacy.LastFailure(), PrivacyFailure::Late);
}

TEST_P(PrivacyTimeTest, AHelloThatDoesNotComeIsLate) {
  limits.proof = 1s;
  privacy.SetLimits(limits);
  ASSERT_NO_FATAL_FAILURE(Encrypt());
  ASSERT_TRUE(WaitForEnd());
  EXPECT_EQ(privacy.LastFailure(), PrivacyFailure::Late);
}

TEST_P(PrivacyTimeTest, AliveIsSaidWhileNothingElseIs) {
  limits.alive = 50ms;
  privacy.SetLimits(limits);
  ASSERT_NO_FATAL_FAILURE(Meet());
  EXPECT_TRUE(WaitFor([&] { return Count(FrameKind::Alive) >= 3; }));
}

TEST_P(PrivacyTimeTest, AliveIsSaidToOneWhoIsNotLetInYet) {
  admits = false;
  limits.alive = 50ms;
  privacy.SetLimits(limits);
  ASSERT_NO_FATAL_FAILURE(Meet());
  EXPECT_TRUE(WaitFor([&] { return Count(FrameKind::Alive) >= 3; }));
  EXPECT_EQ(Count(FrameKind::Acknowledgement), 0u);
}

TEST_P(PrivacyTimeTest, ASilentPeerIsGone) {
  limits.alive = 50ms;
  limits.silence = 200ms;
  privacy.SetLimits(limits);
  ASSERT_NO_FATAL_FAILURE(Meet());
  EXPECT_TRUE(WaitForEnd());
}

TEST_P(PrivacyTimeTest, APeerThatIsAliveIsNotGone) {
  limits.alive = 50ms;
  limits.silence = 400ms;
  privacy.SetLimits(limits);
  ASSERT_NO_FATAL_FAILURE(Meet());
  QElapsedTimer time;
  time.start();
  QElapsedTimer last;
  last.start();
  WaitFor([&] {
    if (last.hasExpired(50)) {
      peer->Send(stream::WriteFrame(FrameKind::Alive, ""));
      last.start();
    }
    peer->Step();
    return time.hasExpired(1200) || user.closes > 0;
  });
  EXPECT_EQ(user.closes, 0u);
}

TEST_P(PrivacyTimeTest, AGoodbyeIsAnsweredWithAcknowledgementsAndAGoodbye) {
  privacy.SetLimits(limits);
  ASSERT_NO_FATAL_FAILURE(Meet());
  socket.PauseArrivals();
  SendText("one");
  SendText("two");
  peer->Send(stream::WriteFrame(FrameKind::Goodbye, ""));
  ASSERT_TRUE(WaitFor([&] { return Count(FrameKind::Goodbye) == 1; }));
  EXPECT_EQ(LastAcknowledgement(), 2u);
  socket.ResumeArrivals();
  ASSERT_TRUE(WaitForEnd());
  EXPECT_THAT(user.texts, testing::ElementsAre(u"one", u"two"));
  EXPECT_TRUE(peer->Step());
}

TEST_P(PrivacyTimeTest, ALineThatIsNotAcknowledgedBeforeTheEndIsToldAsLost) {
  ASSERT_NO_FATAL_FAILURE(Meet());
  socket.SendData(u"one", TextKind::Line);
  const std::size_t texts = IsCaller() ? 1 : 2;
  ASSERT_TRUE(WaitFor([&] { return Count(FrameKind::Text) == texts; }));
  peer->SendCloseNotify();
  ASSERT_TRUE(WaitForEnd());
  EXPECT_EQ(undelivered, 1u);
}

TEST_P(PrivacyTimeTest, ACloseSaysGoodbyeAndWaitsForTheAcknowledgements) {
  ASSERT_NO_FATAL_FAILURE(Meet());
  socket.SendData(u"one", TextKind::Line);
  socket.Close();
  ASSERT_TRUE(WaitFor([&] { return Count(FrameKind::Goodbye) == 1; }));
  const std::size_t texts = IsCaller() ? 1 : 2;
  EXPECT_EQ(Count(FrameKind::Text), texts);
  peer->Send(stream::WriteAcknowledgement(texts) + stream::WriteFrame(FrameKind::Goodbye, ""));
  ASSERT_TRUE(WaitFor([&] { return peer->Step(); }));
  socket.FinishSending();
  EXPECT_EQ(undelivered, 0u);
}

// Exactly what a program says that knows nothing of all this.
TEST_P(PrivacyTimeTest, WhoNeverIsPrivateSaysNothingOfIt) {
  privacy.SetOffer(PrivacyOffer::Never);
  ASSERT_NO_FATAL_FAILURE(Connect());
  EXPECT_TRUE(WaitFor([&] { return privacy.State() == Privacy::Clear; }));
  if (!IsCaller()) {
    const std::string start = stream::WriteGreeting(Greeting::Start, "Alice", false);
    ASSERT_TRUE(WaitFor([&] { return HasHeard(start); }));
  }
  peer->Line().Send(Opening());
  ASSERT_TRUE(WaitFor([&] { return user.texts.size() == 1; }));
  socket.SendData(u"hello", TextKind::Line);
  const std::string said =
      (IsCaller() ? "" : stream::WriteGreeting(Greeting::Start, "Alice", false)) + "hello";
  EXPECT_TRUE(WaitFor([&] { return HasHeard(said); }));
  EXPECT_EQ(peer->Line().Received(), said);
  EXPECT_EQ(known, 0);
}

TEST_P(PrivacyTimeTest, APeerWithoutATailGetsWhatItAlwaysGot) {
  ASSERT_NO_FATAL_FAILURE(Connect());
  socket.SendData(u"early", TextKind::Line);
  EXPECT_EQ(socket.LinesWaiting(), 1u);
  ASSERT_TRUE(HasSaidItsStart());
  peer->Line().Send(Opening(false));
  const std::string said = (IsCaller() ? "" : Expected()) + "early";
  ASSERT_TRUE(WaitFor([&] { return HasHeard(said); }));
  EXPECT_EQ(peer->Line().Received(), said);
  EXPECT_EQ(richtext::EncodeGreek(user.texts.at(0)), Opening(false));
}

TEST_P(PrivacyTimeTest, WhoSpeaksFirstInAnyOtherWayDoesNotKnowOfIt) {
  ASSERT_NO_FATAL_FAILURE(Connect());
  peer->Line().Send("hello");
  ASSERT_TRUE(WaitFor([&] { return user.texts.size() == 1; }));
  EXPECT_EQ(privacy.State(), Privacy::Clear);
  EXPECT_EQ(privacy.CurrentPeer()->name, u"");
  // Its greeting comes too late.
  peer->Line().Send(Opening());
  ASSERT_TRUE(WaitFor([&] { return user.texts.size() == 2; }));
  EXPECT_EQ(privacy.State(), Privacy::Clear);
}

}  // namespace
}  // namespace verlume::qt
