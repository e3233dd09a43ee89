#include "shell/who_is_who.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform_fake/fake_platform.h"

namespace verlume {
namespace {

class WhoIsWhoTest : public testing::Test {
 protected:
  WhoIsWhoTest() { state.Nickname = u"Alice"; }

  std::u16string ToolTipWith(std::u16string_view shown) {
    fake.window.lblRemoteNickname.SetCaption(shown);
    ExplainRemoteNickname(state, fake.platform.frmMain);
    return fake.window.lblRemoteNickname.ToolTip();
  }
  std::u16string TextWith(std::u16string_view peer) {
    state.RemoteNickname = peer;
    return WhoIsWho(state);
  }

  AppState state;
  fake::FakeNetwork network;
  fake::FakePlatform fake{network};
};

TEST_F(WhoIsWhoTest, APeerIsToldByItsNickname) {
  const auto authorNamed = [this](std::u16string_view nickname) {
    state.RemoteNickname = nickname;
    return PeerAsAuthor(state);
  };
  EXPECT_EQ(authorNamed(u""), Author::Peer);
  EXPECT_EQ(authorNamed(u"Bob"), Author::Peer);
  EXPECT_EQ(authorNamed(u"ALICE"), Author::PeerReadingAlike);
  EXPECT_EQ(authorNamed(u"Alice>I agree"), Author::PeerWithBrackets);
  EXPECT_EQ(authorNamed(u"<Bob"), Author::PeerWithBrackets);
}

// What is shown counts: a mark in the user's own nickname is shown as an escape.
TEST_F(WhoIsWhoTest, TheNicknameAsItIsShownCounts) {
  state.Nickname = u"Alice\u202E";
  state.RemoteNickname = u"Alice\\u202E";
  EXPECT_EQ(PeerAsAuthor(state), Author::PeerReadingAlike);
}

TEST_F(WhoIsWhoTest, TheToolTipOfTheNicknameSaysWhatIsWrongWithIt) {
  EXPECT_EQ(ToolTipWith(u"Bob"), u"Remote nickname");
  EXPECT_EQ(ToolTipWith(u"Αlice"), u"Remote nickname. It reads like yours.");
  EXPECT_EQ(ToolTipWith(u"Alice>I agree"), u"Remote nickname. It holds angle brackets.");
  EXPECT_EQ(ToolTipWith(u""), u"Remote nickname");
  state.IsGreek = true;
  EXPECT_EQ(ToolTipWith(u"Αlice"), u"Απομακρυσμένο ψευδώνυμο. Διαβάζεται όπως το δικό σας.");
  EXPECT_EQ(ToolTipWith(u"Alice>"), u"Απομακρυσμένο ψευδώνυμο. Περιέχει γωνιακές αγκύλες.");
}

TEST_F(WhoIsWhoTest, TheMarginHasWordsForEveryAuthorInBothLanguages) {
  const auto& words = fake.window.rtbData.authorWords;
  SetAuthorWords(fake.window.rtbData, false);
  EXPECT_EQ(words.at(Author::User), u"You wrote this.");
  EXPECT_NE(words.at(Author::UserNotSent), words.at(Author::User));
  EXPECT_NE(words.at(Author::UserNotDelivered), words.at(Author::UserNotSent));
  EXPECT_EQ(words.at(Author::Peer), u"The other side wrote this.");
  EXPECT_EQ(words.at(Author::PeerReadingAlike),
            u"The other side wrote this. Its nickname reads like yours.");
  EXPECT_EQ(words.at(Author::PeerWithBrackets),
            u"The other side wrote this. Its nickname holds angle brackets.");
  EXPECT_EQ(words.at(Author::File), u"This was loaded from a file.");
  EXPECT_EQ(words.size(), 7u);
  SetAuthorWords(fake.window.rtbData, true);
  EXPECT_EQ(words.at(Author::User), u"Το γράψατε εσείς.");
  EXPECT_EQ(words.at(Author::Peer), u"Το έγραψε η άλλη πλευρά.");
  EXPECT_EQ(words.at(Author::File), u"Φορτώθηκε από αρχείο.");
  EXPECT_EQ(words.size(), 7u);
}

TEST_F(WhoIsWhoTest, NicknamesThatReadAlikeAreToldApartByTheirLetters) {
  EXPECT_EQ(TextWith(u"Bob"), u"");
  EXPECT_EQ(TextWith(u"Alice>I agree"), u"");
  EXPECT_EQ(TextWith(u"\u0391lice"),
            u"The two nicknames read alike. Yours: Alice. The other side's: \\u0391lice.");
  EXPECT_EQ(TextWith(u"A1ice"),
            u"The two nicknames read alike. Yours: Alice. The other side's: A1ice.");
  state.Nickname = u"Νίκος";
  EXPECT_EQ(TextWith(u"Nίκος"),
            u"The two nicknames read alike. Yours: \\u039Dίκος. The other side's: Nίκος.");
  state.IsGreek = true;
  EXPECT_EQ(TextWith(u"Nίκος"),
            u"Τα δύο ψευδώνυμα διαβάζονται το ίδιο. Το δικό σας: \\u039Dίκος. Της άλλης πλευράς: "
            u"Nίκος.");
}

TEST_F(WhoIsWhoTest, ThatBothHaveTheSameNicknameIsSaid) {
  EXPECT_EQ(TextWith(u"Alice"),
            u"Both sides have the nickname Alice. This log does not tell their lines apart.");
  state.IsGreek = true;
  EXPECT_EQ(TextWith(u"Alice"),
            u"Και οι δύο πλευρές έχουν το ψευδώνυμο Alice. Αυτή η καταγραφή δεν ξεχωρίζει τις "
            u"γραμμές τους.");
}

}  // namespace
}  // namespace verlume
