// What a screen reader hears of a whole program with a real window. Its peer and its network are in
// memory.
#include <gmock/gmock.h>

#include <QAccessible>
#include <QTest>

#include "desktop/screen_reader.h"
#include "platform_qt/attention/attention.h"
#include "platform_qt/windows/main_window.h"
#include "platform_qt/world.h"
#include "support/program_copy.h"

namespace verlume::qt {
namespace {

using testing::Contains;
using testing::Each;
using testing::HasSubstr;
using testing::Not;

class AssistiveToolsTest : public testing::Test {
 protected:
  void SetUp() override {
    if (!reader.Start()) GTEST_SKIP() << "no accessibility bus (org.a11y.Bus) can be started here";
    fake.files.MakeFolder(u"/macros");
    fake.files.files[u"/verlume/Verlume.ini"] = "[General]\nNickname=Ann\nMacrosfolder=/macros/\n";
    program.Start();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window.form()));
    ASSERT_TRUE(WaitFor([&] { return attention.IsListenedTo(); }));
    silent = Corner();
    // The reader's wish for events reaches the program some time after it has been uttered.
    QDeadlineTimer pause(0);
    ASSERT_TRUE(WaitFor([&] {
      if (pause.hasExpired()) {
        attention.Announce(u"ready");
        pause.setRemainingTime(std::chrono::milliseconds(200));
      }
      return reader.Heard().contains("ready");
    }));
  }

  void Enter(std::u16string_view line) {
    window.View().rtbCommands.SetText(line);
    window.View().cmdSend.Click();
  }
  void Connect() {
    Enter(u"/WAIT 4000");
    fake.dialogs.answers.push_back(Answer::Yes);
    bob.Enter(u"/CALL ann 4000");
    network.RunUntilIdle();
  }
  // Where announcements would be seen.
  QImage Corner() { return window.form().grab(QRect(0, 0, 4, 4)).toImage(); }
  void Tick() { window.View().tmrTimer.onTimer(); }
  std::vector<std::string> Heard() const {
    std::vector<std::string> texts;
    for (const QString& text : reader.Heard()) {
      if (text != QStringLiteral("ready")) texts.push_back(text.toStdString());
    }
    return texts;
  }
  std::vector<std::string> Labels() {
    std::vector<std::string> texts;
    for (const QString& text : reader.VisibleLabels()) texts.push_back(text.toStdString());
    return texts;
  }

  QImage silent;  // the corner before the first announcement
  ScreenReader reader;
  fake::FakeNetwork network;
  fake::FakePlatform fake{network};
  QtMainWindow window{fake.files};
  QtAttention attention{&window.form()};
  Platform platform{.frmMain = window.View(),
                    .frmAbout = fake.about.frmAbout,
                    .frmMacros = fake.macros.frmMacros,
                    .frmPeople = fake.people.frmPeople,
                    .frmVerify = fake.verify.frmVerify,
                    .frmReach = fake.reach.frmReach,
                    .sckControl = fake.socket,
                    .privacy = fake.socket.privacy,
                    .router = fake.router,
                    .network = fake.addresses,
                    .dialogs = fake.dialogs,
                    .dlgControl = fake.commonDialog,
                    .files = fake.files,
                    .clock = fake.clock,
                    .locale = fake.locale,
                    .application = fake.application,
                    .help = fake.help,
                    .tools = fake.tools,
                    .clipboard = fake.clipboard,
                    .links = fake.links,
                    .attention = attention};
  Program program{platform};
  fake::ProgramCopy bob{network, u"Bob"};
};

