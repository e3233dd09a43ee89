// What arrives is shown in a real pane and logged on a real disk as it is, whatever it looks like.
#include <gtest/gtest.h>

#include <QTemporaryDir>

#include "platform_qt/system/program_on_disk.h"
#include "platform_qt/text/rich_text_box.h"
#include "platform_qt/world.h"
#include "support/expect_arriving_texts.h"

namespace verlume::qt {
namespace {

struct WindowWithRealPane : fake::FakeMainWindow {
  explicit WindowWithRealPane(fake::FakeFileSystem& files)
      : FakeMainWindow(files), rtbData(&parent, files, Lines::Many) {
    rtbData.SetLocked(true);
  }

  QWidget parent;
  QtRichTextBox rtbData;
  MainWindow frmMain = MainWindowOf(*this);
};

class ArrivingTextsOnScreenTest : public testing::Test {
 protected:
  ArrivingTextsOnScreenTest() {
    ann.Enter(u"/WAIT 4000");
    ann.dialogs.answers = {Answer::Yes};
    peer.SetRemotePort(4000);
    peer.Connect();
    network.RunUntilIdle();
    peer.SendData(BuildProtocolMarker() + u"CBob" + u'\0', TextKind::Line);
    network.RunUntilIdle();
  }

  std::u16string Log() const { return ann.disk.ReadText(ann.Path(u"logs/Bob.txt")); }
  bool HasArrived(std::size_t logged) {
    return WaitFor([&] {
      network.RunUntilIdle();
      return Log().size() > logged;
    });
  }

  // Sends one message, which says `text`; expects that text in the pane and in the log.
  void ExpectShown(std::u16string_view message, std::u16string_view text) {
    const std::size_t logged = Log().size();
    ann.window.rtbData.SetText(u"");
    peer.SendData(message, TextKind::Line);
    ASSERT_TRUE(HasArrived(logged));
    EXPECT_EQ(Printable(ann.window.rtbData.Text()), Printable(u"<Bob>" + ShownInPane(text)));
    const std::u16string entry = u"[2026-03-07_09:05:30]<Bob>" + ShownInLog(text) + u"\r\n";
    EXPECT_EQ(Printable(WithDirectionMarksEscaped(Log().substr(logged))),
              Printable(WithDirectionMarksEscaped(entry)));
  }

  QTemporaryDir folder;
  fake::FakeNetwork network;
  BasicProgramOnDisk<WindowWithRealPane> ann{network, folder.path()};
  fake::FakeSocket peer{network};
};

TEST_F(ArrivingTextsOnScreenTest, AreNotInterpreted) {
  ExpectOfArrivingTexts([this](auto message, auto text) { ExpectShown(message, text); });
}

}  // namespace
}  // namespace verlume::qt
