// The contract of every PeerPrivacy, as tests that run on each implementation.
//
// A World makes sides that can reach each other: `Side New()` with a `Socket& socket` and its
// `PeerPrivacy& privacy`, `std::u16string Host()` (where they listen) and `bool Wait(condition)`,
// which handles events until the condition is true or a time limit has passed.
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "platform/privacy.h"
#include "platform/protocol_marker.h"
#include "platform/socket_user.h"
#include "richtext/code_pages.h"

namespace verlume {

inline std::u16string GreetingOf(char16_t kind, std::u16string_view name) {
  return richtext::DecodeGreek(kMarkerBytes) + kind + std::u16string(name) + u'\0';
}

// A side of a conversation, and what has been raised there. It greets as the program does.
template <class Side>
struct PrivacyUser : SocketUser {
  PrivacyUser(const Side& side, std::u16string_view name)
      : SocketUser(side.socket), privacy(side.privacy), itsName(name) {
    privacy.SetOffer(PrivacyOffer::WhenPossible);
    privacy.SetOwnName(name);
    privacy.onState = [this] { states.push_back(privacy.State()); };
    privacy.onPeerKnown = [this] {
      ++known;
      textsBeforeKnown = texts.size();
      if (admits) privacy.AdmitPeer();
    };
    socket.onClose = [this] {
      ++closes;
      textsBeforeClose = texts.size();
      saidGoodbye = privacy.HasPeerSaidGoodbye();
    };
    socket.onUndelivered = [this](std::size_t lines, ConnectionNumber) { undelivered += lines; };
    socket.onDataArrival = [this](std::int32_t) {
      texts.push_back(socket.GetData());
      if (texts.back().starts_with(GreetingOf(u'S', u"").substr(0, kMarkerLength + 1))) {
        socket.SendData(GreetingOf(u'C', itsName), TextKind::Signal);
      }
    };
  }
  void Start() { socket.SendData(GreetingOf(u'S', itsName), TextKind::Signal); }
  void Say(std::u16string_view line) { socket.SendData(line, TextKind::Line); }
  std::optional<std::u16string> PeerName() const {
    const auto peer = privacy.CurrentPeer();
    return peer ? std::optional(peer->name) : std::nullopt;
  }

  PeerPrivacy& privacy;
  std::u16string itsName;
  bool admits = true;
  std::vector<Privacy> states;
  int known = 0;
  std::size_t textsBeforeKnown = 0;
  std::size_t undelivered = 0;
  bool saidGoodbye = false;  // at the last onClose
};

template <class World>
class PrivacyContract : public testing::Test {
 protected:
  using User = PrivacyUser<decltype(std::declval<World>().New())>;

  PrivacyContract() : callee(world.New(), u"Bob"), caller(world.New(), u"Alice") {}

  void PrepareKeys() {
    ASSERT_EQ(callee.privacy.PrepareOwnKey(), OwnKey::Ready);
    ASSERT_EQ(caller.privacy.PrepareOwnKey(), OwnKey::Ready);
  }
  // The call is answered, and the side that was called has said its name.
  void Connect() {
    callee.socket.SetLocalPort(0);
    callee.socket.Listen();
    caller.socket.SetRemoteHost(world.Host());
    caller.socket.SetRemotePort(callee.socket.LocalPort());
    caller.socket.Connect();
    ASSERT_TRUE(world.Wait([&] { return callee.requests.size() == 1 && caller.connects == 1; }));
    callee.socket.Close();
    callee.socket.Accept(callee.requests.back());
    callee.Start();
  }
  // Both are let in, and have greeted.
  void Meet() {
    ASSERT_NO_FATAL_FAILURE(PrepareKeys());
    ASSERT_NO_FATAL_FAILURE(Connect());
    ASSERT_TRUE(world.Wait([&] { return caller.texts.size() == 1 && callee.texts.size() == 1; }));
    ASSERT_EQ(caller.privacy.State(), Privacy::Private);
    caller.texts.clear();
    callee.texts.clear();
  }
  bool BothAre(Privacy privacy) {
    return world.Wait(
        [&] { return caller.privacy.State() == privacy && callee.privacy.State() == privacy; });
  }
  bool WaitForClose(User& user) {
    return world.Wait([&] { return user.closes > 0; });
  }