TEST_F(AssistiveToolsTest, AValueIsReadWithItsNameAndItsCaptionIsNot) {
  window.View().lblRemoteIP.SetCaption(u"192.0.2.7");
  const std::vector<std::string> english = Labels();
  EXPECT_THAT(english, Contains("Remote address: 192.0.2.7").Times(1));
  EXPECT_THAT(english, Contains("Your nickname: Ann").Times(1));
  EXPECT_THAT(english, Contains("Duration")) << "the name alone while there is no value";
  EXPECT_THAT(english, Not(Contains("You")));
  EXPECT_THAT(english, Not(Contains("Other")));

  window.View().lblRemoteIP.SetCaption(u"192.0.2.8");
  window.View().mnuToolsLanguageGreek.Click();
  const std::vector<std::string> greek = Labels();
  EXPECT_THAT(greek, Contains("Απομακρυσμένη διεύθυνση: 192.0.2.8").Times(1));
  EXPECT_THAT(greek, Contains("Ψευδώνυμό σας: Ann").Times(1));
  EXPECT_THAT(greek, Not(Contains(HasSubstr("address"))));
}

QStringList renamed;

TEST_F(AssistiveToolsTest, AnotherValueIsToldOnce) {
  const auto before = QAccessible::installUpdateHandler([](QAccessibleEvent* event) {
    if (event->type() != QAccessible::NameChanged) return;
    renamed.append(event->accessibleInterface()->text(QAccessible::Name));
  });
  renamed.clear();
  window.View().lblChatDuration.SetCaption(u"0:00:05");
  window.View().lblChatDuration.SetCaption(u"0:00:05");
  QAccessible::installUpdateHandler(before);
  EXPECT_EQ(renamed, QStringList{"Duration: 0:00:05"});
}

TEST_F(AssistiveToolsTest, StateChangesAndThePeersLinesAreReadOutOnce) {
  window.View().mnuCommAskRouter.Click();  // else the wait asks whether it may
  Enter(u"/WAIT 4000");
  Tick();
  fake.dialogs.answers.push_back(Answer::Yes);
  bob.Enter(u"/CALL ann 4000");
  network.RunUntilIdle();
  window.form().activateWindow();
  ASSERT_TRUE(WaitFor([&] { return window.View().window.IsActive(); }));
  bob.Enter(u"Good morning");
  network.RunUntilIdle();
  Tick();
  Enter(u"Hello yourself");
  Tick();
  bob.Enter(u"/ME waves");
  network.RunUntilIdle();
  const std::vector<std::string> expected{
      "Connection state: waiting", "Connection state: connected", "Bob: Good morning", "Bob waves"};
  EXPECT_TRUE(WaitFor([&] { return Heard() == expected; })) << testing::PrintToString(Heard());
  EXPECT_THAT(Heard(), Each(Not(HasSubstr("Hello yourself"))));
}

TEST_F(AssistiveToolsTest, AnAnnouncementIsNotSeenAndTakesNoKeyboard) {
  window.form().activateWindow();
  ASSERT_TRUE(WaitFor([&] { return window.View().window.IsActive(); }));
  const QWidget* focused = QApplication::focusWidget();
  attention.Announce(u"Bob: hello");
  EXPECT_TRUE(WaitFor([&] { return Heard() == std::vector<std::string>{"Bob: hello"}; }));
  EXPECT_EQ(Corner(), silent);
  EXPECT_EQ(QApplication::focusWidget(), focused);
  EXPECT_EQ(window.form().childAt(0, 0), window.form().menuWidget());
}

TEST_F(AssistiveToolsTest, ManyLinesAtOnceAreReadOutAsTheirNumber) {
  Connect();
  window.form().activateWindow();
  ASSERT_TRUE(WaitFor([&] { return window.View().window.IsActive(); }));
  Tick();
  for (int line = 0; line < 13; ++line) bob.Enter(u"line");
  network.RunUntilIdle();
  Tick();
  EXPECT_TRUE(WaitFor([&] { return !Heard().empty() && Heard().back() == "12 new lines"; }))
      << testing::PrintToString(Heard());
  EXPECT_THAT(Heard(), Contains("Bob: line").Times(1));
}

}  // namespace
}  // namespace verlume::qt
