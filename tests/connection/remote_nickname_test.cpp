// A peer's nickname is shown as plain text with all its characters visible, wherever it appears.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/side.h"

namespace verlume {
namespace {

using namespace std::literals;

// Bob is connected to Alice, whose nickname each test chooses.
class RemoteNicknameTest : public testing::Test, protected fake::TwoSides {
 protected:
  RemoteNicknameTest() {
    bob.RecordDialogues();
    Connect();
  }

  // Alice sends `nickname` in a message of this kind, and says hello. A handshake is the first one
  // of a conversation.
  void Send(char16_t kind, std::u16string_view nickname) {
    if (kind != u'N') EnterState(bob.state, ConnectionState::Waiting);
    bob.fake.window.rtbData.SetText(u"");
    alice.fake.socket.SendData(alice.state.ProtocolMarker + kind + std::u16string(nickname) + u'\0',
                               TextKind::Signal);
    network.RunUntilIdle();
    alice.wire.SendChatLine(u"{\\rtf1\\ansi hello}");
    network.RunUntilIdle();
  }
  // Bob sees `shown`, by whichever kind of message the nickname arrives.
  void ExpectShown(std::u16string_view nickname, std::u16string_view shown,
                   std::u16string_view logName) {
    for (const char16_t kind : {u'S', u'C', u'N'}) {
      Send(kind, nickname);
      EXPECT_EQ(bob.fake.window.lblRemoteNickname.caption, shown);
      EXPECT_EQ(bob.DialoguePane(), u"<" + std::u16string(shown) + u">hello");
      EXPECT_TRUE(bob.LogOf(logName).ends_with(u"]<" + std::u16string(shown) + u">hello\r\n"));
      EXPECT_THAT(bob.fake.dialogs.messages, testing::SizeIs(1)) << "the call alone";
    }
  }
};

TEST_F(RemoteNicknameTest, MarkupIsText) {
  ExpectShown(u"<b>R&D</b><img src=x>", u"<b>R&D</b><img src=x>", u"_b_R&D__b__img src=x_");
  ExpectShown(u"{\\b x}\\par", u"{\\b x}\\par", u"{_b x}_par");
}

TEST_F(RemoteNicknameTest, AFormatIsText) {
  ExpectShown(u"%1 %2 %s %n $l $r", u"%1 %2 %s %n $l $r", u"%1 %2 %s %n $l $r");
}

TEST_F(RemoteNicknameTest, ControlCharactersAreSeen) {
  ExpectShown(u"B\x07o\x1B[31mb\x7F\u0081", u"B\\x07o\\x1B[31mb\\x7F\\x81",
              u"B_x07o_x1B[31mb_x7F_x81");
  ExpectShown(u"B\r\nob", u"B\\x0D\\x0Aob", u"B_x0D_x0Aob");
}

TEST_F(RemoteNicknameTest, BidirectionalControlsDoNotCrossTheWire) {
  ExpectShown(u"\u202Eecila", u"?ecila", u"_ecila");
  ExpectShown(u"\u200EAl\u200F", u"?Al?", u"_Al_");
}

TEST_F(RemoteNicknameTest, AnOverlongOneIsCut) {
  const std::u16string shown(32, u'b');
  ExpectShown(std::u16string(5000, u'b'), shown, shown);
}

// Of all characters that the wire can carry, the euro sign has the most bytes in UTF-8.
TEST_F(RemoteNicknameTest, NoneMakesALongFileName) {
  for (const char16_t kind : {u'S', u'C'}) Send(kind, std::u16string(5000, u'€'));
  ASSERT_NE(bob.LogOf(std::u16string(32, u'€')), u"");
  for (const auto& [path, content] : bob.fake.files.files) {
    std::size_t bytes = 0;  // in UTF-8
    for (const char16_t c : path.substr(path.rfind(u'/') + 1)) {
      bytes += c < 0x80 ? 1u : c < 0x800 ? 2u : 3u;
    }
    EXPECT_LT(bytes, 200u);
  }
}

TEST_F(RemoteNicknameTest, AnEmptyOneIsNoFileName) {
  ExpectShown(u"", u"", u"_");
}

TEST_F(RemoteNicknameTest, NoneLeavesTheLogFolder) {
  for (const std::u16string_view nickname :
       {u".."sv, u"."sv, u"../x"sv, u"/etc/x"sv, u"..\\x"sv, u"a/../../x"sv, u"C:x"sv, u".x"sv,
        u"nul"sv, u"x\n../y"sv}) {
    Send(u'C', nickname);
  }
  EXPECT_THAT(bob.fake.files.files, testing::SizeIs(testing::Ge(6)));
  for (const auto& [path, bytes] : bob.fake.files.files) {
    const std::u16string_view name = std::u16string_view(path).substr(path.rfind(u'/') + 1);
    EXPECT_EQ(path.substr(0, path.rfind(u'/')), u"/logs");
    EXPECT_TRUE(name.ends_with(u".txt"));
    EXPECT_EQ(name.find_first_of(u"\n\\:"), name.npos);
  }
  EXPECT_THAT(bob.fake.dialogs.messages, testing::SizeIs(1)) << "the call alone";
}

}  // namespace
}  // namespace verlume
