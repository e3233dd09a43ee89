// The user's own nickname in two whole programs: it is sent as it is, and shown as visible text.
#include <gtest/gtest.h>

#include <memory>

#include "richtext/rtf_reader.h"
#include "support/program_copy.h"

namespace verlume {
namespace {

using fake::FakeNetwork;
using fake::ProgramCopy;

class ProgramNicknamesTest : public testing::Test {
 protected:
  // Eve, with this nickname in her settings file, calls Bob, who talks in clear.
  void Start(std::u16string_view nickname) {
    eve = std::make_unique<ProgramCopy>(network, nickname);
    bob = std::make_unique<ProgramCopy>(network, u"Bob");
    bob->platform.window.mnuPrivateNever.Click();
    bob->Enter(u"/WAIT 4000");
    eve->Enter(u"/CALL bob 4000");
    bob->platform.dialogs.answers = {Answer::Yes};
    network.RunUntilIdle();
  }
  void Say(ProgramCopy& speaker, std::u16string_view line) {
    speaker.Enter(std::u16string(line));
    network.RunUntilIdle();
  }
  static std::u16string LogOf(const ProgramCopy& copy, std::u16string_view stem) {
    return copy.platform.files.ReadText(u"/logs/" + std::u16string(stem) + u".txt");
  }
  std::u16string LastSent() const {
    return richtext::ReadRtf(eve->platform.socket.sent.back()).text;
  }

  FakeNetwork network;
  std::unique_ptr<ProgramCopy> eve;
  std::unique_ptr<ProgramCopy> bob;
};

// U+202E cannot be sent: it arrives as a question mark.
TEST_F(ProgramNicknamesTest, OneOfTheSettingsFileIsSentAsItIsAndSeenByBoth) {
  Start(u"\u202Eeve\x07");
  EXPECT_EQ(eve->platform.window.lblLocalNickname.caption, u"\\u202Eeve\\x07");
  EXPECT_EQ(eve->platform.socket.sent.front(),
            eve->program.State().ProtocolMarker + u"C\u202Eeve\x07" + u'\0');
  EXPECT_EQ(bob->platform.window.lblRemoteNickname.caption, u"?eve\\x07");
  Say(*eve, u"hello");
  EXPECT_EQ(eve->Dialogue(), u"<\\u202Eeve\\x07>hello");
  EXPECT_EQ(bob->Dialogue(), u"<?eve\\x07>hello");
  EXPECT_TRUE(LogOf(*eve, u"Bob").ends_with(u"<\\u202Eeve\\x07>hello\r\n"));
  EXPECT_TRUE(LogOf(*bob, u"_eve_x07").ends_with(u"<?eve\\x07>hello\r\n"));
}

TEST_F(ProgramNicknamesTest, ATypedOneIsKeptAsItIsAndSeen) {
  Start(u"Eve");
  eve->platform.dialogs.answers = {Answer::No};  // to choosing one that arrives as it is
  Say(*eve, u"/NICK \u2067eve\u200F");
  EXPECT_EQ(eve->program.State().Nickname, u"\u2067eve\u200F");
  EXPECT_EQ(eve->platform.window.lblLocalNickname.caption, u"\\u2067eve\\u200F");
  EXPECT_NE(eve->Settings().find(u"Nickname=\u2067eve\u200F\r\n"), std::u16string::npos);
}

TEST_F(ProgramNicknamesTest, InALineItIsSeenToo) {
  Start(u"\u200Eeve\x07");
  Say(*eve, u"I am $l, you are $r");
  EXPECT_EQ(LastSent(), u"I am \\u200Eeve\\x07, you are Bob");
  EXPECT_EQ(bob->Dialogue(), u"<?eve\\x07>I am \\u200Eeve\\x07, you are Bob");
  Say(*bob, u"$r?");
  EXPECT_TRUE(eve->Dialogue().ends_with(u"\n<Bob>?eve\\x07?"));
  Say(*eve, u"/me waves");
  EXPECT_TRUE(bob->Dialogue().ends_with(u"\n \\u200Eeve\\x07 waves"));
}

TEST_F(ProgramNicknamesTest, MarkupAndFormatsInALineAreText) {
  Start(u"<b>{\\b}&%1$l");
  Say(*eve, u"$l");
  EXPECT_EQ(bob->Dialogue(), u"<<b>{\\b}&%1$l><b>{\\b}&%1$l");
}

TEST_F(ProgramNicknamesTest, OneThatLooksLikeAPathIsNoneWhereAFileNameIsProposed) {
  Start(u"../<b>x");
  bob->platform.dialogs.answers = {Answer::Yes};
  bob->platform.commonDialog.files = {std::nullopt};
  Say(*eve, u"hello");
  bob->platform.window.mnuFileLogSaveAs.Click();
  ASSERT_EQ(bob->platform.commonDialog.filesShown.size(), 1u);
  EXPECT_EQ(bob->platform.commonDialog.filesShown[0].fileName, u"..__b_x");
  EXPECT_EQ(bob->platform.commonDialog.filesShown[0].initialFolder, u"/logs/");
}

TEST_F(ProgramNicknamesTest, NoTitleTellsIt) {
  Start(u"Error");
  EXPECT_EQ(bob->platform.window.window.title, u"Verlume");
  bob->platform.dialogs.answers = {Answer::No};
  eve->platform.socket.SendData(eve->program.State().ProtocolMarker + u"NError", TextKind::Signal);
  network.RunUntilIdle();
  EXPECT_EQ(bob->platform.dialogs.messages.back().title, u"Verlume, 209.");
  EXPECT_EQ(bob->platform.window.window.title, u"Verlume");
}

TEST_F(ProgramNicknamesTest, TheBoxProposesItAsItIs) {
  Start(u"\u202Eeve");
  eve->platform.dialogs.typed = {u""};
  Say(*eve, u"/NICK");
  ASSERT_EQ(eve->platform.dialogs.asked.size(), 1u);
  EXPECT_EQ(eve->platform.dialogs.asked[0].defaultText, u"\u202Eeve");
}

}  // namespace
}  // namespace verlume
