#include <gtest/gtest.h>

#include "support/side.h"

namespace verlume {
namespace {

class SetNicknameTest : public testing::Test, protected fake::TwoSides {
 protected:
  std::u16string Saved() const {
    return alice.settings.ReadSetting(u"General", u"Nickname", u"missing", 100);
  }
  fake::FakeDialogs& dialogs = alice.fake.dialogs;
  fake::FakeMainWindow& window = alice.fake.window;
};

TEST_F(SetNicknameTest, TheWholeRestIsTheNickname) {
  alice.state.OutgoingText = u"/NICK Alice in  Wonderland";
  window.rtbCommands.SetText(u"/NICK Alice in  Wonderland");
  alice.Nick(u"Alice in  Wonderland");
  EXPECT_EQ(alice.state.Nickname, u"Alice in  Wonderland");
  EXPECT_EQ(Saved(), u"Alice in  Wonderland");
  EXPECT_EQ(window.lblLocalNickname.caption, u"Alice in  Wonderland");
  EXPECT_EQ(alice.DialoguePane(), u"<Alice in  Wonderland>/NICK Alice in  Wonderland");
  EXPECT_EQ(window.rtbCommands.Text(), u"");
  EXPECT_TRUE(dialogs.asked.empty());
}

TEST_F(SetNicknameTest, WithoutNicknameTheOldOneIsProposed) {
  dialogs.typed = {u"Αλίκη"};
  alice.Nick(u"");
  ASSERT_EQ(dialogs.asked.size(), 1u);
  EXPECT_EQ(dialogs.asked[0].defaultText, u"Alice");
  EXPECT_EQ(alice.state.Nickname, u"Αλίκη");
}

TEST_F(SetNicknameTest, AnEmptyAnswerChangesNothing) {
  dialogs.typed = {u""};
  alice.Nick(u"");
  EXPECT_EQ(alice.state.Nickname, u"Alice");
  EXPECT_EQ(Saved(), u"missing");
}

TEST_F(SetNicknameTest, ThirtyTwoCharactersAreEnough) {
  const std::u16string nickname(32, u'a');
  alice.Nick(nickname);
  EXPECT_EQ(alice.state.Nickname, nickname);
  EXPECT_TRUE(dialogs.messages.empty());
}

TEST_F(SetNicknameTest, ThirtyThreeAreToldToBeTooManyAndAskedForAgain) {
  dialogs.typed = {std::u16string(33, u'b'), u"Ally"};
  alice.Nick(std::u16string(33, u'a'));
  ASSERT_EQ(dialogs.messages.size(), 2u);
  EXPECT_EQ(dialogs.messages[0].text, u"The nickname must not contain more than 32 characters.");
  EXPECT_EQ(dialogs.messages[0].icon, MessageIcon::Information);
  ASSERT_EQ(dialogs.asked.size(), 2u);
  EXPECT_EQ(dialogs.asked[0].defaultText, u"Alice");
  EXPECT_EQ(alice.state.Nickname, u"Ally");
}

TEST_F(SetNicknameTest, ControlCharactersAreNoPartOfIt) {
  using namespace std::literals;
  alice.Nick(u"A\0l\r\nl\x7Fy\x9F"sv);
  EXPECT_EQ(alice.state.Nickname, u"Ally");
  alice.Nick(std::u16string(40, u'\t') + std::u16string(32, u'a'));
  EXPECT_EQ(alice.state.Nickname, std::u16string(32, u'a'));
}

TEST_F(SetNicknameTest, NothingButControlCharactersIsEmpty) {
  dialogs.typed = {u"\t\r\n"};
  alice.Nick(u"\x01");
  EXPECT_EQ(dialogs.asked.size(), 1u);
  EXPECT_EQ(alice.state.Nickname, u"Alice");
}

TEST_F(SetNicknameTest, NothingButBlanksIsEmpty) {
  dialogs.typed = {u" \u00A0\u3000\t"};
  alice.Nick(u"  \u2003");
  EXPECT_EQ(dialogs.asked.size(), 1u);
  EXPECT_EQ(alice.state.Nickname, u"Alice");
  EXPECT_EQ(Saved(), u"missing");
  EXPECT_EQ(alice.DialoguePane(), u"");
}

TEST_F(SetNicknameTest, BlanksAroundItStay) {
  alice.Nick(u" Al ");
  EXPECT_EQ(alice.state.Nickname, u" Al ");
}

TEST_F(SetNicknameTest, TheUserIsToldWhatTheWireCannotCarryAndMayChooseAnother) {
  Connect();
  dialogs.answers = {Answer::Yes, Answer::Yes};
  dialogs.typed = {u"Жук\U0001F41E", u"Jose"};
  alice.Nick(u"José");
  ASSERT_EQ(dialogs.messages.size(), 2u);
  EXPECT_EQ(dialogs.messages[0].text,
            u"The nickname 'José' contains characters that cannot be sent. The remote computer "
            u"will show it as 'Jos?'.\r\n\r\nDo you want to choose another nickname?");
  EXPECT_EQ(dialogs.messages[0].title, u"Nickname definition");
  EXPECT_EQ(dialogs.messages[0].icon, MessageIcon::Question);
  EXPECT_EQ(dialogs.messages[0].buttons, MessageButtons::YesNo);
  EXPECT_EQ(dialogs.messages[0].defaultAnswer, Answer::Yes);
  EXPECT_NE(dialogs.messages[1].text.find(u"'" + std::u16string(4, u'?') + u"'"),
            std::u16string::npos);
  ASSERT_EQ(dialogs.asked.size(), 2u);
  EXPECT_EQ(dialogs.asked[0].defaultText, u"Alice");
  EXPECT_EQ(alice.state.Nickname, u"Jose");
  network.RunUntilIdle();
  EXPECT_EQ(bob.state.RemoteNickname, u"Jose");
}

TEST_F(SetNicknameTest, TheUserMayKeepItAllTheSame) {
  alice.state.IsGreek = true;
  dialogs.answers = {Answer::No};
  alice.Nick(u"José");
  ASSERT_EQ(dialogs.messages.size(), 1u);
  EXPECT_EQ(dialogs.messages[0].text,
            u"Το ψευδώνυμο «José» περιέχει χαρακτήρες που δεν μπορούν να σταλούν. Ο "
            u"απομακρυσμένος υπολογιστής θα το εμφανίζει ως «Jos?».\r\n\r\n"
            u"Θέλετε να επιλέξετε άλλο ψευδώνυμο;");
  EXPECT_EQ(dialogs.messages[0].title, u"Ορισμός ψευδωνύμου");
  EXPECT_EQ(alice.state.Nickname, u"José");
  EXPECT_EQ(Saved(), u"José");
}

TEST_F(SetNicknameTest, WhatTheWireCarriesIsNotAskedAbout) {
  for (const std::u16string_view nickname : {u"Who?", u"Άννα-Μαΐα", u"«50 €»", u"A\u00A0b"}) {
    alice.Nick(nickname);
    EXPECT_EQ(alice.state.Nickname, nickname);
  }
  EXPECT_TRUE(dialogs.messages.empty());
}

TEST_F(SetNicknameTest, ThePeerIsToldWhileConnected) {
  Connect();
  alice.Nick(u"Ally");
  network.RunUntilIdle();
  EXPECT_EQ(bob.state.RemoteNickname, u"Ally");
  EXPECT_EQ(bob.fake.window.lblRemoteNickname.caption, u"Ally");
}

TEST_F(SetNicknameTest, WithoutConnectionNothingIsSent) {
  alice.Nick(u"Ally");
  EXPECT_TRUE(alice.fake.socket.sent.empty());
  Connect();
  EXPECT_EQ(bob.state.RemoteNickname, u"Ally");
}

TEST_F(SetNicknameTest, ASettingsFileThatCannotBeWrittenIsReported) {
  Connect();
  alice.fake.files.writesFail = FailureNumber::PermissionDenied;
  dialogs.answers = {Answer::No};
  alice.Nick(u"Ally");
  EXPECT_EQ(dialogs.messages.back().title, u"Verlume, 232.");
  EXPECT_EQ(alice.state.Nickname, u"Alice");
  EXPECT_EQ(alice.State(), ConnectionState::Idle);
  EXPECT_EQ(alice.Status(), u"");
}

}  // namespace
}  // namespace verlume
