// Two whole programs on the in-memory platform: calls and typed lines.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "richtext/rtf_reader.h"
#include "support/program_copy.h"
#include "support/text_matchers.h"

namespace verlume {
namespace {

using fake::FakeNetwork;
using fake::FakePlatform;
using fake::ProgramCopy;

class ProgramTest : public testing::Test {
 protected:
  void Connect() {
    bob.Enter(u"/WAIT 4000");
    ann.Enter(u"/call bob 4000");
    bob.platform.dialogs.answers = {Answer::Yes};
    network.RunUntilIdle();
  }

  FakeNetwork network;
  ProgramCopy ann{network, u"Άννα"};
  ProgramCopy bob{network, u"Bob"};
};

TEST_F(ProgramTest, CallIsAskedAboutAndConnectsBothSides) {
  Connect();

  ASSERT_EQ(bob.platform.dialogs.messages.size(), 1u);
  EXPECT_EQ(bob.platform.dialogs.messages[0].title, u"Incoming call");
  for (ProgramCopy* side : {&ann, &bob}) {
    EXPECT_TRUE(side->program.State().IsConnected);
    EXPECT_EQ(side->Lamp(), 65280);
    EXPECT_THAT(side->Status(), EndsIn(u"Active connection."));
    EXPECT_EQ(side->Dialogue(), u"");
    EXPECT_EQ(side->platform.window.rtbCommands.Text(), u"");
  }
  EXPECT_EQ(ann.platform.window.lblRemoteNickname.caption, u"Bob");
  EXPECT_EQ(bob.platform.window.lblRemoteNickname.caption, u"Άννα");
}

TEST_F(ProgramTest, TypedLineStandsInBothPanes) {
  Connect();
  ann.Enter(u"Καλημέρα, $r, εδώ $l");
  network.RunUntilIdle();
  bob.Enter(u"hello");
  network.RunUntilIdle();

  EXPECT_EQ(ann.Dialogue(), u"<Άννα>Καλημέρα, Bob, εδώ Άννα\n<Bob>hello");
  EXPECT_EQ(bob.Dialogue(), ann.Dialogue());
}

TEST_F(ProgramTest, CharactersOutsideTheCodePageSurviveTheTrip) {
  Connect();
  ann.Enter(u"привет 你好 😀 שלום");
  network.RunUntilIdle();

  EXPECT_EQ(bob.Dialogue(), u"<Άννα>привет 你好 😀 שלום");
}

TEST_F(ProgramTest, LineArrivesInTheStyleItWasTypedIn) {
  Connect();
  ann.Enter(u"/BOLD");
  ann.Enter(u"/size 9,5");
  ann.Enter(u"loud");
  network.RunUntilIdle();

  auto& pane = bob.platform.window.rtbData;
  pane.Select(pane.TextLength() - 4, 4);
  const SelectionFormat format = pane.SelFormat();
  EXPECT_EQ(format.bold, true);
  EXPECT_EQ(format.fontSize, 9.5);
  pane.Select(0, 6);
  EXPECT_EQ(pane.SelFormat().bold, false);
  EXPECT_EQ(pane.SelFormat().fontSize, 8);
}

TEST_F(ProgramTest, ArrivalsWaitWhileTheDialoguePaneTakesIn) {
  Connect();
  auto& pane = bob.platform.window.rtbData;
  pane.onInsertionStarted();
  ann.Enter(u"hello");
  network.RunUntilIdle();
  EXPECT_EQ(bob.Dialogue(), u"");
  pane.onInsertionFinished();
  network.RunUntilIdle();
  EXPECT_EQ(bob.Dialogue(), u"<Άννα>hello");
}

TEST_F(ProgramTest, ActionLineNamesItsSenderItself) {
  Connect();
  ann.Enter(u"/εγώ χαιρετώ");
  network.RunUntilIdle();
  bob.Enter(u"/me waves");
  network.RunUntilIdle();

  EXPECT_EQ(ann.Dialogue(), u" Άννα χαιρετώ\n Bob waves");
  EXPECT_EQ(bob.Dialogue(), ann.Dialogue());
}

TEST_F(ProgramTest, LogHoldsTheWholeConversation) {
  Connect();
  ann.Enter(u"hello");
  network.RunUntilIdle();
  bob.Enter(u"/CLOSE");
  network.RunUntilIdle();

  const std::u16string log = ann.platform.files.ReadText(u"/logs/Bob.txt");
  EXPECT_THAT(log, BeginsWith(u"[2026-03-07_09:05:30]***** Remote computer IP address"));
  EXPECT_THAT(log, Holds(u"\r\n[2026-03-07_09:05:30]<Άννα>hello\r\n"));
  EXPECT_THAT(log, EndsIn(u". Disconnected.\r\n"));
}

TEST_F(ProgramTest, RejectedCallLeavesBothSidesIdle) {
  bob.Enter(u"/WAIT 4000");
  ann.Enter(u"/call bob 4000");
  bob.platform.dialogs.answers = {Answer::No};
  network.RunUntilIdle();

  EXPECT_THAT(bob.Status(), EndsIn(u"You rejected the incoming call."));
  EXPECT_THAT(ann.Status(), EndsIn(u"A connection could NOT be established."));
  EXPECT_EQ(ann.Lamp(), 255);
  EXPECT_EQ(bob.Lamp(), 255);
}

TEST_F(ProgramTest, ClosingTheWindowWhileConnectedAsksAndNoKeepsItOpen) {
  Connect();
  ann.platform.dialogs.answers = {Answer::No};
  ann.platform.window.window.Close(UnloadMode::User);

  EXPECT_FALSE(ann.platform.window.window.unloaded);
  EXPECT_TRUE(ann.program.State().IsConnected);
  EXPECT_EQ(ann.platform.dialogs.messages.back().title, u"Command '/EXIT'");
}

TEST_F(ProgramTest, ConfirmedExitLogsTheEndAndTellsThePeer) {
  Connect();
  ann.platform.dialogs.answers = {Answer::Yes};
  ann.Enter(u"/EXIT");
  network.RunUntilIdle();

  EXPECT_TRUE(ann.platform.application.ended);
  EXPECT_THAT(ann.platform.files.ReadText(u"/logs/Bob.txt"), EndsIn(u"Disconnected.\r\n"));
  EXPECT_THAT(bob.Status(), EndsIn(u"Disconnected."));
}

TEST_F(ProgramTest, ExitWhileIdleAsksNothing) {
  ann.platform.window.mnuFileExit.Click();

  EXPECT_TRUE(ann.platform.application.ended);
  EXPECT_TRUE(ann.platform.dialogs.messages.empty());
}

TEST_F(ProgramTest, LanguageSwitchReachesTheNextBox) {
  ann.Enter(u"/greek");
  ann.Enter(u"/cancel");

  ASSERT_EQ(ann.platform.dialogs.messages.size(), 1u);
  EXPECT_EQ(ann.platform.dialogs.messages[0].title, u"Εντολή «/CANCEL» ή «/ΑΚΎΡΩΣΗ»");
  EXPECT_EQ(ann.platform.window.mnuFile.caption, u"Αρχείο");
}

TEST_F(ProgramTest, RightClickShowsContextHelpAndLeftClickDoesNot) {
  ann.platform.window.lblStatus.onMouseUp(MouseButton::Left);
  EXPECT_EQ(ann.platform.window.lblStatus.timesHelpShown, 0);
  ann.platform.window.lblStatus.onMouseUp(MouseButton::Right);
  EXPECT_EQ(ann.platform.window.lblStatus.timesHelpShown, 1);
}

TEST_F(ProgramTest, DetailedHelpOpensFromTheMenuAndByCommand) {
  ann.platform.window.mnuHelpDetailed.Click();
  EXPECT_EQ(ann.platform.help.timesShown, 1);
  ann.Enter(u"/helpdetailed");
  EXPECT_EQ(ann.platform.help.timesShown, 2);
}

TEST_F(ProgramTest, LinesThatArriveJoinedAreShownWhole) {
  Connect();
  network.joinArrivals = true;
  ann.Enter(u"one");
  ann.Enter(u"two");
  network.RunUntilIdle();

  EXPECT_EQ(bob.Dialogue(), u"<Άννα>onetwo");
  EXPECT_THAT(bob.platform.files.ReadText(u"/logs/Άννα.txt"), Holds(u"<Άννα>onetwo\r\n"));
}

TEST_F(ProgramTest, AnErrorEndsTheChatItsLogAndItsStatusLine) {
  Connect();
  bob.platform.files.writesFail = FailureNumber::DiskFull;
  bob.platform.dialogs.answers = {Answer::No};
  bob.Enter(u"hello");
  bob.Enter(u"hello again");

  ASSERT_EQ(bob.platform.dialogs.messages.size(), 2u);  // the call, and the error once
  EXPECT_EQ(bob.platform.dialogs.messages[1].title, u"Verlume, 240.");
  EXPECT_TRUE(bob.platform.dialogs.messages[1].unexpected);
  EXPECT_FALSE(bob.program.State().LogOpen);
  EXPECT_EQ(bob.Status(), u"");
  EXPECT_EQ(bob.Lamp(), 255);
  EXPECT_EQ(bob.Dialogue(), u"<Bob>hello\n<Bob>hello again");
}

TEST(ProgramStartTest, ProgramEndedDuringStartUpShowsNoWindow) {
  FakeNetwork network;
  FakePlatform platform(network);
  platform.files.ReplaceText(u"/verlume/Verlume.ini", u"[General]\r\nDateStamp=maybe\r\n");
  Program program(platform.platform);
  platform.dialogs.answers = {Answer::Yes};
  program.Start();

  EXPECT_TRUE(platform.application.ended);
  EXPECT_FALSE(platform.window.window.shown);
  EXPECT_FALSE(platform.window.tmrTimer.running);
}

TEST(ProgramStartTest, SettingThatDoesNotConvertIsReportedAndTheProgramGoesOn) {
  FakeNetwork network;
  FakePlatform platform(network);
  platform.files.MakeFolder(u"/macros");
  platform.files.ReplaceText(u"/verlume/Verlume.ini", u"[General]\r\nDateStamp=maybe\r\n");
  Program program(platform.platform);
  platform.dialogs.answers = {Answer::No};
  program.Start();

  ASSERT_EQ(platform.dialogs.messages.size(), 2u);
  EXPECT_EQ(platform.dialogs.messages[0].title, u"Verlume, 203.");
  EXPECT_EQ(platform.dialogs.messages[1].title, u"Settings file");
  EXPECT_TRUE(platform.window.window.shown);
  platform.window.rtbCommands.Type(u"still here\r");
  EXPECT_THAT(platform.window.rtbData.Text(), Holds(u"still here"));
}

TEST_F(ProgramTest, LampIsReadInWordsOfTheLanguageInForce) {
  const std::u16string& bobs = bob.platform.window.picShape.accessibleName;
  const std::u16string& anns = ann.platform.window.picShape.accessibleName;
  EXPECT_EQ(bobs, u"Connection state: idle");
  bob.Enter(u"/WAIT 4000");
  EXPECT_EQ(bobs, u"Connection state: waiting");
  bob.Enter(u"/GREEK");
  EXPECT_EQ(bobs, u"Κατάσταση συνδέσεως: αναμονή");
  EXPECT_EQ(bob.Lamp(), 65535);
  ann.Enter(u"/call bob 4000");
  EXPECT_EQ(anns, u"Connection state: calling");
  bob.platform.dialogs.answers = {Answer::Yes};
  network.RunUntilIdle();
  EXPECT_EQ(anns, u"Connection state: connected");
  EXPECT_EQ(bobs, u"Κατάσταση συνδέσεως: σύνδεση");
  ann.Enter(u"/CLOSE");
  network.RunUntilIdle();
  EXPECT_EQ(anns, u"Connection state: idle");
  EXPECT_EQ(bobs, u"Κατάσταση συνδέσεως: αδράνεια");
}

TEST_F(ProgramTest, AboutBoxOpensByMenuCommandAndCopyright) {
  fake::FakeAboutWindow& about = ann.platform.about;
  about.window.whileModal = [&] { about.cmdOK.Click(); };
  int shown = 0;
  const auto expectOneMore = [&](const char* by) {
    EXPECT_EQ(about.window.timesShownModal, ++shown) << by;
  };
  ann.platform.window.mnuHelpAbout.Click();
  expectOneMore("menu");
  ann.Enter(u"/HELPABOUT");
  expectOneMore("command");
  ann.Enter(u"/βοήθειασχετικά");
  expectOneMore("Greek command");
  ann.platform.window.lblCopyright.onMouseDown(MouseButton::Left);
  expectOneMore("label");
  ann.platform.window.picCopyright.onMouseDown(MouseButton::Other);
  expectOneMore("picture");
  ann.platform.window.picCopyright.onMouseDown(MouseButton::Right);
  EXPECT_EQ(about.window.timesShownModal, shown);
}

TEST_F(ProgramTest, ConversationGoesOnUnderTheAboutBox) {
  Connect();
  ann.platform.about.window.whileModal = [this] {
    bob.Enter(u"hello");
    network.RunUntilIdle();
    EXPECT_EQ(ann.Dialogue(), u"<Bob>hello");
  };
  ann.Enter(u"/HELPABOUT");
}

TEST_F(ProgramTest, SystemInfoButtonTellsThatThereIsNone) {
  ann.platform.about.cmdSysInfo.Click();
  ASSERT_EQ(ann.platform.dialogs.messages.size(), 1u);
  EXPECT_EQ(ann.platform.dialogs.messages[0].title, u"System information");
}

TEST_F(ProgramTest, ElementsOfTheAboutBoxShowTheirContextHelp) {
  fake::FakeAboutWindow& about = ann.platform.about;
  const auto check = [](auto&... controls) {
    for (Control* control : std::initializer_list<Control*>{&controls...}) {
      ASSERT_TRUE(control->onMouseUp);
      control->onMouseUp(MouseButton::Left);
      control->onMouseUp(MouseButton::Right);
    }
    for (const int times : {controls.timesHelpShown...}) EXPECT_EQ(times, 1);
  };
  check(about.lblTitle, about.lblVersion, about.lblDescription, about.lblDisclaimer, about.picIcon,
        about.cmdOK, about.cmdSysInfo);
  check(ann.platform.people.lstPeople, ann.platform.verify.lblVerifyDigits);
}

TEST_F(ProgramTest, FindBarIsBoundToTheDialogue) {
  ann.Enter(u"Καλημέρα");
  ann.Enter(u"καλημερα κι από μένα");
  fake::FakeMainWindow& window = ann.platform.window;
  window.mnuToolsFind.Click();
  EXPECT_TRUE(window.fraFind.visible);
  window.txtFind.Type(u"ΚΑΛΗΜΕΡΑ");
  EXPECT_EQ(window.lblFindResult.caption, u"1 of 2");
  window.cmdFindNext.Click();
  EXPECT_EQ(window.lblFindResult.caption, u"2 of 2");
  window.cmdFindPrevious.Click();
  EXPECT_EQ(window.lblFindResult.caption, u"1 of 2");
  window.cmdFindClose.Click();
  EXPECT_FALSE(window.fraFind.visible);
}

}  // namespace
}  // namespace verlume
