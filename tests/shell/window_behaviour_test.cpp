#include "shell/window_behaviour.h"

#include "shell/shell_fixture.h"

namespace verlume {
namespace {

class WindowBehaviourTest : public ShellTest {
 protected:
  std::u16string Stored() { return settings.ReadSetting(u"General", u"AlwaysOnTop", u"NULL", 20); }

  WindowBehaviour behaviour{state, platform, errors, settings};
};

TEST_F(WindowBehaviourTest, TheEntryPutsTheWindowOnTop) {
  behaviour.mnuToolsAlwaysOnTop_Click();
  EXPECT_TRUE(state.AlwaysOnTop);
  EXPECT_TRUE(window.window.topMost);
  EXPECT_TRUE(window.mnuToolsAlwaysOnTop.checked);
  EXPECT_EQ(Stored(), u"True");
}

TEST_F(WindowBehaviourTest, TogglingTwiceReturnsToTheNormalBand) {
  behaviour.mnuToolsAlwaysOnTop_Click();
  behaviour.mnuToolsAlwaysOnTop_Click();
  EXPECT_FALSE(state.AlwaysOnTop);
  EXPECT_FALSE(window.window.topMost);
  EXPECT_FALSE(window.mnuToolsAlwaysOnTop.checked);
  EXPECT_EQ(Stored(), u"False");
}

TEST_F(WindowBehaviourTest, TheChoiceGivesTheFocusBackToTheCommandPane) {
  behaviour.mnuToolsAlwaysOnTop_Click();
  EXPECT_EQ(window.rtbCommands.timesFocused, 1);
}

TEST_F(WindowBehaviourTest, AChoiceThatCannotBeKeptIsReported) {
  fake.files.writesFail = FailureNumber::PermissionDenied;
  fake.dialogs.answers = {Answer::No};
  behaviour.mnuToolsAlwaysOnTop_Click();
  EXPECT_EQ(Titles(), std::vector<std::u16string>{u"Verlume, 243."});
}

TEST_F(WindowBehaviourTest, AReleaseOfAnyOtherButtonThanTheLeftShowsContextHelp) {
  BindContextHelp(window.frmMain);
  BindContextHelp(fake.people.frmPeople);
  BindContextHelp(fake.verify.frmVerify);
  BindContextHelp(fake.reach.frmReach);
  const auto check = [](auto&... controls) {
    for (Control* control : std::initializer_list<Control*>{&controls...}) {
      ASSERT_TRUE(control->onMouseUp);
      control->onMouseUp(MouseButton::Left);
    }
    EXPECT_EQ((controls.timesHelpShown + ...), 0);
    for (Control* control : std::initializer_list<Control*>{&controls...}) {
      control->onMouseUp(MouseButton::Right);
      control->onMouseUp(MouseButton::Other);
    }
    for (const int times : {controls.timesHelpShown...}) EXPECT_EQ(times, 2);
  };
  check(window.lblCurrentDateTime, window.lblChatStartDateTime, window.lblChatDuration,
        window.lblLocalIP, window.lblLocalPort, window.lblLocalNickname, window.lblRemoteIP,
        window.lblRemotePort, window.lblRemoteNickname, window.lblBytesSent,
        window.lblBytesReceived, window.lblCurrentDateTimeCaption,
        window.lblChatStartDateTimeCaption, window.lblChatDurationCaption,
        window.lblLocalPortCaption, window.lblLocalNicknameCaption, window.lblRemotePortCaption,
        window.lblRemoteNicknameCaption, window.lblBytesSentCaption, window.lblBytesReceivedCaption,
        window.lblStatus, window.lblWaiting, window.picShape, window.chkBold, window.chkItalics,
        window.chkUnderline, window.lblColor, window.lblCopyright, window.picCopyright,
        window.cmdFindPrevious, window.cmdFindNext, window.lblFindResult, window.cmdFindClose,
        window.lstCompletions, window.lblLock);
  fake::FakePeopleWindow& people = fake.people;
  check(people.lblPeopleNone, people.lstPeople, people.lblPeopleNameCaption,
        people.chkPeopleVerified, people.lblPeopleKeyCaption, people.lblPeopleKey,
        people.cmdPeopleForget, people.cmdPeopleClose);
  fake::FakeVerifyWindow& verify = fake.verify;
  check(verify.lblVerifyWho, verify.lblVerifyDigits, verify.picVerifyCode, verify.lblVerifyMeaning,
        verify.cmdVerifyCopy, verify.cmdVerifyMatch, verify.cmdVerifyClose);
  fake::FakeReachWindow& reach = fake.reach;
  check(reach.lstReachAddresses, reach.lblReachRouterCaption, reach.lblReachRouter,
        reach.lblReachFirewallCaption, reach.lblReachFirewall, reach.lblReachAdviceCaption,
        reach.lblReachAdvice, reach.lblReachAddressCaption, reach.cmdReachCopyAddress,
        reach.cmdReachCopyInvitation, reach.cmdReachAgain, reach.cmdReachClose);
}

}  // namespace
}  // namespace verlume
