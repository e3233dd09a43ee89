// Whole programs in conversation, while the disk of one of them fails: the failure is reported with
// the procedure's number, nothing that was typed or stored is lost, and the program goes on when
// the disk works again.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <utility>

#include "platform_qt/system/failing_disk.h"
#include "platform_qt/system/program_on_disk.h"
#include "support/program_copy.h"

namespace verlume::qt {
namespace {

class ProgramOnFailingDiskTest : public testing::TestWithParam<DiskFault> {
 protected:
  ProgramOnFailingDiskTest() { Connect(); }

  void Connect() {
    bob.Enter(u"/WAIT 4000");
    ann.Enter(u"/CALL bob 4000");
    bob.platform.dialogs.answers = {Answer::Yes};
    network.RunUntilIdle();
    ASSERT_TRUE(ann.program.State().IsConnected);
  }
  void Say(std::u16string_view line) {
    ann.Enter(line);
    network.RunUntilIdle();
  }
  // While the folder is not writable, the action is reported once, with this number.
  template <class Action>
  void ExpectReport(std::u16string_view procedure, const QString& folder, Action action) {
    ExpectReport(procedure, [&] {
      disk.Break(folder);
      action();
    });
  }
  // The same for an action that makes the disk fail itself.
  template <class Action>
  void ExpectReport(std::u16string_view procedure, Action action) {
    ann.dialogs.messages.clear();
    ann.dialogs.answers.push_back(Answer::No);
    action();
    disk.Mend();
    ASSERT_FALSE(ann.dialogs.messages.empty());
    const Message& report = ann.dialogs.messages.back();
    EXPECT_EQ(report.title, u"Verlume, " + std::u16string(procedure) + u".");
    const std::u16string number = DecimalText(static_cast<int>(NumberOf(GetParam())));
    EXPECT_TRUE(report.text.starts_with(u"Error condition " + number + u" "));
    EXPECT_TRUE(ann.dialogs.answers.empty());
    EXPECT_FALSE(ann.application.HasEnded());
  }

