// What arrives is shown and logged as it is, whatever it looks like.
#include <gtest/gtest.h>

#include "support/expect_arriving_texts.h"
#include "support/program_copy.h"

namespace verlume {
namespace {

constexpr std::u16string_view kLog = u"/logs/Bob.txt";
constexpr std::u16string_view kBefore = u"[2026-03-07_09:05:30]<Bob>";

class ArrivingTextsTest : public testing::Test {
 protected:
  ArrivingTextsTest() {
    ann.Enter(u"/WAIT 4000");
    ann.platform.dialogs.answers = {Answer::Yes};
    peer.SetRemotePort(4000);
    peer.Connect();
    network.RunUntilIdle();
    Send(BuildProtocolMarker() + u"CBob" + u'\0');
    ann.platform.window.rtbCommands.Type(u"half a line");
    before = ann.platform.files.files;
    sentBefore = ann.platform.socket.sent.size();
    boxesBefore = ann.platform.dialogs.messages.size();
  }

  void Send(std::u16string_view text) {
    peer.SendData(text, TextKind::Line);
    network.RunUntilIdle();
  }

  // Sends one message, which says `text`; expects that text in the pane and in the log.
  void ExpectShown(std::u16string_view message, std::u16string_view text) {
    const std::size_t logged = ann.platform.files.ReadText(kLog).size();
    ann.platform.window.rtbData.SetText(u"");
    Send(message);
    EXPECT_EQ(Printable(ann.Dialogue()), Printable(u"<Bob>" + ShownInPane(text)));
    const std::u16string log = ann.platform.files.ReadText(kLog).substr(logged);
    const std::u16string entry = std::u16string(kBefore) + ShownInLog(text) + u"\r\n";
    EXPECT_EQ(Printable(WithDirectionMarksEscaped(log)),
              Printable(WithDirectionMarksEscaped(entry)));
  }

  // Nothing but the log has changed.
  void ExpectNothingElse() {
    ann.platform.files.files.erase(std::u16string(kLog));
    before.erase(std::u16string(kLog));
    EXPECT_EQ(ann.platform.files.files, before);
    EXPECT_EQ(ann.platform.socket.sent.size(), sentBefore);
    EXPECT_EQ(ann.platform.dialogs.messages.size(), boxesBefore);
    EXPECT_EQ(ann.platform.window.rtbCommands.Text(), u"half a line");
    EXPECT_EQ(ann.program.State().RemoteNickname, u"Bob");
    EXPECT_TRUE(ann.program.State().IsConnected);
  }

  fake::FakeNetwork network;
  fake::ProgramCopy ann{network, u"Ann"};
  fake::FakeSocket peer{network};
  decltype(fake::FakeFileSystem::files) before;
  std::size_t sentBefore = 0;
  std::size_t boxesBefore = 0;
};

TEST_F(ArrivingTextsTest, AreNotInterpreted) {
  ExpectOfArrivingTexts([this](auto message, auto text) { ExpectShown(message, text); });
  ExpectNothingElse();
}

}  // namespace
}  // namespace verlume
