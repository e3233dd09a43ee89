// What happens when this program has no key to show.
#include <gtest/gtest.h>

#include "support/program_copy.h"

namespace verlume {
namespace {

using fake::ProgramCopy;

class OwnKeyTest : public testing::Test {
 protected:
  void Call() {
    bob.Enter(u"/WAIT 4000");
    bob.platform.dialogs.answers.push_back(Answer::Yes);
    ann.Enter(u"/CALL bob 4000");
    network.RunUntilIdle();
  }
  const std::u16string& Note() const { return ann.platform.window.lblStatus.toolTip; }
  bool NoteHas(std::u16string_view text) const { return Note().find(text) != Note().npos; }

  fake::FakeNetwork network;
  ProgramCopy ann{network, u"Ann"};
  ProgramCopy bob{network, u"Bob"};
};

TEST_F(OwnKeyTest, WithoutAKeyItGoesInClearAndTheUserIsTold) {
  ann.Privacy().ownKey = OwnKey::Unavailable;
  Call();
  EXPECT_TRUE(ann.program.State().IsConnected);
  EXPECT_TRUE(NoteHas(u"this system cannot encrypt them"));
  EXPECT_EQ(ann.Lock(), u"Not private: this program has no key");
  EXPECT_EQ(bob.Lock(), u"Not private: the other program cannot");
  ann.platform.window.mnuToolsLanguageGreek.Click();
  EXPECT_TRUE(NoteHas(u"αυτό το σύστημα δεν μπορεί"));
  EXPECT_TRUE(ann.platform.dialogs.messages.empty());
}

TEST_F(OwnKeyTest, AKeyThatCannotBeMadeIsToldWhenAWaitBegins) {
  ann.Privacy().ownKey = OwnKey::Unwritable;
  ann.Enter(u"/WAIT 4001");
  EXPECT_TRUE(ann.program.State().IsWaiting);
  EXPECT_TRUE(NoteHas(u"Verlume.key, cannot be made"));
  ann.Privacy().ownKey = OwnKey::Ready;
  ann.Enter(u"/CANCEL");
  ann.Enter(u"/WAIT 4001");
  EXPECT_FALSE(NoteHas(u"Verlume.key")) << "it is settled";
}

TEST_F(OwnKeyTest, OnlyPrivateConversationsAreRefusedWithoutAKey) {
  ann.platform.window.mnuPrivateOnly.Click();
  ann.Privacy().ownKey = OwnKey::Unavailable;
  ann.platform.dialogs.answers = {Answer::Ok, Answer::Ok};
  ann.Enter(u"/WAIT 4001");
  ann.Enter(u"/CALL bob 4000");
  EXPECT_FALSE(ann.program.State().IsWaiting || ann.program.State().IsCalling);
  ASSERT_EQ(ann.platform.dialogs.messages.size(), 2u);
  const Message& refusal = ann.platform.dialogs.messages[0];
  EXPECT_EQ(refusal.icon, MessageIcon::Stop);
  EXPECT_NE(refusal.text.find(u"this system cannot encrypt"), refusal.text.npos);
  EXPECT_NE(refusal.text.find(u"Nothing was begun"), refusal.text.npos);
}

TEST_F(OwnKeyTest, AnUnreadableKeyIsReplacedOnlyIfTheUserSaysSo) {
  ann.Privacy().ownKey = OwnKey::Unreadable;
  ann.platform.dialogs.answers = {Answer::No};
  ann.Enter(u"/WAIT 4001");
  EXPECT_EQ(ann.Privacy().timesReplaced, 0);
  EXPECT_TRUE(NoteHas(u"Verlume.key, cannot be read"));
  ASSERT_EQ(ann.platform.dialogs.messages.size(), 1u);
  EXPECT_EQ(ann.platform.dialogs.messages[0].defaultAnswer, Answer::No);
  ann.Enter(u"/CANCEL");
  ann.Enter(u"/WAIT 4001");
  EXPECT_EQ(ann.platform.dialogs.messages.size(), 1u) << "asked once";

  ann.Enter(u"/CANCEL");
  ann.platform.window.mnuPrivateOnly.Click();
  ann.platform.dialogs.answers = {Answer::Yes};
  ann.Enter(u"/WAIT 4001");
  EXPECT_EQ(ann.Privacy().timesReplaced, 1);
  EXPECT_TRUE(ann.program.State().IsWaiting);
  EXPECT_FALSE(NoteHas(u"Verlume.key"));
}

TEST_F(OwnKeyTest, WhoNeverTalksInPrivateNeedsNoKey) {
  ann.platform.window.mnuPrivateNever.Click();
  ann.Privacy().ownKey = OwnKey::Unreadable;
  Call();
  EXPECT_TRUE(ann.program.State().IsConnected);
  EXPECT_FALSE(NoteHas(u"Verlume.key"));
}

}  // namespace
}  // namespace verlume
