// Somebody between, or a peer that does not keep to the protocol: each ends as it should, and
// nobody is known, shown or heard before.
#include <QTcpServer>

#include "platform_qt/net/privacy_fixture.h"

namespace verlume::qt {
namespace {

using namespace std::chrono_literals;
using namespace std::string_literals;

std::string NameOf(const testing::TestParamInfo<stream::Role>& info) {
  return info.param == stream::Role::Caller ? "Caller" : "Callee";
}

class PrivacyAttackTest : public PrivacyTest {};
INSTANTIATE_TEST_SUITE_P(Sides, PrivacyAttackTest,
                         testing::Values(stream::Role::Caller, stream::Role::Callee), NameOf);

TEST_P(PrivacyAttackTest, APeerThatKeepsToTheProtocolIsKnownAndHeard) {
  ASSERT_NO_FATAL_FAILURE(Meet());
  EXPECT_EQ(privacy.CurrentPeer()->name, u"Bob");
  SendText("hello");
  ASSERT_TRUE(WaitFor([&] {
    peer->Step();
    return user.texts.size() == 1 && LastAcknowledgement() == 1;
  }));
  EXPECT_EQ(user.texts[0], u"hello");
  // The one that was called says its start again.
  EXPECT_EQ(Count(FrameKind::Text), IsCaller() ? 0u : 1u);
  const auto hello = stream::ReadHello(Frames()[0].body);
  EXPECT_EQ(hello->nickname, "Alice");
  EXPECT_EQ(hello->transcript, PeersHello().transcript);
}

TEST_P(PrivacyAttackTest, ATailThatIsStrippedLeavesTheConversationInClear) {
  ASSERT_NO_FATAL_FAILURE(Connect());
  peer->Line().Send(Opening(false));
  ASSERT_TRUE(WaitFor([&] { return user.texts.size() == 1; }));
  EXPECT_EQ(privacy.State(), Privacy::Clear);
  EXPECT_EQ(privacy.CurrentPeer()->key, std::nullopt);
  EXPECT_EQ(known, 1);
}

TEST_P(PrivacyAttackTest, ACertificateOfAnyOtherKindEndsTheConnection) {
  for (const KeyKind kind : {KeyKind::Rsa, KeyKind::Ed25519, KeyKind::P384, KeyKind::P256Compressed,
                             KeyKind::P256Explicit}) {
    ASSERT_NO_FATAL_FAILURE(Open(GoodManner(kind)));
    ASSERT_NO_FATAL_FAILURE(ExpectBroken());
  }
}

TEST_P(PrivacyAttackTest, APeerWithoutACertificateEndsTheConnection) {
  ASSERT_NO_FATAL_FAILURE(Open({.keyPem = "", .certificatePem = ""}));
  ExpectBroken();
}

TEST_P(PrivacyAttackTest, TheOwnKeyEndsTheConnection) {
  QFile file(QString::fromStdString(side.KeyFile()));
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  const std::string pem = file.readAll().toStdString();
  const QByteArray envelope = ReadKeyPair(pem)->envelope.toPem();
  ASSERT_NO_FATAL_FAILURE(Open({.keyPem = pem, .certificatePem = envelope.toStdString()}));
  ExpectBroken();
}

TEST_P(PrivacyAttackTest, TwoCertificatesEndTheConnection) {
  TlsManner manner = GoodManner();
  manner.secondPem = MakeCertificate(KeyKind::P256).certificatePem;
  ASSERT_NO_FATAL_FAILURE(Open(manner));
  ExpectBroken();
}

TEST_P(PrivacyAttackTest, ACertificateOfAMegabyteEndsTheConnection) {
  ASSERT_NO_FATAL_FAILURE(Open(GoodManner(KeyKind::P256, 1 << 20)));
  ExpectBroken();
}

TEST_P(PrivacyAttackTest, AnOlderTlsEndsTheConnection) {
  TlsManner manner = GoodManner();
  manner.version = TLS1_2_VERSION;
  ASSERT_NO_FATAL_FAILURE(Open(manner));
  ExpectBroken();
}

TEST_P(PrivacyAttackTest, ClearTextGluedBehindTheTailEndsTheConnection) {
  ASSERT_NO_FATAL_FAILURE(Connect());
  ASSERT_TRUE(HasSaidItsStart());
  peer->Line().Send(Opening() + "hello");
  ExpectBroken();
}

TEST_P(PrivacyAttackTest, ClearTextAfterBothTailsEndsTheConnection) {
  ASSERT_NO_FATAL_FAILURE(Connect());
  ASSERT_TRUE(HasSaidItsStart());
  peer->Line().Send(Opening());
  ASSERT_TRUE(WaitFor([&] { return privacy.State() == Privacy::Becoming; }));
  peer->Line().Send("{\\rtf1 hello}");
  ExpectBroken();
}

TEST_P(PrivacyAttackTest, MegabytesBeforeTheHandshakeEndTheConnection) {
  ASSERT_NO_FATAL_FAILURE(Connect());
  ASSERT_TRUE(HasSaidItsStart());
  peer->Line().Send(Opening());
  ASSERT_TRUE(WaitFor([&] { return privacy.State() == Privacy::Becoming; }));
  // Records of TLS that never become a handshake.
  const std::string rubbish = "\x16\x03\x03\x40\x00"s + std::string(0x4000, '\1');
  std::size_t sent = 0;
  EXPECT_TRUE(WaitFor([&] {
    sent += peer->Line().Send(rubbish);
    return user.closes > 0;
  }));
  EXPECT_LT(sent, std::size_t{16 << 20});
  EXPECT_EQ(privacy.LastFailure(), PrivacyFailure::Broken);
}

TEST_P(PrivacyAttackTest, AGreetingThatIsCutAnywhereEndsTheConnection) {
  const std::string opening = Opening();
  for (std::size_t size = 0; size < opening.size(); ++size) {
    ASSERT_NO_FATAL_FAILURE(Connect());
    ASSERT_TRUE(HasSaidItsStart());
    peer->Line().Send(opening.substr(0, size));
    peer->Line().HalfClose();
    ASSERT_TRUE(WaitForEnd()) << size;
    EXPECT_LE(user.texts.size(), 1u);
    EXPECT_EQ(privacy.LastFailure(), PrivacyFailure::None);
  }
}

TEST_P(PrivacyAttackTest, AHandshakeThatIsCutAnywhereEndsTheConnection) {
  TlsManner manner = GoodManner();
  constexpr std::size_t kStep = 31;
  bool isWhole = false;
  for (manner.longestFlight = 1;; manner.longestFlight += kStep) {
    ASSERT_NO_FATAL_FAILURE(Open(manner));
    ASSERT_TRUE(WaitFor([&] {
      peer->Step();
      isWhole = peer->IsEncrypted() && !peer->IsCut();
      return isWhole || user.closes > 0;
    }));
    if (isWhole) break;
    ASSERT_NO_FATAL_FAILURE(ExpectBroken());
  }
  EXPECT_GT(manner.longestFlight, std::size_t{500});
}

TEST_P(PrivacyAttackTest, AThousandHandshakesThatAreBrokenOffLeaveNothing) {
  const auto breakOff = [this] {
    ASSERT_NO_FATAL_FAILURE(Connect());
    ASSERT_TRUE(HasSaidItsStart());
    peer->Line().Send(Opening());
    ASSERT_TRUE(WaitFor([&] { return privacy.State() == Privacy::Becoming; }));
    peer->Line().Reset();
    ASSERT_TRUE(WaitFor([&] { return user.closes > 0; }));
  };
  ASSERT_NO_FATAL_FAILURE(breakOff());
  const qsizetype before = DescriptorsInUse();
  for (int i = 0; i < 1000; ++i) ASSERT_NO_FATAL_FAILURE(breakOff());
  EXPECT_TRUE(WaitFor([&] { return DescriptorsInUse() <= before; }))
      << DescriptorsInUse() << " of " << before;
}

TEST_P(PrivacyAttackTest, AHelloThatDoesNotMatchEndsTheConnection) {
  stream::Hello otherRole = PeersHello();
  otherRole.role = GetParam();
  stream::Hello otherWords = PeersHello();
  otherWords.transcript[31] ^= 1;
  for (const stream::Hello& hello : {otherRole, otherWords}) {
    ASSERT_NO_FATAL_FAILURE(Encrypt());
    peer->Send(stream::WriteHello(hello));
    ASSERT_NO_FATAL_FAILURE(ExpectBroken());
  }
}

TEST_P(PrivacyAttackTest, FramesBeforeTheHelloEndTheConnection) {
  for (const FrameKind kind : {FrameKind::Text, FrameKind::Alive, FrameKind::Goodbye}) {
    ASSERT_NO_FATAL_FAILURE(Encrypt());
    peer->Send(stream::WriteFrame(kind, ""));
    ASSERT_NO_FATAL_FAILURE(ExpectBroken());
  }
}

TEST_P(PrivacyAttackTest, FramesThatAreWrongEndTheConversation) {
  const std::string tooLong = "\0\1\0\1\2"s;
  const std::string longAlive = "\0\0\0\1\5x"s;
  const std::string shortAcknowledgement = "\0\0\0\7\4"s;
  const std::string anotherHello = stream::WriteHello(PeersHello());
  const std::string behindGoodbye =
      stream::WriteFrame(FrameKind::Goodbye, "") + stream::WriteFrame(FrameKind::Text, "hello");
  for (const std::string& bytes :
       {tooLong, longAlive, shortAcknowledgement, anotherHello, behindGoodbye}) {
    ASSERT_NO_FATAL_FAILURE(Meet());
    peer->Send(bytes);
    EXPECT_TRUE(WaitForEnd());
    EXPECT_TRUE(user.texts.empty());
    EXPECT_EQ(privacy.LastFailure(), PrivacyFailure::None);
  }
}

TEST_P(PrivacyAttackTest, AcknowledgementsThatLieEndTheConversation) {
  ASSERT_NO_FATAL_FAILURE(Meet());
  peer->Send(stream::WriteAcknowledgement(2));
  EXPECT_TRUE(WaitForEnd());
  ASSERT_NO_FATAL_FAILURE(Meet());
  socket.SendData(u"line", TextKind::Line);
  const std::size_t texts = IsCaller() ? 1 : 2;
  ASSERT_TRUE(WaitFor([&] { return Count(FrameKind::Text) == texts; }));
  peer->Send(stream::WriteAcknowledgement(texts));
  ASSERT_TRUE(WaitFor([&] { return socket.LinesWaiting() == 0; }));
  peer->Send(stream::WriteAcknowledgement(texts - 1));
  EXPECT_TRUE(WaitForEnd());
}

TEST_P(PrivacyAttackTest, UnknownFramesAreSkipped) {
  ASSERT_NO_FATAL_FAILURE(Meet());
  for (int i = 0; i < 50; ++i) peer->Send("\0\0\xFF\xFF\x63"s + std::string(0xFFFF, 'x'));
  SendText("hello");
  ASSERT_TRUE(WaitFor([&] {
    peer->Step();
    return user.texts.size() == 1;
  }));
  EXPECT_EQ(user.texts[0], u"hello");
}

TEST_P(PrivacyAttackTest, TextsThatNobodyTakesInAreHeldBackByTcp) {
  admits = false;
  ASSERT_NO_FATAL_FAILURE(Meet());
  // The shortest texts there are: they take the most memory.
  std::string frames;
  for (int i = 0; i < 2000; ++i) frames += stream::WriteFrame(FrameKind::Text, "x");
  constexpr std::size_t kMost = 16 << 20;
  std::size_t offered = 0;
  // It is full when the system takes nothing any more, however long one waits.
  int idleSteps = 0;
  ASSERT_TRUE(WaitFor([&] {
    const std::size_t before = peer->Unsent();
    peer->Step();
    idleSteps = before == peer->Unsent() && before > 0 ? idleSteps + 1 : 0;
    if (peer->Unsent() == 0) {
      peer->Send(frames);
      offered += frames.size();
    }
    return idleSteps > 100 || offered > kMost;
  }));
  EXPECT_LT(offered, kMost);
  EXPECT_EQ(LastAcknowledgement(), 0u);
  privacy.AdmitPeer();
  EXPECT_TRUE(WaitFor([&] {
    peer->Step();
    return user.texts.size() == offered / 6;
  }));
}

}  // namespace
}  // namespace verlume::qt
