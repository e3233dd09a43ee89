// The rules by which the dialogue pane shows what happened to the connection.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "connection/rule_texts.h"
#include "shell/dialogue_rule.h"
#include "support/side.h"

namespace verlume {
namespace {

using testing::ElementsAre;

class ConnectionRulesTest : public testing::Test, protected fake::TwoSides {
 protected:
  static std::vector<std::u16string> RulesOf(const fake::Side& side) {
    std::vector<std::u16string> words;
    for (const auto& rule : side.fake.window.rtbData.rules) words.push_back(rule());
    return words;
  }
};

TEST_F(ConnectionRulesTest, BothSidesSeeTheBeginningAndTheEnd) {
  Connect();
  EXPECT_THAT(RulesOf(alice), ElementsAre(u"Connected, 09:05:30"));
  alice.fake.clock.now.minute = bob.fake.clock.now.minute = 7;
  alice.actions.CloseConnection();
  network.RunUntilIdle();
  EXPECT_THAT(RulesOf(alice), ElementsAre(u"Connected, 09:05:30", u"Disconnected, 09:07:30"));
  EXPECT_THAT(RulesOf(bob), ElementsAre(u"Connected, 09:05:30", u"Connection lost, 09:07:30"));
  EXPECT_EQ(alice.DialoguePane(), u"");
}

TEST_F(ConnectionRulesTest, ASecondHandshakeIsNoNewConversation) {
  Connect();
  bob.wire.SendStart();
  network.RunUntilIdle();
  EXPECT_THAT(RulesOf(alice), ElementsAre(u"Connected, 09:05:30"));
}

TEST_F(ConnectionRulesTest, ACallThatWasNeverAConversationSaysWhy) {
  alice.Call(u"nowhere 4000");
  network.RunUntilIdle();
  ASSERT_EQ(alice.State(), ConnectionState::Idle);
  EXPECT_THAT(RulesOf(alice), ElementsAre(u"The computer nowhere refused the call: nobody waits on "
                                          u"port 4000 there, 09:05:30"));
}

TEST_F(ConnectionRulesTest, TheyFollowTheLanguage) {
  Connect();
  bob.actions.CloseConnection();
  network.RunUntilIdle();
  alice.state.IsGreek = bob.state.IsGreek = true;
  EXPECT_THAT(RulesOf(alice), ElementsAre(u"Συνδεθήκατε, 09:05:30", u"Η σύνδεση χάθηκε, 09:05:30"));
  EXPECT_THAT(RulesOf(bob), ElementsAre(u"Συνδεθήκατε, 09:05:30", u"Αποσυνδεθήκατε, 09:05:30"));
}

TEST_F(ConnectionRulesTest, ValuesAreFilledIn) {
  AddDialogueRule(alice.state, alice.fake.platform, {u"No answer from %1", u"Καμία απάντηση: %1"},
                  {u"192.0.2.7"});
  EXPECT_THAT(RulesOf(alice), ElementsAre(u"No answer from 192.0.2.7, 09:05:30"));
}

}  // namespace
}  // namespace verlume