  World world;
  User callee;
  User caller;
};

TYPED_TEST_SUITE_P(PrivacyContract);

TYPED_TEST_P(PrivacyContract, TwoThatCanBecomePrivateAndKnowEachOther) {
  ASSERT_NO_FATAL_FAILURE(this->PrepareKeys());
  EXPECT_EQ(this->caller.privacy.State(), Privacy::None);
  ASSERT_NO_FATAL_FAILURE(this->Connect());
  ASSERT_TRUE(this->BothAre(Privacy::Private));
  ASSERT_TRUE(this->world.Wait([&] { return this->callee.texts.size() == 1; }));
  for (auto* user : {&this->caller, &this->callee}) {
    EXPECT_THAT(user->states, testing::ElementsAre(Privacy::Becoming, Privacy::Private));
    EXPECT_EQ(user->known, 1);
    EXPECT_EQ(user->textsBeforeKnown, 0u);
    EXPECT_EQ(user->privacy.LastFailure(), PrivacyFailure::None);
  }
  EXPECT_EQ(this->caller.privacy.CurrentPeer()->key, this->callee.privacy.OwnFingerprint());
  EXPECT_EQ(this->callee.privacy.CurrentPeer()->key, this->caller.privacy.OwnFingerprint());
  EXPECT_EQ(this->caller.PeerName(), u"Bob");
  EXPECT_EQ(this->callee.PeerName(), u"Alice");
  EXPECT_THAT(this->caller.texts, testing::ElementsAre(GreetingOf(u'S', u"Bob")));
  EXPECT_THAT(this->callee.texts, testing::ElementsAre(GreetingOf(u'C', u"Alice")));
}

TYPED_TEST_P(PrivacyContract, TheSafetyDigitsAreTheSameOnBothSides) {
  ASSERT_NO_FATAL_FAILURE(this->PrepareKeys());
  EXPECT_EQ(this->caller.privacy.SafetyDigits(), u"");
  ASSERT_NO_FATAL_FAILURE(this->Meet());
  const std::u16string digits = this->caller.privacy.SafetyDigits();
  EXPECT_EQ(digits.size(), 60u);
  EXPECT_EQ(digits, this->callee.privacy.SafetyDigits());
  this->caller.socket.Close();
  EXPECT_EQ(this->caller.privacy.SafetyDigits(), u"");
}

TYPED_TEST_P(PrivacyContract, NothingIsRaisedOrSentBeforeThePeerIsLetIn) {
  this->caller.admits = false;
  this->callee.admits = false;
  ASSERT_NO_FATAL_FAILURE(this->PrepareKeys());
  ASSERT_NO_FATAL_FAILURE(this->Connect());
  this->caller.Say(u"from Alice");
  this->callee.Say(u"from Bob");
  ASSERT_TRUE(this->world.Wait([&] { return this->caller.known == 1 && this->callee.known == 1; }));
  this->callee.privacy.AdmitPeer();
  // Bob's line waits for Alice, who has to let him in.
  EXPECT_EQ(this->callee.socket.LinesWaiting(), 1u);
  EXPECT_EQ(this->caller.socket.LinesWaiting(), 1u);
  EXPECT_TRUE(this->caller.texts.empty());
  this->caller.privacy.AdmitPeer();
  ASSERT_TRUE(this->world.Wait([&] {
    return this->caller.texts.size() == 2 && this->callee.texts.size() == 2 &&
           this->callee.socket.LinesWaiting() == 0 && this->caller.socket.LinesWaiting() == 0;
  }));
  EXPECT_THAT(this->caller.texts, testing::ElementsAre(GreetingOf(u'S', u"Bob"), u"from Bob"));
  EXPECT_THAT(this->callee.texts,
              testing::UnorderedElementsAre(u"from Alice", GreetingOf(u'C', u"Alice")));
}

TYPED_TEST_P(PrivacyContract, WithoutAReceiverThePeerIsLetInAtOnce) {
  this->caller.privacy.onPeerKnown = nullptr;
  this->callee.privacy.onPeerKnown = nullptr;
  ASSERT_NO_FATAL_FAILURE(this->Meet());
}

TYPED_TEST_P(PrivacyContract, APeerThatIsNeverLetInEndsLikeAnyOther) {
  this->callee.admits = false;
  ASSERT_NO_FATAL_FAILURE(this->PrepareKeys());
  ASSERT_NO_FATAL_FAILURE(this->Connect());
  ASSERT_TRUE(
      this->world.Wait([&] { return this->caller.texts.size() == 1 && this->callee.known == 1; }));
  this->caller.Say(u"nobody reads this");
  this->caller.socket.Close();
  EXPECT_TRUE(this->WaitForClose(this->callee));
  EXPECT_TRUE(this->callee.texts.empty());
  EXPECT_EQ(this->callee.privacy.CurrentPeer(), std::nullopt);
  EXPECT_TRUE(this->world.Wait([&] { return this->caller.undelivered == 1; }));
}

TYPED_TEST_P(PrivacyContract, WithAPeerThatNeverIsPrivateItGoesInClear) {
  for (auto* never : {&this->caller, &this->callee}) {
    this->caller.texts.clear();
    this->callee.texts.clear();
    this->callee.requests.clear();
    this->caller.connects = 0;
    auto& other = never == &this->caller ? this->callee : this->caller;
    never->privacy.SetOffer(PrivacyOffer::Never);
    other.privacy.SetOffer(PrivacyOffer::WhenPossible);
    never->known = other.known = 0;
    ASSERT_NO_FATAL_FAILURE(this->PrepareKeys());
    ASSERT_NO_FATAL_FAILURE(this->Connect());
    ASSERT_TRUE(this->world.Wait(
        [&] { return this->caller.texts.size() == 1 && this->callee.texts.size() == 1; }));
    EXPECT_TRUE(this->BothAre(Privacy::Clear));
    EXPECT_EQ(never->known, 0);
    EXPECT_EQ(other.known, 1);
    EXPECT_EQ(other.privacy.CurrentPeer()->key, std::nullopt);
    EXPECT_EQ(other.PeerName(), never->itsName);
    EXPECT_EQ(other.privacy.SafetyDigits(), u"");
    EXPECT_TRUE(this->caller.texts[0].starts_with(GreetingOf(u'S', u"Bob")));
    EXPECT_THAT(this->callee.texts, testing::ElementsAre(GreetingOf(u'C', u"Alice")));
    this->caller.socket.Close();
    ASSERT_TRUE(this->WaitForClose(this->callee));
    EXPECT_FALSE(this->callee.saidGoodbye) << "in clear nobody can know";
    this->callee.socket.Close();
    this->callee.closes = 0;
  }
}

TYPED_TEST_P(PrivacyContract, ACallerThatMustBePrivateHangsUpBeforeItSaysAnything) {
  this->caller.privacy.SetOffer(PrivacyOffer::Only);
  this->callee.privacy.SetOffer(PrivacyOffer::Never);
  ASSERT_NO_FATAL_FAILURE(this->PrepareKeys());
  ASSERT_NO_FATAL_FAILURE(this->Connect());
  ASSERT_TRUE(this->WaitForClose(this->caller));
  EXPECT_EQ(this->caller.privacy.LastFailure(), PrivacyFailure::NotOffered);
  EXPECT_EQ(this->caller.known, 0);
  ASSERT_TRUE(this->WaitForClose(this->callee));
  EXPECT_TRUE(this->callee.texts.empty());
}

TYPED_TEST_P(PrivacyContract, ACalleeThatMustBePrivateHangsUpOnOneThatCannot) {
  this->callee.privacy.SetOffer(PrivacyOffer::Only);
  this->caller.privacy.SetOffer(PrivacyOffer::Never);
  ASSERT_NO_FATAL_FAILURE(this->PrepareKeys());
  ASSERT_NO_FATAL_FAILURE(this->Connect());
  ASSERT_TRUE(this->WaitForClose(this->callee));
  EXPECT_EQ(this->callee.privacy.LastFailure(), PrivacyFailure::NotOffered);
  EXPECT_TRUE(this->callee.texts.empty());
}

TYPED_TEST_P(PrivacyContract, TheExpectedKeyIsLetIn) {
  ASSERT_NO_FATAL_FAILURE(this->PrepareKeys());
  this->caller.privacy.ExpectKey(this->callee.privacy.OwnFingerprint());
  ASSERT_NO_FATAL_FAILURE(this->Meet());
}

TYPED_TEST_P(PrivacyContract, AnotherKeyThanTheExpectedOneEndsTheCall) {
  ASSERT_NO_FATAL_FAILURE(this->PrepareKeys());
  this->caller.privacy.ExpectKey(KeyFingerprint{1, 2, 3});
  ASSERT_NO_FATAL_FAILURE(this->Connect());
  ASSERT_TRUE(this->WaitForClose(this->caller));
  EXPECT_EQ(this->caller.privacy.LastFailure(), PrivacyFailure::OtherKey);
  EXPECT_EQ(this->caller.known, 0);
  EXPECT_TRUE(this->WaitForClose(this->callee));
  EXPECT_TRUE(this->callee.texts.empty());
}

TYPED_TEST_P(PrivacyContract, AnExpectedKeyIsNoneOfACaller) {
  this->callee.privacy.ExpectKey(KeyFingerprint{1, 2, 3});
  ASSERT_NO_FATAL_FAILURE(this->Meet());
}

TYPED_TEST_P(PrivacyContract, WhoExpectsAKeyHangsUpOnOneThatCannot) {
  ASSERT_NO_FATAL_FAILURE(this->PrepareKeys());
  this->caller.privacy.ExpectKey(this->callee.privacy.OwnFingerprint());
  this->callee.privacy.SetOffer(PrivacyOffer::Never);
  ASSERT_NO_FATAL_FAILURE(this->Connect());
  ASSERT_TRUE(this->WaitForClose(this->caller));
  EXPECT_EQ(this->caller.privacy.LastFailure(), PrivacyFailure::NotOffered);
  ASSERT_TRUE(this->WaitForClose(this->callee));
  EXPECT_TRUE(this->callee.texts.empty());
}

TYPED_TEST_P(PrivacyContract, WithoutAKeyItGoesInClear) {
  ASSERT_EQ(this->callee.privacy.PrepareOwnKey(), OwnKey::Ready);
  EXPECT_EQ(this->caller.privacy.OwnFingerprint(), std::nullopt);
  ASSERT_NO_FATAL_FAILURE(this->Connect());
  ASSERT_TRUE(this->BothAre(Privacy::Clear));
  EXPECT_EQ(this->caller.known, 1);
}

TYPED_TEST_P(PrivacyContract, WithoutAKeyWhoMustBePrivateDoesNotEvenCall) {
  ASSERT_EQ(this->callee.privacy.PrepareOwnKey(), OwnKey::Ready);
  this->caller.privacy.SetOffer(PrivacyOffer::Only);
  this->callee.socket.SetLocalPort(0);
  this->callee.socket.Listen();
  this->caller.socket.SetRemoteHost(this->world.Host());
  this->caller.socket.SetRemotePort(this->callee.socket.LocalPort());
  this->caller.socket.Connect();
  ASSERT_TRUE(this->WaitForClose(this->caller));
  EXPECT_EQ(this->caller.privacy.LastFailure(), PrivacyFailure::NoKey);
  EXPECT_TRUE(this->callee.requests.empty());
}

TYPED_TEST_P(PrivacyContract, EveryCharacterTravelsWhole) {
  this->caller.itsName = u"\u5C71\U0001F600";
  this->caller.privacy.SetOwnName(this->caller.itsName);
  ASSERT_NO_FATAL_FAILURE(this->Meet());
  EXPECT_EQ(this->callee.PeerName(), this->caller.itsName);
  const std::u16string text = u"\u5C71 \u03B1 \u00E9 \U0001F600 \u202E" + std::u16string(1, u'\0');
  this->caller.Say(text);
  ASSERT_TRUE(this->world.Wait([&] { return this->callee.texts.size() == 1; }));
  EXPECT_EQ(this->callee.texts[0], text);
}

TYPED_TEST_P(PrivacyContract, ManyTextsCrossWholeAndInOrder) {
  ASSERT_NO_FATAL_FAILURE(this->Meet());
  constexpr std::size_t kTexts = 200;
  std::vector<std::u16string> texts;
  for (std::size_t i = 0; i < kTexts; ++i) {
    const std::size_t length = (i * 7919) % (64 << 10);
    texts.push_back(std::u16string(length, static_cast<char16_t>(u'\u03B1' + i % 20)) + u'.');
    this->caller.Say(texts.back());
    this->callee.Say(texts.back());
  }
  ASSERT_TRUE(this->world.Wait(
      [&] { return this->callee.texts.size() == kTexts && this->caller.texts.size() == kTexts; }));
  EXPECT_TRUE(this->callee.texts == texts);
  EXPECT_TRUE(this->caller.texts == texts);
  EXPECT_TRUE(this->world.Wait([&] { return this->caller.socket.LinesWaiting() == 0; }));
}

TYPED_TEST_P(PrivacyContract, ALineWaitsUntilThePeersProgramHasTakenItIn) {
  ASSERT_NO_FATAL_FAILURE(this->Meet());
  this->callee.socket.PauseArrivals();
  this->caller.Say(u"one");
  this->caller.Say(u"two");
  this->callee.Say(u"three");
  ASSERT_TRUE(this->world.Wait([&] { return this->caller.texts.size() == 1; }));
  EXPECT_EQ(this->caller.socket.LinesWaiting(), 2u);
  this->callee.socket.ResumeArrivals();
  EXPECT_TRUE(this->world.Wait([&] { return this->caller.socket.LinesWaiting() == 0; }));
  EXPECT_THAT(this->callee.texts, testing::ElementsAre(u"one", u"two"));
}

TYPED_TEST_P(PrivacyContract, AClosedConversationStillDeliversWhatWaits) {
  ASSERT_NO_FATAL_FAILURE(this->Meet());
  for (int i = 0; i < 20; ++i) this->caller.Say(std::u16string(10'000, u'x'));
  this->caller.socket.Close();
  EXPECT_EQ(this->caller.privacy.State(), Privacy::None);
  ASSERT_TRUE(this->WaitForClose(this->callee));
  EXPECT_EQ(this->callee.textsBeforeClose, 20u);
  EXPECT_TRUE(this->callee.saidGoodbye);
  this->caller.socket.FinishSending();
  EXPECT_EQ(this->caller.undelivered, 0u);
  EXPECT_EQ(this->callee.undelivered, 0u);
}

TYPED_TEST_P(PrivacyContract, TheNextConversationIsPrivateAgain) {
  ASSERT_NO_FATAL_FAILURE(this->Meet());
  this->caller.socket.Close();
  ASSERT_TRUE(this->WaitForClose(this->callee));
  EXPECT_EQ(this->callee.privacy.State(), Privacy::None);
  EXPECT_EQ(this->callee.privacy.CurrentPeer(), std::nullopt);
  this->callee.requests.clear();
  this->caller.connects = 0;
  ASSERT_NO_FATAL_FAILURE(this->Connect());
  EXPECT_TRUE(this->BothAre(Privacy::Private));
}

REGISTER_TYPED_TEST_SUITE_P(
    PrivacyContract, TwoThatCanBecomePrivateAndKnowEachOther, TheSafetyDigitsAreTheSameOnBothSides,
    NothingIsRaisedOrSentBeforeThePeerIsLetIn, WithoutAReceiverThePeerIsLetInAtOnce,
    APeerThatIsNeverLetInEndsLikeAnyOther, WithAPeerThatNeverIsPrivateItGoesInClear,
    ACallerThatMustBePrivateHangsUpBeforeItSaysAnything,
    ACalleeThatMustBePrivateHangsUpOnOneThatCannot, TheExpectedKeyIsLetIn,
    AnotherKeyThanTheExpectedOneEndsTheCall, AnExpectedKeyIsNoneOfACaller,
    WhoExpectsAKeyHangsUpOnOneThatCannot, WithoutAKeyItGoesInClear,
    WithoutAKeyWhoMustBePrivateDoesNotEvenCall, EveryCharacterTravelsWhole,
    ManyTextsCrossWholeAndInOrder, ALineWaitsUntilThePeersProgramHasTakenItIn,
    AClosedConversationStillDeliversWhatWaits, TheNextConversationIsPrivateAgain);

}  // namespace verlume
