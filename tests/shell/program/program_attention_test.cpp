// How whole programs in memory tell their users of what happens.
#include <gmock/gmock.h>

#include "support/program_copy.h"

namespace verlume {
namespace {

using testing::ElementsAre;

class ProgramAttention : public testing::Test {
 protected:
  void Connect() {
    bob.Enter(u"/WAIT 4000");
    bob.platform.dialogs.answers.push_back(Answer::Yes);
    ann.Enter(u"/CALL bob 4000");
    network.RunUntilIdle();
  }

  fake::FakeNetwork network;
  fake::ProgramCopy ann{network, u"Ann"};
  fake::ProgramCopy bob{network, u"Bob"};
  fake::FakeAttention& told = bob.platform.attention;
};

TEST_F(ProgramAttention, OnlyThePeersLinesAreAnnounced) {
  bob.platform.window.mnuCommAskRouter.Click();  // else the wait asks whether it may
  told.listenedTo = true;
  Connect();
  ann.Enter(u"hello");
  network.RunUntilIdle();
  bob.platform.window.tmrTimer.Tick();
  bob.Enter(u"hello yourself");
  bob.Enter(u"/ME smiles");
  bob.platform.window.tmrTimer.Tick();
  ann.Enter(u"/ME waves");
  network.RunUntilIdle();
  EXPECT_THAT(told.announced,
              ElementsAre(u"Connection state: connected", u"Ann: hello", u"Ann waves"));
}

TEST_F(ProgramAttention, ACallAndALineReachAUserWhoIsAway) {
  bob.platform.window.window.active = false;
  Connect();
  ASSERT_TRUE(told.shown);
  EXPECT_EQ(told.shown->title, u"Incoming call");
  ann.Enter(u"hello");
  network.RunUntilIdle();
  EXPECT_EQ(told.shown->title, u"Ann");
  EXPECT_EQ(told.count, 1);
  EXPECT_EQ(bob.platform.window.window.title, u"Verlume");
  told.onUserBack();
  EXPECT_FALSE(told.shown);
  EXPECT_EQ(told.count, 0);
}

TEST_F(ProgramAttention, TheSwitchesAreKeptForTheNextStart) {
  fake::FakeMainWindow& window = bob.platform.window;
  EXPECT_TRUE(window.mnuAttentionLines.checked);
  EXPECT_FALSE(window.mnuAttentionText.checked);
  EXPECT_FALSE(window.mnuAttentionSound.checked);
  EXPECT_TRUE(window.mnuAttentionCount.checked);
  EXPECT_EQ(bob.Settings().find(u"Notify"), std::u16string::npos);
  for (fake::FakeMenuEntry* entry : {&window.mnuAttentionText, &window.mnuAttentionSound,
                                     &window.mnuAttentionLines, &window.mnuAttentionCount}) {
    entry->Click();
  }
  fake::ProgramCopy again(network, bob.Settings(), fake::ProgramCopy::SettingsFile{});
  const AppState& state = again.program.State();
  EXPECT_FALSE(state.NotifyLines);
  EXPECT_TRUE(state.NotifyText);
  EXPECT_TRUE(state.NotifySound);
  EXPECT_FALSE(state.NotifyCount);
  EXPECT_FALSE(again.platform.window.mnuAttentionText.enabled);
}

}  // namespace
}  // namespace verlume