  // More than fits into the rest of a page of a full disk.
  const std::u16string more = std::u16string(5000, u'm');
  FailingDisk disk{GetParam()};
  fake::FakeNetwork network;
  fake::ProgramCopy bob{network, u"Bob"};
  ProgramOnDisk ann{network, disk.Path()};
};

TEST_P(ProgramOnFailingDiskTest, ALineThatIsNotLoggedIsSentAndShown) {
  Say(u"one");
  const std::string log = ann.Content(u"logs/Bob.txt");
  ASSERT_TRUE(log.ends_with("<Ann>one\r\n"));
  ExpectReport(u"240", "logs", [&] { Say(u"two" + more); });
  EXPECT_EQ(ann.window.rtbData.Text(), u"<Ann>one\n<Ann>two" + more);
  EXPECT_EQ(bob.Dialogue(), ann.window.rtbData.Text());
  EXPECT_EQ(ann.Content(u"logs/Bob.txt"), log) << "nothing of the line";
  Connect();
  Say(u"three");
  EXPECT_TRUE(ann.Content(u"logs/Bob.txt").starts_with(log));
  EXPECT_TRUE(ann.Content(u"logs/Bob.txt").ends_with("<Ann>three\r\n"));
}

TEST_P(ProgramOnFailingDiskTest, AnArrivingLineThatIsNotLoggedIsShown) {
  const std::string log = ann.Content(u"logs/Bob.txt");
  ann.window.rtbCommands.SetText(u"half a line");
  ExpectReport(u"240", "logs", [&] {
    bob.Enter(u"two" + more);
    network.RunUntilIdle();
  });
  EXPECT_EQ(ann.window.rtbData.Text(), u"<Bob>two" + more);
  EXPECT_EQ(ann.window.rtbCommands.Text(), u"half a line");
  EXPECT_EQ(ann.Content(u"logs/Bob.txt"), log);
}

TEST_P(ProgramOnFailingDiskTest, AConversationThatCannotBeLoggedEnds) {
  Say(u"/CLOSE");
  const std::string log = ann.Content(u"logs/Bob.txt");
  ExpectReport(u"240", "logs", [&] {
    // A full disk may still have room for some entries in the rest of a page.
    for (int call = 0; call < 100 && !ann.dialogs.answers.empty(); ++call) {
      bob.Enter(u"/WAIT 4000");
      bob.platform.dialogs.answers = {Answer::Yes};
      Say(u"/CALL bob 4000");
      if (!ann.dialogs.answers.empty()) Say(u"/CLOSE");
    }
  });
  EXPECT_FALSE(ann.program.State().IsConnected);
  EXPECT_FALSE(ann.program.State().LogOpen);
  EXPECT_TRUE(ann.Content(u"logs/Bob.txt").starts_with(log));
  Connect();
  EXPECT_TRUE(ann.Content(u"logs/Bob.txt").ends_with("Active connection.\r\n"));
}

TEST_P(ProgramOnFailingDiskTest, ASettingThatIsNotWrittenLeavesTheFile) {
  const std::string settings = ann.Content(u"Verlume.ini");
  ExpectReport(u"233", "", [&] { ann.window.mnuToolsDate.Click(); });
  EXPECT_EQ(ann.Content(u"Verlume.ini"), settings);
  EXPECT_EQ(ann.Content(u"Verlume.ini.bad"), "none");
  ann.window.mnuToolsTime.Click();
  EXPECT_NE(ann.Content(u"Verlume.ini").find("TimeStamp=True\r\n"), std::string::npos);
}

TEST_P(ProgramOnFailingDiskTest, ANicknameThatIsNotKeptIsNotTakenOn) {
  const std::string settings = ann.Content(u"Verlume.ini");
  ExpectReport(u"232", "", [&] { Say(u"/NICK Zoe"); });
  EXPECT_EQ(ann.program.State().Nickname, u"Ann");
  EXPECT_EQ(ann.Content(u"Verlume.ini"), settings);
  Say(u"/NICK Zoe");
  EXPECT_NE(ann.Content(u"Verlume.ini").find("Nickname=Zoe\r\n"), std::string::npos);
}

TEST_P(ProgramOnFailingDiskTest, ADialogueThatIsNotSavedLeavesTheOldFile) {
  QDir(disk.Path()).mkdir("saved");
  Say(u"one");
  ann.SaveDialogueAs(u"saved/a.txt");
  Say(u"two");
  ExpectReport(u"241", "saved", [&] { ann.SaveDialogueAs(u"saved/a.txt"); });
  EXPECT_EQ(ann.window.rtbData.Text(), u"<Ann>one\n<Ann>two");
  EXPECT_EQ(ann.Content(u"saved/a.txt"), "<Ann>one");
  EXPECT_EQ(QDir(disk.Path() + "/saved").entryList(QDir::Files | QDir::Hidden),
            QStringList{"a.txt"});
  ann.SaveDialogueAs(u"saved/a.txt");
  EXPECT_EQ(ann.Content(u"saved/a.txt"), "<Ann>one\n<Ann>two");
}

TEST_P(ProgramOnFailingDiskTest, AMacroThatIsNotSavedStaysInTheEditor) {
  ann.macros.window.whileModal = [&] {
    ann.dialogs.typed = {u"greet"};
    ann.macros.cmdAdd.Click();
    ann.macros.rtbMacroText.Type(u"Hello");
    ExpectReport(u"251", "macros", [&] { ann.macros.cmdSave.Click(); });
    EXPECT_EQ(ann.macros.rtbMacroText.Text(), u"Hello");
    EXPECT_EQ(ann.Content(u"macros/greet.rtf"), "none");
    ann.macros.cmdSave.Click();
    EXPECT_NE(ann.Content(u"macros/greet.rtf").find("Hello"), std::string::npos);
    ann.macros.cmdClose.Click();
  };
  ann.window.mnuToolsEditMacros.Click();
}

TEST_P(ProgramOnFailingDiskTest, AMacroThatIsNotSavedStaysTyped) {
  ann.window.rtbCommands.SetText(u"Hello");
  ann.dialogs.typed = {u"greet", u"greet"};
  ExpectReport(u"245", [&] {
    bool isBroken = false;
    ann.dialogs.whileOpen = [&] {
      if (!std::exchange(isBroken, true)) disk.Break("macros");
    };
    ann.window.mnuToolsSaveMacro.Click();
    ann.dialogs.whileOpen = nullptr;
  });
  EXPECT_EQ(ann.window.rtbCommands.Text(), u"Hello");
  EXPECT_EQ(ann.Content(u"macros/greet.rtf"), "none");
  ann.window.mnuToolsSaveMacro.Click();
  EXPECT_NE(ann.Content(u"macros/greet.rtf").find("Hello"), std::string::npos);
}

INSTANTIATE_TEST_SUITE_P(EveryFault, ProgramOnFailingDiskTest,
                         testing::Values(DiskFault::FolderRemoved, DiskFault::FileInItsPlace,
                                         DiskFault::NoPermission, DiskFault::DiskFull,
                                         DiskFault::NoMoreGrowing),
                         [](const auto& test) { return NameOf(test.param); });

}  // namespace
}  // namespace verlume::qt
