// What was not delivered, offered when the same peer is there again.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/program_copy.h"
#include "support/text_matchers.h"

namespace verlume {
namespace {

using fake::ProgramCopy;

class ResendTest : public testing::Test {
 protected:
  static const fake::FakeResendBar& BarOf(const ProgramCopy& side) {
    return side.platform.window.resendBar;
  }
  static bool IsOffered(const ProgramCopy& side) { return BarOf(side).fraResend.visible; }
  static std::u16string Offer(const ProgramCopy& side) {
    return IsOffered(side) ? BarOf(side).lblResend.caption : std::u16string();
  }
  static std::u16string AgainText(const ProgramCopy& side) {
    const fake::FakeAgainBar& bar = side.platform.window.againBar;
    return bar.fraAgain.visible ? bar.lblAgain.caption : std::u16string();
  }
  static std::u16string LinesFrom10To24() {
    std::u16string lines;
    for (int i = 10; i < 25; ++i) lines += u"\n<Ann>line " + DecimalText(i);
    return lines;
  }
  void Send(ProgramCopy& side) {
    side.platform.window.resendBar.cmdResend.Click();
    network.RunUntilIdle();
  }
  // Both talk in clear.
  void TurnPrivacyOff() {
    ann.platform.window.mnuPrivateNever.Click();
    bob.platform.window.mnuPrivateNever.Click();
  }
  void Call(ProgramCopy& caller, ProgramCopy& callee, std::u16string_view place = u"bob 4000") {
    network.Mend();
    callee.Enter(u"/WAIT 4000");
    callee.platform.dialogs.answers = {Answer::Yes};
    caller.Enter(std::u16string(u"/CALL ").append(place));
    network.RunUntilIdle();
  }
  // What the side says now does not arrive, and the connection ends without its user.
  void Lose(ProgramCopy& side, ProgramCopy& peer, std::initializer_list<std::u16string_view> said) {
    network.Cut();
    for (const std::u16string_view line : said) side.Enter(std::u16string(line));
    peer.Enter(u"/CLOSE");
    network.RunUntilIdle();
  }
  // Ann has called Bob, and has lost three lines.
  void LoseThree() {
    Call(ann, bob);
    Lose(ann, bob, {u"first words", u"/me waves", u"third"});
  }

