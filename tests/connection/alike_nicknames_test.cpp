// What is said where the nicknames of the two sides can be taken for each other.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

#include "support/side.h"

namespace verlume {
namespace {

class AlikeNicknamesTest : public testing::Test, protected fake::TwoSides {
 protected:
  AlikeNicknamesTest() { bob.RecordDialogues(); }

  void ConnectAs(std::u16string_view alicesNickname, std::u16string_view bobsNickname) {
    alice.state.Nickname = alicesNickname;
    bob.state.Nickname = bobsNickname;
    Connect();
  }
  // How often this line about the connection is in Bob's log.
  std::size_t Times(std::u16string_view stem, std::u16string_view text) const {
    const std::u16string log = bob.LogOf(stem);
    std::size_t times = 0;
    const std::u16string line = u"[2026-03-07_09:05:30]***** " + std::u16string(text) + u"\r\n";
    for (std::size_t at = log.find(line); at != log.npos; at = log.find(line, at + 1)) ++times;
    return times;
  }
  std::u16string ToolTip() const { return bob.fake.window.lblRemoteNickname.ToolTip(); }
};

constexpr std::u16string_view kAlike =
    u"The two nicknames read alike. Yours: Bob. The other side's: B\\u03BFb.";

TEST_F(AlikeNicknamesTest, TheHandshakeSaysWhoIsWho) {
  ConnectAs(u"Bοb", u"Bob");  // the other one has a Greek omicron
  EXPECT_EQ(Times(u"Bοb", kAlike), 1u);
  EXPECT_EQ(ToolTip(), u"Remote nickname. It reads like yours.");
  const std::u16string log = bob.LogOf(u"Bοb");
  EXPECT_LT(log.find(u"Active connection."), log.find(kAlike));
}

TEST_F(AlikeNicknamesTest, OtherwiseItSaysNothing) {
  ConnectAs(u"Alice>I agree", u"Bob");
  const std::u16string log = bob.LogOf(u"Alice_I agree");
  EXPECT_EQ(std::count(log.begin(), log.end(), u'\n'), 1);
  EXPECT_EQ(ToolTip(), u"Remote nickname. It holds angle brackets.");
}

TEST_F(AlikeNicknamesTest, ALaterNicknameIsToldOnce) {
  ConnectAs(u"Alice", u"Bob");
  EXPECT_EQ(ToolTip(), u"Remote nickname");
  for (int i = 0; i < 3; ++i) {
    alice.Nick(u"Bοb");
    network.RunUntilIdle();
  }
  EXPECT_EQ(Times(u"Alice", kAlike), 1u);
  EXPECT_EQ(ToolTip(), u"Remote nickname. It reads like yours.");
  alice.Nick(u"Alice");
  network.RunUntilIdle();
  EXPECT_EQ(ToolTip(), u"Remote nickname");
}

TEST_F(AlikeNicknamesTest, SoIsANewNicknameOfTheUsers) {
  ConnectAs(u"Alice", u"Bob");
  bob.Nick(u"ALICE");
  EXPECT_EQ(
      Times(u"Alice", u"The two nicknames read alike. Yours: ALICE. The other side's: Alice."), 1u);
  EXPECT_EQ(ToolTip(), u"Remote nickname. It reads like yours.");
}

TEST_F(AlikeNicknamesTest, AnActionLineIsMarkedAsThePeersToo) {
  ConnectAs(u"Alice", u"Bob");
  alice.wire.SendActionLine(u"{\\rtf1 Bob agrees\\par <Bob>yes}");
  network.RunUntilIdle();
  EXPECT_THAT(bob.fake.window.rtbData.authors, testing::ElementsAre(Author::Peer, Author::Peer));
}

}  // namespace
}  // namespace verlume
