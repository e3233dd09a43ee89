#include "people/verification.h"

#include <gtest/gtest.h>

#include "support/program_copy.h"

namespace verlume {
namespace {

using fake::ProgramCopy;

class VerificationTest : public testing::Test {
 protected:
  void Connect(ProgramCopy& other) {
    other.Enter(u"/WAIT 4000");
    other.platform.dialogs.answers = {Answer::Yes};
    ann.Enter(u"/CALL other 4000");
    network.RunUntilIdle();
  }
  void Verify(const std::function<void()>& act) {
    window.window.whileModal = act;
    ann.platform.window.mnuCommVerify.Click();
  }
  void VerifyBob() {
    Connect(bob);
    Verify([this] { window.cmdVerifyMatch.Click(); });
  }

  fake::FakeNetwork network;
  ProgramCopy ann{network, u"Ann"};
  ProgramCopy bob{network, u"Bob"};
  fake::FakeVerifyWindow& window = ann.platform.verify;
};

TEST_F(VerificationTest, TheDigitsOfTheConversationAreShown) {
  Connect(bob);
  Verify([this] {
    EXPECT_EQ(window.lblVerifyWho.caption, u"Compare these digits with Bob.");
    EXPECT_EQ(window.lblVerifyDigits.digits, ann.Privacy().digits);
    EXPECT_EQ(window.picVerifyCode.code, ann.Privacy().digits);
    window.cmdVerifyCopy.Click();
    window.cmdVerifyClose.Click();
  });
  EXPECT_EQ(ann.platform.clipboard.text, ann.Privacy().digits);
  EXPECT_EQ(ann.Lock(), u"Private, first time with this key");
}

TEST_F(VerificationTest, TheyMatchMarksTheKey) {
  VerifyBob();
  EXPECT_EQ(ann.Lock(), u"Private, verified: Bob");
  EXPECT_EQ(ann.platform.window.lblLock.picture, LockPicture::Verified);
  EXPECT_NE(ann.Peers().find(u"Verified=True"), std::u16string::npos);
  EXPECT_TRUE(window.window.unloaded);
  bob.Enter(u"/NICK Robert");
  network.RunUntilIdle();
  EXPECT_EQ(ann.Lock(), u"Private, verified: Bob (calls itself Robert)");
  Verify([this] {
    EXPECT_EQ(window.lblVerifyWho.caption,
              u"Compare these digits with Bob. You have verified this key before.");
  });
}

TEST_F(VerificationTest, TheLockOpensItWithTheLeftButton) {
  Connect(bob);
  ann.platform.window.lblLock.onMouseDown(MouseButton::Right);
  EXPECT_EQ(window.window.timesShownModal, 0);
  ann.platform.window.lblLock.onMouseDown(MouseButton::Left);
  EXPECT_EQ(window.window.timesShownModal, 1);
}

TEST_F(VerificationTest, WithoutAPrivateConversationThereAreNoDigits) {
  ann.platform.dialogs.answers = {Answer::Ok, Answer::Ok};
  Verify([] {});
  bob.platform.window.mnuPrivateNever.Click();
  Connect(bob);
  Verify([] {});
  EXPECT_EQ(window.window.timesShownModal, 0);
  ASSERT_EQ(ann.platform.dialogs.messages.size(), 2u);
  EXPECT_TRUE(ann.platform.dialogs.messages[0].text.starts_with(u"There are digits to compare"));
}

TEST_F(VerificationTest, TheKeyWhoseDigitsAreShownIsMarkedEvenIfThePeerHasChanged) {
  ProgramCopy carol(network, u"Carol");
  Connect(bob);
  const KeyFingerprint bobs = bob.Privacy().key;
  Verify([&] {
    ann.Enter(u"/CLOSE");
    network.RunUntilIdle();
    carol.Enter(u"/WAIT 4001");
    carol.platform.dialogs.answers = {Answer::Yes};
    ann.Enter(u"/CALL carol 4001");
    network.RunUntilIdle();
    ASSERT_TRUE(ann.program.State().IsConnected);
    window.cmdVerifyMatch.Click();
  });
  EXPECT_EQ(ann.Lock(), u"Private, first time with this key") << "Carol is not verified";
  const std::u16string peers = ann.Peers();
  const std::size_t bobsSection = peers.find(u"[0202");
  ASSERT_NE(bobsSection, peers.npos) << "the key of the second program of the network";
  EXPECT_EQ(bobs.front(), 2);
  EXPECT_EQ(peers.find(u"Verified=True"), peers.find(u"Verified=", bobsSection));
}

}  // namespace
}  // namespace verlume