  fake::FakeNetwork network;
  ProgramCopy ann{network, u"Ann"};
  ProgramCopy bob{network, u"Bob"};
};

TEST_F(ResendTest, TheBarAfterTheConversationSaysHowManyLinesAreMissing) {
  LoseThree();
  EXPECT_EQ(AgainText(ann), u"The connection to Bob has ended. 3 lines were not delivered.");
  EXPECT_EQ(AgainText(bob), u"");
  EXPECT_FALSE(IsOffered(ann)) << "nobody is there";
}

TEST_F(ResendTest, AtAClickTheyAreSentInOrderAsLinesOfThisConversation) {
  LoseThree();
  Call(ann, bob);
  EXPECT_EQ(Offer(ann), u"3 lines were not delivered to Bob: first words");
  EXPECT_EQ(BarOf(ann).fraResend.accessibleName, Offer(ann));
  EXPECT_FALSE(IsOffered(bob));
  EXPECT_EQ(bob.Dialogue(), u"") << "nothing goes out by itself";
  ann.Enter(u"hello again");
  Send(ann);
  EXPECT_FALSE(IsOffered(ann));
  EXPECT_EQ(bob.Dialogue(), u"<Ann>hello again\n<Ann>first words\n Ann waves\n<Ann>third");
  EXPECT_THAT(ann.Dialogue(),
              EndsIn(u"\n<Ann>hello again\n<Ann>first words\n Ann waves\n<Ann>third"));
  EXPECT_EQ(ann.platform.window.rtbData.authors.back(), Author::User);
  const std::u16string log = ann.platform.files.ReadText(u"/logs/Bob.txt");
  EXPECT_GT(log.rfind(u"<Ann>third"), log.rfind(u"<Ann>hello again"));
}

TEST_F(ResendTest, WhatIsHalfTypedStays) {
  LoseThree();
  Call(ann, bob);
  ann.platform.window.rtbCommands.SetText(u"half typed");
  Send(ann);
  EXPECT_EQ(ann.platform.window.rtbCommands.Text(), u"half typed");
}

TEST_F(ResendTest, OneLineIsNoPlural) {
  Call(ann, bob);
  Lose(ann, bob, {u"only this"});
  EXPECT_EQ(AgainText(ann), u"The connection to Bob has ended. 1 line was not delivered.");
  Call(ann, bob);
  EXPECT_EQ(Offer(ann), u"1 line was not delivered to Bob: only this");
}

TEST_F(ResendTest, DroppedLinesAreNeverOfferedAgain) {
  LoseThree();
  Call(ann, bob);
  ann.platform.window.resendBar.cmdResendDrop.Click();
  EXPECT_FALSE(IsOffered(ann));
  bob.Enter(u"/CLOSE");
  network.RunUntilIdle();
  EXPECT_EQ(AgainText(ann), u"The connection to Bob has ended.");
  Call(ann, bob);
  EXPECT_FALSE(IsOffered(ann));
}

TEST_F(ResendTest, AClosedBarComesBackInTheNextConversation) {
  LoseThree();
  Call(ann, bob);
  ann.platform.window.resendBar.cmdResendClose.Click();
  EXPECT_FALSE(IsOffered(ann));
  ann.platform.window.resendBar.cmdResend.Click();
  ann.Enter(u"/GREEK");
  EXPECT_FALSE(IsOffered(ann)) << "it stays closed";
  ann.Enter(u"/ENGLISH");
  bob.Enter(u"/NICK Robert");
  network.RunUntilIdle();
  EXPECT_FALSE(IsOffered(ann));
  bob.Enter(u"/CLOSE");
  network.RunUntilIdle();
  Call(ann, bob);
  EXPECT_EQ(Offer(ann), u"3 lines were not delivered to Robert: first words");
}

TEST_F(ResendTest, TheyAreKeptWhileAnotherKeyIsThere) {
  LoseThree();
  bob.Privacy().key.fill(99);
  Call(ann, bob);
  ann.platform.window.keyBar.cmdKeyGoOn.Click();
  network.RunUntilIdle();
  ASSERT_TRUE(ann.program.State().IsConnected);
  EXPECT_FALSE(IsOffered(ann)) << "the same name at the same place";
  Send(ann);
  EXPECT_EQ(bob.Dialogue(), u"");
  bob.Enter(u"/CLOSE");
  network.RunUntilIdle();
  bob.Privacy().key.fill(2);
  Call(ann, bob);
  ann.platform.window.keyBar.cmdKeyGoOn.Click();
  network.RunUntilIdle();
  EXPECT_EQ(Offer(ann), u"3 lines were not delivered to Bob: first words");
}

TEST_F(ResendTest, WhatWasSaidInPrivateIsNotOfferedInClear) {
  LoseThree();
  TurnPrivacyOff();
  Call(ann, bob);
  ASSERT_EQ(ann.Privacy().State(), Privacy::Clear);
  EXPECT_FALSE(IsOffered(ann));
}

TEST_F(ResendTest, InClearThePlaceAndTheNicknameTellThePeer) {
  TurnPrivacyOff();
  LoseThree();
  bob.Enter(u"/NICK Carol");
  Call(ann, bob);
  EXPECT_FALSE(IsOffered(ann));
  bob.Enter(u"/NICK Bob");
  network.RunUntilIdle();
  EXPECT_TRUE(IsOffered(ann)) << "now that is known";
  bob.Enter(u"/NICK Carol");
  network.RunUntilIdle();
  EXPECT_FALSE(IsOffered(ann));
}

TEST_F(ResendTest, APlaceIsTheSameInAnyCase) {
  TurnPrivacyOff();
  LoseThree();
  Call(ann, bob, u"BOB 4000");
  EXPECT_TRUE(IsOffered(ann));
}

TEST_F(ResendTest, WhoWaitedKnowsTheCallerByItsAddress) {
  TurnPrivacyOff();
  Call(ann, bob);
  Lose(bob, ann, {u"lost"});
  EXPECT_EQ(AgainText(bob), u"The connection to Ann has ended. 1 line was not delivered.");
  ann.platform.socket.localIP = u"192.0.2.77";
  Call(ann, bob);
  EXPECT_FALSE(IsOffered(bob));
  ann.Enter(u"/CLOSE");
  network.RunUntilIdle();
  ann.platform.socket.localIP = u"192.0.2.1";
  Call(ann, bob);
  EXPECT_EQ(Offer(bob), u"1 line was not delivered to Ann: lost");
  Send(bob);
  EXPECT_THAT(ann.Dialogue(), EndsIn(u"<Bob>lost"));
}

TEST_F(ResendTest, ASecondBreakAddsToWhatIsThere) {
  LoseThree();
  Call(ann, bob);
  Lose(ann, bob, {u"fourth"});
  EXPECT_EQ(AgainText(ann), u"The connection to Bob has ended. 4 lines were not delivered.");
  Call(ann, bob);
  Send(ann);
  EXPECT_EQ(bob.Dialogue(), u"<Ann>first words\n Ann waves\n<Ann>third\n<Ann>fourth");
}

TEST_F(ResendTest, WhatIsSentAgainWaitsAgainAndCanBeLostAgain) {
  LoseThree();
  Call(ann, bob);
  network.Cut();
  Send(ann);
  EXPECT_EQ(ann.platform.window.lblWaiting.caption, u"3 waiting");
  bob.Enter(u"/CLOSE");
  network.RunUntilIdle();
  Call(ann, bob);
  Send(ann);
  EXPECT_EQ(bob.Dialogue(), u"<Ann>first words\n Ann waves\n<Ann>third");
  EXPECT_EQ(ann.platform.window.lblWaiting.caption, u"");
}

TEST_F(ResendTest, WhatTheUserLostByClosingIsOfferedToo) {
  Call(ann, bob);
  Lose(bob, ann, {});
  Call(ann, bob);
  network.Cut();
  ann.Enter(u"lost");
  ann.Enter(u"/CLOSE");
  network.RunUntilIdle();
  EXPECT_EQ(AgainText(ann), u"");
  Call(ann, bob);
  EXPECT_EQ(Offer(ann), u"1 line was not delivered to Bob: lost");
}

TEST_F(ResendTest, ALossThatIsToldDuringTheNextConversationIsOfferedThere) {
  Call(ann, bob);
  network.Cut();
  ann.Enter(u"lost");
  const auto tell = std::exchange(ann.platform.socket.onUndelivered, nullptr);
  ann.Enter(u"/CLOSE");
  network.RunUntilIdle();
  Call(ann, bob);
  ASSERT_FALSE(IsOffered(ann));
  tell(1, ann.platform.socket.CurrentConnection() - 1);
  EXPECT_EQ(Offer(ann), u"1 line was not delivered to Bob: lost");
}

TEST_F(ResendTest, LinesTypedAfterAnEndThatIsNotShownYetAreLostToo) {
  Call(ann, bob);
  ann.platform.socket.PauseArrivals();
  bob.Enter(u"/CLOSE");
  network.RunUntilIdle();
  ASSERT_TRUE(ann.program.State().IsConnected);
  ann.Enter(u"too late");
  ann.platform.socket.ResumeArrivals();
  network.RunUntilIdle();
  EXPECT_EQ(AgainText(ann), u"The connection to Bob has ended. 1 line was not delivered.");
  Call(ann, bob);
  Send(ann);
  EXPECT_EQ(bob.Dialogue(), u"<Ann>too late");
}

TEST_F(ResendTest, WhatIsTypedWithoutAConversationIsNotKept) {
  Call(ann, bob);
  bob.Enter(u"/CLOSE");
  network.RunUntilIdle();
  ann.Enter(u"alone");
  Call(ann, bob);
  EXPECT_FALSE(IsOffered(ann));
}

TEST_F(ResendTest, WhenTheConversationEndsTheOfferGoesAndTheLinesStay) {
  LoseThree();
  Call(ann, bob);
  ann.platform.window.resendBar.fraResend.hasFocus = true;
  const int before = ann.platform.window.rtbCommands.timesFocused;
  bob.Enter(u"/CLOSE");
  network.RunUntilIdle();
  EXPECT_FALSE(IsOffered(ann));
  EXPECT_GT(ann.platform.window.rtbCommands.timesFocused, before);
  Send(ann);
  Call(ann, bob);
  EXPECT_TRUE(IsOffered(ann));
}

TEST_F(ResendTest, NothingIsOfferedWhileTheUserIsAskedAboutThePeer) {
  PeerBook knowsCarol;
  knowsCarol.Verify(KeyFingerprint{102}, u"Carol", {2026, 1, 2});
  ProgramCopy eve(network, u"Eve", knowsCarol);
  Call(eve, bob);
  Lose(eve, bob, {u"lost"});
  Call(eve, bob);
  ASSERT_TRUE(IsOffered(eve));
  eve.platform.socket.Receive(eve.program.State().ProtocolMarker + u"CCarol" + u'\0');
  ASSERT_TRUE(eve.Bar().fraKey.visible);
  EXPECT_FALSE(IsOffered(eve));
  eve.platform.window.keyBar.cmdKeyGoOn.Click();
  EXPECT_EQ(Offer(eve), u"1 line was not delivered to Carol: lost");
}

TEST_F(ResendTest, AnEmptyPaneOffersTheSame) {
  LoseThree();
  ann.Enter(u"/CLEARDIALOGUE");
  Call(ann, bob);
  Send(ann);
  EXPECT_EQ(ann.Dialogue(), bob.Dialogue());
}

TEST_F(ResendTest, SpeaksGreek) {
  LoseThree();
  ann.Enter(u"/GREEK");
  EXPECT_EQ(AgainText(ann), u"Η σύνδεση με Bob έληξε. 3 γραμμές δεν παραδόθηκαν.");
  Call(ann, bob);
  EXPECT_EQ(Offer(ann), u"3 γραμμές δεν παραδόθηκαν προς Bob: first words");
  EXPECT_EQ(BarOf(ann).cmdResend.caption, u"Να σταλούν");
  ann.Enter(u"/ENGLISH");
  EXPECT_EQ(BarOf(ann).cmdResend.caption, u"Send them");
  EXPECT_EQ(Offer(ann), u"3 lines were not delivered to Bob: first words");
  Send(ann);
  EXPECT_THAT(bob.Dialogue(), EndsIn(u"<Ann>third"));
}

TEST_F(ResendTest, AHostileNicknameIsTextAndALongLineIsCut) {
  TurnPrivacyOff();
  bob.Enter(u"/NICK <b>%3</b>");
  Call(ann, bob);
  Lose(ann, bob, {std::u16string(5000, u'x')});
  Call(ann, bob);
  EXPECT_THAT(Offer(ann), BeginsWith(u"1 line was not delivered to <b>%3</b>: xxx"));
  EXPECT_LT(Offer(ann).size(), 150u);
}

// The user hangs up, or hangs up and talks to Bob again, while the program sends.
TEST_F(ResendTest, WhatIsNotSentYetWhenTheConversationEndsIsKept) {
  for (const bool callsAgain : {false, true}) {
    Call(ann, bob);
    network.Cut();
    for (int i = 0; i < 25; ++i) ann.Enter(u"line " + DecimalText(i));
    bob.Enter(u"/CLOSE");
    network.RunUntilIdle();
    bob.Enter(u"/CLEARDIALOGUE");
    Call(ann, bob);
    ann.platform.application.onYield = [&] {
      ann.platform.application.onYield = nullptr;
      network.RunUntilIdle();
      bob.Enter(u"/CLOSE");
      network.RunUntilIdle();
      if (callsAgain) Call(ann, bob);
    };
    Send(ann);
    EXPECT_EQ(ann.program.State().IsConnected, callsAgain);
    if (!callsAgain) Call(ann, bob);
    EXPECT_EQ(Offer(ann), u"15 lines were not delivered to Bob: line 10");
    EXPECT_THAT(bob.Dialogue(), EndsIn(u"<Ann>line 9"));
    Send(ann);
    EXPECT_THAT(bob.Dialogue(), EndsIn(u"<Ann>line 9" + LinesFrom10To24()));
    bob.Enter(u"/CLOSE");
    network.RunUntilIdle();
  }
}

TEST_F(ResendTest, OfTooManyTheLastAreSent) {
  Call(ann, bob);
  network.Cut();
  for (int i = 0; i < 1002; ++i) ann.Enter(u"line " + DecimalText(i));
  bob.Enter(u"/CLOSE");
  network.RunUntilIdle();
  EXPECT_EQ(AgainText(ann), u"The connection to Bob has ended. 1002 lines were not delivered.");
  Call(ann, bob);
  EXPECT_EQ(Offer(ann),
            u"1002 lines were not delivered to Bob, and the last 1000 of them were kept: line 2");
  Send(ann);
  EXPECT_THAT(bob.Dialogue(), BeginsWith(u"<Ann>line 2\n"));
  EXPECT_THAT(bob.Dialogue(), EndsIn(u"<Ann>line 1001"));
}

}  // namespace
}  // namespace verlume
