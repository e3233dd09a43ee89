#include "shell/alerts.h"

#include <gmock/gmock.h>

#include "shell/shell_fixture.h"

namespace verlume {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class AlertsTest : public ShellTest {
 protected:
  AlertsTest() { state.RemoteNickname = u"Bob"; }

  void Say(std::u16string_view text) { alerts.OnRemoteLine(text, false); }
  // The lines come so slowly that each is told of.
  void SaySlowly(std::u16string_view text) {
    Say(text);
    alerts.tmrTimer_Timer();
  }
  void GoAway() { window.window.active = false; }
  void ComeBack() {
    window.window.active = true;
    alerts.attention_UserBack();
  }

  fake::FakeAttention& attention = fake.attention;
  Alerts alerts{state, platform, errors};
};

TEST_F(AlertsTest, ALineIsAnnouncedWithItsSenderFirst) {
  attention.listenedTo = true;
  SaySlowly(u"Good morning");
  EXPECT_THAT(attention.announced, ElementsAre(u"Bob: Good morning"));
  EXPECT_EQ(attention.timesNotified, 0);
}

TEST_F(AlertsTest, AnActionLineNamesItsSenderOnce) {
  attention.listenedTo = true;
  alerts.OnRemoteLine(u"Bob waves", true);
  alerts.tmrTimer_Timer();
  alerts.OnRemoteLine(u"Ann: I agree", true);
  EXPECT_THAT(attention.announced, ElementsAre(u"Bob waves", u"Bob: Ann: I agree"));
}

TEST_F(AlertsTest, WhoHasNoNicknameYetIsTheOtherSide) {
  attention.listenedTo = true;
  state.RemoteNickname.clear();
  SaySlowly(u"hello");
  state.IsGreek = true;
  SaySlowly(u"hello");
  EXPECT_THAT(attention.announced, ElementsAre(u"The other side: hello", u"Η άλλη πλευρά: hello"));
}

TEST_F(AlertsTest, ManyLinesWithinASecondAreOneNumber) {
  attention.listenedTo = true;
  for (int line = 0; line < 13; ++line) Say(u"line");
  EXPECT_THAT(attention.announced, ElementsAre(u"Bob: line"));
  alerts.tmrTimer_Timer();
  state.IsGreek = true;
  for (int line = 0; line < 3; ++line) Say(u"line");
  alerts.tmrTimer_Timer();
  EXPECT_THAT(attention.announced, ElementsAre(u"Bob: line", u"12 new lines", u"3 νέες γραμμές"));
}

TEST_F(AlertsTest, TheSecondOfTwoLinesIsAnnouncedASecondLater) {
  attention.listenedTo = true;
  Say(u"one");
  Say(u"two");
  alerts.tmrTimer_Timer();
  EXPECT_THAT(attention.announced, ElementsAre(u"Bob: one", u"Bob: two"));
}

TEST_F(AlertsTest, OfALongLineAThousandCharactersAreAnnounced) {
  attention.listenedTo = true;
  SaySlowly(std::u16string(100'000, u'x') + u"\u202E");
  ASSERT_EQ(attention.announced.size(), 1u);
  EXPECT_EQ(attention.announced.front().size(), 1000u);
  SaySlowly(u"a\u202Eb\x1B-c\r\nd");
  EXPECT_EQ(attention.announced.back(), u"Bob: ab-c d");
}

TEST_F(AlertsTest, WhileNobodyListensNothingIsDone) {
  for (int line = 0; line < 3; ++line) Say(u"line");
  alerts.tmrTimer_Timer();
  EXPECT_THAT(attention.announced, IsEmpty());
  EXPECT_EQ(attention.timesNotified, 0);
  EXPECT_EQ(attention.count, 0);
  EXPECT_EQ(attention.beeps, 0);
}

TEST_F(AlertsTest, ANewConnectionStateIsAnnouncedOnce) {
  attention.listenedTo = true;
  alerts.tmrTimer_Timer();
  EXPECT_THAT(attention.announced, IsEmpty());
  state.IsWaiting = true;
  alerts.tmrTimer_Timer();
  alerts.tmrTimer_Timer();
  state.IsGreek = true;
  alerts.tmrTimer_Timer();
  EXPECT_THAT(attention.announced, ElementsAre(u"Connection state: waiting"));
  state.IsWaiting = false;
  state.IsConnected = true;
  Say(u"γεια");
  EXPECT_THAT(attention.announced, ElementsAre(u"Connection state: waiting",
                                               u"Κατάσταση συνδέσεως: σύνδεση", u"Bob: γεια"));
}

TEST_F(AlertsTest, WhileTheUserIsAwayALineIsANotificationWithoutItsText) {
  attention.listenedTo = true;
  GoAway();
  SaySlowly(u"the secret");
  ASSERT_TRUE(attention.shown);
  EXPECT_EQ(attention.shown->title, u"Bob");
  EXPECT_EQ(attention.shown->text, u"New line");
  EXPECT_FALSE(attention.shown->withSound);
  EXPECT_THAT(attention.announced, IsEmpty()) << "the desktop's own reader reads notifications";
  EXPECT_EQ(attention.beeps, 0);
}

TEST_F(AlertsTest, TheTextIsShownIfTheUserWantsThat) {
  state.NotifyText = true;
  state.NotifySound = true;
  GoAway();
  SaySlowly(u"<b>dinner</b>\r\nat\u202E eight");
  ASSERT_TRUE(attention.shown);
  EXPECT_EQ(attention.shown->text, u"<b>dinner</b> at eight");
  EXPECT_TRUE(attention.shown->withSound);
  EXPECT_EQ(attention.beeps, 0) << "the notification has the sound";
  SaySlowly(std::u16string(5000, u'x'));
  EXPECT_EQ(attention.shown->text.size(), 200u);
}

TEST_F(AlertsTest, AFloodIsOneNotificationASecond) {
  GoAway();
  for (int line = 0; line < 500; ++line) Say(u"x");
  alerts.tmrTimer_Timer();
  EXPECT_EQ(attention.timesNotified, 2);
  EXPECT_EQ(attention.shown->text, u"499 new lines");
  EXPECT_EQ(attention.count, 500);
}

TEST_F(AlertsTest, WithoutNotificationsTheLineIsAnnouncedAndTheSoundComesAlone) {
  attention.listenedTo = true;
  state.NotifyLines = false;
  state.NotifySound = true;
  GoAway();
  SaySlowly(u"hello");
  attention.canNotify = false;
  state.NotifyLines = true;
  SaySlowly(u"again");
  EXPECT_FALSE(attention.shown);
  EXPECT_EQ(attention.beeps, 2);
  EXPECT_THAT(attention.announced, ElementsAre(u"Bob: hello", u"Bob: again"));
}

TEST_F(AlertsTest, WhenTheUserComesBackNothingIsUnread) {
  GoAway();
  SaySlowly(u"one");
  SaySlowly(u"two");
  EXPECT_EQ(attention.count, 2);
  ComeBack();
  EXPECT_EQ(attention.count, 0);
  EXPECT_FALSE(attention.shown);
  GoAway();
  SaySlowly(u"three");
  EXPECT_EQ(attention.count, 1);
}

TEST_F(AlertsTest, LinesAreCountedWithoutShowingTheNumberIfTheUserDoesNotWantIt) {
  state.NotifyCount = false;
  GoAway();
  SaySlowly(u"one");
  EXPECT_EQ(attention.count, 0);
  EXPECT_TRUE(attention.shown);
}

TEST_F(AlertsTest, AnIncomingCallIsANotificationWhileTheUserIsAway) {
  alerts.OnIncomingCall(u"192.0.2.7");
  EXPECT_FALSE(attention.shown);
  GoAway();
  alerts.OnIncomingCall(u"192.0.2.7");
  ASSERT_TRUE(attention.shown);
  EXPECT_EQ(attention.shown->title, u"Incoming call");
  EXPECT_EQ(attention.shown->text, u"192.0.2.7 is calling");
  state.IsGreek = true;
  alerts.OnIncomingCall(u"192.0.2.7");
  EXPECT_EQ(attention.shown->text, u"Κλήση από 192.0.2.7");
}

}  // namespace
}  // namespace verlume
