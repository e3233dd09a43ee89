#include "shell/status_panel.h"

#include "platform/run_time_failure.h"
#include "shell/shell_fixture.h"

namespace verlume {
namespace {

class StatusPanelTest : public ShellTest {
 protected:
  // `fake` calls the other platform of its network, which accepts.
  void Connect() {
    peer.socket.onConnectionRequest = [this](std::int64_t requestId) {
      peer.socket.Close();
      peer.socket.Accept(requestId);
    };
    peer.socket.SetLocalPort(5000);
    peer.socket.Listen();
    fake.socket.SetRemotePort(5000);
    fake.socket.Connect();
    network.RunUntilIdle();
    ASSERT_EQ(fake.socket.State(), SocketState::Connected);
  }

  fake::FakePlatform peer{network};
  StatusPanel panel{platform, errors};
};

class CommaLocale : public fake::FakeLocale {
 public:
  explicit CommaLocale(std::u16string_view text) : separator(text) {}
  std::u16string GroupSeparator() const override { return separator; }
  std::u16string separator;
};

struct LampCase {
  bool AppState::*flag;  // the flag that is set
  Color color;
  std::u16string_view english;
  std::u16string_view greek;
};

TEST_F(StatusPanelTest, LampShowsTheConnectionsStateInColourAndInWords) {
  const LampCase cases[] = {
      {nullptr, 255, u"Connection state: idle", u"Κατάσταση συνδέσεως: αδράνεια"},
      {&AppState::IsWaiting, 65535, u"Connection state: waiting", u"Κατάσταση συνδέσεως: αναμονή"},
      {&AppState::IsCalling, 65535, u"Connection state: calling", u"Κατάσταση συνδέσεως: κλήση"},
      {&AppState::IsConnected, 65280, u"Connection state: connected",
       u"Κατάσταση συνδέσεως: σύνδεση"},
  };
  for (const LampCase& one : cases) {
    state = AppState();
    if (one.flag) state.*one.flag = true;
    ShowLamp(state, window.frmMain);
    EXPECT_EQ(window.shpStatus.fill, one.color);
    EXPECT_EQ(window.shpStatus.border, one.color);
    EXPECT_EQ(window.picShape.accessibleName, one.english);
    state.IsGreek = true;
    ShowLamp(state, window.frmMain);
    EXPECT_EQ(window.picShape.accessibleName, one.greek);
  }
}

TEST_F(StatusPanelTest, ATickShowsTheTimeInTheSystemsLongForms) {
  panel.tmrTimer_Timer();
  EXPECT_EQ(window.lblCurrentDateTime.caption, u"7 of month 3 2026 - 9 h 5 m 30 s");
}

TEST_F(StatusPanelTest, ATickLeavesTheDurationWhileNotConnected) {
  window.lblChatDuration.caption = u"0:01:00";
  window.lblChatDuration.tag = u"60";
  panel.tmrTimer_Timer();
  EXPECT_EQ(window.lblChatDuration.caption, u"0:01:00");
  EXPECT_EQ(window.lblChatDuration.tag, u"60");
}

TEST_F(StatusPanelTest, AnEmptyDurationTagCountsAsZero) {
  Connect();
  panel.tmrTimer_Timer();
  EXPECT_EQ(window.lblChatDuration.caption, u"0:00:01");
  EXPECT_EQ(window.lblChatDuration.tag, u"1");
}

TEST_F(StatusPanelTest, TheDurationCountsTicks) {
  Connect();
  panel.StartChat();
  for (int tick = 0; tick < 3599; ++tick) panel.tmrTimer_Timer();
  EXPECT_EQ(window.lblChatDuration.caption, u"0:59:59");
  panel.tmrTimer_Timer();
  EXPECT_EQ(window.lblChatDuration.caption, u"1:00:00");
}

TEST_F(StatusPanelTest, TheDurationShowsAsManyHoursAsThereAre) {
  Connect();
  window.lblChatDuration.tag = u"43419";
  panel.tmrTimer_Timer();
  EXPECT_EQ(window.lblChatDuration.caption, u"12:03:40");
  window.lblChatDuration.tag = u"359999";
  panel.tmrTimer_Timer();
  EXPECT_EQ(window.lblChatDuration.caption, u"100:00:00");
}

TEST_F(StatusPanelTest, AFailingTickIsReportedAndTheNextOneRuns) {
  Connect();
  window.lblChatDuration.tag = u"2147483647";
  fake.dialogs.answers = {Answer::No};
  panel.tmrTimer_Timer();
  ASSERT_EQ(Titles(), std::vector<std::u16string>{u"Verlume, 226."});
  EXPECT_NE(fake.dialogs.messages[0].text.find(u"condition 6 "), std::u16string::npos);
  EXPECT_EQ(window.lblChatDuration.tag, u"2147483647");
  window.lblChatDuration.tag = u"";
  panel.tmrTimer_Timer();
  EXPECT_EQ(window.lblChatDuration.caption, u"0:00:01");
}

TEST_F(StatusPanelTest, GroupsDigitsByThree) {
  const fake::FakeLocale locale;
  EXPECT_EQ(GroupedNumberText(0, locale), u"0");
  EXPECT_EQ(GroupedNumberText(999, locale), u"999");
  EXPECT_EQ(GroupedNumberText(1000, locale), u"1,000");
  EXPECT_EQ(GroupedNumberText(1234567, locale), u"1,234,567");
  EXPECT_EQ(GroupedNumberText(2147483647, locale), u"2,147,483,647");
  EXPECT_EQ(GroupedNumberText(-123, locale), u"-123");
  EXPECT_EQ(GroupedNumberText(-123456, locale), u"-123,456");
}

TEST_F(StatusPanelTest, TakesTheGroupSeparatorAsTheSystemHasIt) {
  EXPECT_EQ(GroupedNumberText(1234567, CommaLocale(u".")), u"1.234.567");
  EXPECT_EQ(GroupedNumberText(1234567, CommaLocale(u"")), u"1234567");
}

TEST_F(StatusPanelTest, ACounterAddsUpInItsTag) {
  AddToCounter(window.lblBytesSent, 5, fake.locale);
  EXPECT_EQ(window.lblBytesSent.tag, u"5");
  EXPECT_EQ(window.lblBytesSent.caption, u"5");
  AddToCounter(window.lblBytesSent, 1234562, fake.locale);
  EXPECT_EQ(window.lblBytesSent.tag, u"1234567");
  EXPECT_EQ(window.lblBytesSent.caption, u"1,234,567");
}

TEST_F(StatusPanelTest, ACounterHoldsThirtyTwoBits) {
  window.lblBytesSent.tag = u"2147483640";
  AddToCounter(window.lblBytesSent, 7, fake.locale);
  EXPECT_EQ(window.lblBytesSent.tag, u"2147483647");
  for (const std::size_t more : {std::size_t{1}, std::size_t{0} - 1}) {
    try {
      AddToCounter(window.lblBytesSent, more, fake.locale);
      FAIL() << "no failure";
    } catch (const RunTimeFailure& failure) {
      EXPECT_EQ(failure.number, FailureNumber::Overflow);
    }
  }
  EXPECT_EQ(window.lblBytesSent.tag, u"2147483647");
  EXPECT_EQ(window.lblBytesSent.caption, u"2,147,483,647");
}

TEST_F(StatusPanelTest, AChatStartsNowAndCountsFromZero) {
  for (fake::FakeLabel* counter :
       {&window.lblChatDuration, &window.lblBytesSent, &window.lblBytesReceived}) {
    counter->tag = u"17";
  }
  panel.StartChat();
  EXPECT_EQ(window.lblChatStartDateTime.caption, u"7 of month 3 2026 - 9 h 5 m 30 s");
  for (const fake::FakeLabel* counter :
       {&window.lblChatDuration, &window.lblBytesSent, &window.lblBytesReceived}) {
    EXPECT_EQ(counter->tag, u"0");
  }
  EXPECT_EQ(window.lblChatDuration.caption, u"0:00:00");
  EXPECT_EQ(window.lblBytesSent.caption, u"0");
  EXPECT_EQ(window.lblBytesReceived.caption, u"0");
}

TEST_F(StatusPanelTest, ClearingKeepsTheLocalAddressAndNickname) {
  for (fake::FakeLabel* label : {&window.lblLocalIP, &window.lblLocalNickname,
                                 &window.lblCurrentDateTime, &window.lblStatus}) {
    label->caption = u"shown";
  }
  window.lblBytesSent.tag = u"17";
  panel.ClearValues();
  for (const fake::FakeLabel* label :
       {&window.lblLocalIP, &window.lblLocalNickname, &window.lblCurrentDateTime}) {
    EXPECT_EQ(label->caption, u"shown");
  }
  for (const fake::FakeLabel* label :
       {&window.lblStatus, &window.lblChatStartDateTime, &window.lblChatDuration,
        &window.lblLocalPort, &window.lblRemoteIP, &window.lblRemotePort, &window.lblRemoteNickname,
        &window.lblBytesSent, &window.lblBytesReceived}) {
    EXPECT_EQ(label->caption, u"");
    EXPECT_EQ(label->tag, u"");
  }
}

}  // namespace
}  // namespace verlume
