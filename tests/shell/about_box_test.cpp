#include "shell/about_box.h"

#include "connection/wire_protocol.h"
#include "shell/shell_fixture.h"

namespace verlume {
namespace {

class AboutBoxTest : public ShellTest {
 protected:
  AboutBoxTest() {
    fake.about.cmdOK.onClick = [this] { box.cmdOK_Click(); };
    fake.about.cmdSysInfo.onClick = [this] { box.cmdSysInfo_Click(); };
  }

  fake::FakeAboutWindow& about = fake.about;
  AboutBox box{state, platform, errors};
};

TEST_F(AboutBoxTest, SpeaksEnglish) {
  box.mnuHelpAbout_Click();
  EXPECT_EQ(about.window.title, u"About");
  EXPECT_EQ(about.lblTitle.caption, u"Verlume");
  EXPECT_EQ(about.lblVersion.caption, u"Version " + VersionText());
  EXPECT_EQ(about.lblDescription.caption,
            u"This application allows two remote computers to connect to each other, something "
            u"that enables the owners of these computers to exchange typed messages in real time. "
            u"The connection is established using IP addresses and is rather secure since NO "
            u"server is needed for the establishment of the connection.");
  EXPECT_EQ(about.lblDisclaimer.caption,
            u"This application is freeware and therefore its developer is not bound by any kind "
            u"of legal or other agreement to the end user.");
  EXPECT_EQ(about.cmdOK.caption, u"OK");
  EXPECT_EQ(about.cmdSysInfo.caption, u"System Info...");
}

TEST_F(AboutBoxTest, SpeaksGreekButForTheTitle) {
  state.IsGreek = true;
  box.mnuHelpAbout_Click();
  EXPECT_EQ(about.window.title, u"Σχετικά");
  EXPECT_EQ(about.lblTitle.caption, u"Verlume");
  EXPECT_EQ(about.lblVersion.caption, u"Έκδοση " + VersionText());
  EXPECT_EQ(about.lblDescription.caption,
            u"Η εφαρμογή αυτή επιτρέπει σε δύο απομακρυσμένους υπολογιστές να συνδεθούν μεταξύ "
            u"τους, ώστε οι κάτοχοί τους να μπορούν να ανταλλάσσουν γραπτά μηνύματα, σε "
            u"πραγματικό χρόνο. Η επικοινωνία γίνεται με διευθύνσεις IP και είναι ιδιαίτερα "
            u"ασφαλής αφού ΔΕΝ απαιτείται διακομιστής για την επικοινωνία.");
  EXPECT_EQ(about.lblDisclaimer.caption,
            u"Η εφαρμογή αυτή διανέμεται δωρεάν και επομένως δεν υπάρχει καμμία νομική ή άλλη "
            u"δέσμευση ανάμεσα στον δημιουργό της και στον τελικό χρήστη.");
  EXPECT_EQ(about.cmdSysInfo.caption, u"Πληροφορίες συστήματος...");
}

TEST_F(AboutBoxTest, CreditIsTheOneThatPeersRecogniseEachOtherBy) {
  std::u16string marker = BuildProtocolMarker();
  std::reverse(marker.begin(), marker.end());
  for (const bool isGreek : {false, true}) {
    state.IsGreek = isGreek;
    box.mnuHelpAbout_Click();
    EXPECT_NE(about.lblCredit.caption, u"");
    EXPECT_NE(marker.find(about.lblCredit.caption), marker.npos);
  }
}

TEST_F(AboutBoxTest, VersionIsTheProjectsInFourDigitsEach) {
  int major = -1;
  int minor = -1;
  int revision = -1;
  ASSERT_EQ(std::sscanf(VERLUME_VERSION, "%d.%d.%d", &major, &minor, &revision), 3);
  char text[32];
  std::snprintf(text, sizeof text, "%04d.%04d.%04d", major, minor, revision);
  EXPECT_EQ(VersionText(), std::u16string(text, text + std::string_view(text).size()));
}

TEST_F(AboutBoxTest, IsShownModallyAndGivesTheFocusBackAfterwards) {
  about.window.whileModal = [this] {
    EXPECT_EQ(about.cmdOK.timesFocused, 1);
    EXPECT_EQ(window.rtbCommands.timesFocused, 0);
  };
  box.mnuHelpAbout_Click();
  EXPECT_EQ(about.window.timesShownModal, 1);
  EXPECT_EQ(window.rtbCommands.timesFocused, 1);
}

TEST_F(AboutBoxTest, OkClosesIt) {
  about.window.whileModal = [this] {
    about.cmdOK.Click();
    EXPECT_TRUE(about.window.unloaded);
  };
  box.mnuHelpAbout_Click();
}

TEST_F(AboutBoxTest, IsLoadedAfreshEachTime) {
  box.mnuHelpAbout_Click();
  state.IsGreek = true;
  box.mnuHelpAbout_Click();
  EXPECT_EQ(about.window.title, u"Σχετικά");
  EXPECT_EQ(about.window.timesShownModal, 2);
}

TEST_F(AboutBoxTest, AnyButtonButTheRightOneOnTheCopyrightOpensIt) {
  box.lblCopyright_MouseDown(MouseButton::Right);
  EXPECT_EQ(about.window.timesShownModal, 0);
  box.lblCopyright_MouseDown(MouseButton::Left);
  EXPECT_EQ(about.window.timesShownModal, 1);
  box.lblCopyright_MouseDown(MouseButton::Other);
  EXPECT_EQ(about.window.timesShownModal, 2);
}

TEST_F(AboutBoxTest, SystemInfoLeavesTheBoxOpenWhereThereIsNone) {
  about.window.whileModal = [this] {
    about.cmdSysInfo.Click();
    EXPECT_FALSE(about.window.unloaded);
  };
  box.mnuHelpAbout_Click();
  EXPECT_EQ(Titles(), std::vector<std::u16string>{u"System information"});
}

TEST_F(AboutBoxTest, FailureWhileLoadingIsReportedAndTheBoxShownAsFarAsItIs) {
  about.window.titleFails = FailureNumber::InvalidProcedureCall;
  fake.dialogs.answers = {Answer::No};
  box.mnuHelpAbout_Click();
  EXPECT_EQ(Titles(), std::vector<std::u16string>{u"Verlume, 220."});
  EXPECT_EQ(resets, 1);
  EXPECT_EQ(about.window.timesShownModal, 1);
}

TEST_F(AboutBoxTest, IsNotShownWhenTheProgramEndsWhileItLoads) {
  about.window.titleFails = FailureNumber::InvalidProcedureCall;
  window.window.onUnload = [this] { fake.application.End(); };
  fake.dialogs.answers = {Answer::Yes};
  box.mnuHelpAbout_Click();
  EXPECT_TRUE(fake.application.ended);
  EXPECT_EQ(about.window.timesShownModal, 0);
}

}  // namespace
}  // namespace verlume
