#include "platform_qt/help/help_viewer.h"

#include "platform_qt/dialogs/dialogs.h"
#include "platform_qt/dialogs/modal_driver.h"
#include "platform_qt/help/help_window_fixture.h"
#include "platform_qt/system/system.h"
#include "platform_qt/windows/window_focus.h"

namespace verlume::qt {
namespace {

using QtHelpViewerTest = HelpWindowFixture;

TEST_F(QtHelpViewerTest, ThereIsOneWindow) {
  Open();
  Contents()->setFocus();
  form->GoTo("panel");
  viewer.ShowContents();
  EXPECT_EQ(Windows().size(), 1);
  EXPECT_EQ(Title(), "The panel");
}

TEST_F(QtHelpViewerTest, ChoosingItAgainBringsItToTheFront) {
  frmMain.form().show();
  Open();
  frmMain.form().activateWindow();
  ASSERT_TRUE(WaitForFocus(frmMain.form()));
  viewer.ShowContents();
  EXPECT_TRUE(WaitForFocus(*form));
}

TEST_F(QtHelpViewerTest, AChangeOfLanguageDoesNotBringItToTheFront) {
  frmMain.form().show();
  Open();
  frmMain.form().activateWindow();
  ASSERT_TRUE(WaitForFocus(frmMain.form()));
  SetLanguage(true);
  QCoreApplication::processEvents();
  EXPECT_TRUE(frmMain.form().isActiveWindow());
}

TEST_F(QtHelpViewerTest, TheNextWindowBeginsAtTheBeginning) {
  Open();
  form->GoTo("panel");
  Press(Qt::Key_Escape);
  ASSERT_TRUE(QTest::qWaitFor([this] { return !form; }, 10000));
  Open();
  EXPECT_EQ(Title(), "Welcome");
}

TEST_F(QtHelpViewerTest, ALanguageSwitchStaysAtTheTopic) {
  Open();
  form->GoTo("waiting");
  SetLanguage(true);
  EXPECT_EQ(form->windowTitle(), "Βοήθεια του Verlume");
  EXPECT_EQ(Title(), "Αναμονή");
  EXPECT_EQ(Contents()->topLevelItem(1)->text(0), "Το παράθυρο");
  EXPECT_EQ(CurrentLine(), "Αναμονή");
  Press(Qt::Key_Left, Qt::AltModifier);
  EXPECT_EQ(Title(), "Καλώς ήλθατε");
}

TEST_F(QtHelpViewerTest, ALanguageSwitchSearchesAgain) {
  Open();
  Search()->setText("verlume zebra");
  SetLanguage(true);
  EXPECT_EQ(Results()->item(0)->text(), "Δεν βρέθηκε τίποτα");
  Search()->setText("ΚΛΗΣΗ");
  ASSERT_EQ(Results()->count(), 1);
  EXPECT_TRUE(Results()->item(0)->text().startsWith("Καλώς ήλθατε\n"));
}

TEST_F(QtHelpViewerTest, AFileThatIsMissingIsToldOfInTheWindow) {
  viewer.SetHelpFile(u"/nowhere/<i>.hlp", false);
  Open();
  EXPECT_TRUE(Topic()->toPlainText().startsWith("There is no help"));
  EXPECT_TRUE(Topic()->toPlainText().endsWith("/nowhere/<i>.hlp"));
  EXPECT_EQ(Contents()->topLevelItemCount(), 0);
  viewer.SetHelpFile(u"/nowhere/<i>.hlp", true);
  EXPECT_TRUE(Topic()->toPlainText().startsWith("Δεν υπάρχει βοήθεια"));
  SetLanguage(true);
  EXPECT_EQ(Title(), "Καλώς ήλθατε");
}

TEST_F(QtHelpViewerTest, AFileThatGoesBadIsToldOfInTheOpenWindow) {
  Open();
  form->GoTo("waiting");
  viewer.SetHelpFile(u"/nowhere", true);
  EXPECT_TRUE(Topic()->toPlainText().startsWith("Δεν υπάρχει βοήθεια"));
  SetLanguage(true);
  EXPECT_EQ(Title(), "Αναμονή");
}

TEST_F(QtHelpViewerTest, LiesAboveAMainWindowThatIsAlwaysOnTop) {
  frmMain.View().window.SetTopMost(true);
  Open();
  EXPECT_TRUE(form->windowFlags().testFlag(Qt::WindowStaysOnTopHint));
}

TEST_F(QtHelpViewerTest, ABoxOfTheProgramIsAnsweredWhileItIsOpen) {
  frmMain.form().show();
  Open();
  QtDialogs dialogs(&frmMain.form());
  const ModalDriver driver([](QDialog& box) { box.reject(); });
  EXPECT_EQ(dialogs.ShowMessage(Question(u"text", u"title", Answer::No)), Answer::No);
  EXPECT_TRUE(form->isVisible());
}

TEST_F(QtHelpViewerTest, TheProgramsEndClosesItUnderABoxToo) {
  QtApplication application;
  frmMain.form().show();
  Open();
  QtDialogs dialogs(&frmMain.form());
  bool isBack = false;
  QTimer::singleShot(0, &application, [&] {
    QTimer::singleShot(0, &application, [&] { application.End(); });
    dialogs.ShowMessage(Question(u"text", u"title", Answer::No));
    isBack = true;
  });
  application.Run();
  EXPECT_TRUE(isBack);
  EXPECT_FALSE(form->isVisible());
}

TEST_F(QtHelpViewerTest, F1OpensItFromTheMainWindow) {
  frmMain.View().mnuHelpDetailed.onClick = [this] { viewer.ShowContents(); };
  frmMain.form().show();
  frmMain.form().activateWindow();
  ASSERT_TRUE(WaitForFocus(frmMain.form()));
  QTest::keyClick(frmMain.form().focusWidget(), Qt::Key_F1);
  EXPECT_EQ(Windows().size(), 1);
}

TEST_F(QtHelpViewerTest, ARightClickInTheHelpWindowExplainsItsControls) {
  Open();
  QTest::mouseClick(Named<QWidget>("cmdBack"), Qt::RightButton);
  EXPECT_TRUE(QTest::qWaitFor(
      [] {
        const QWidget* popup = QApplication::activePopupWidget();
        return popup && popup->inherits("QWhatsThat");
      },
      10000));
  EXPECT_EQ(Named<QWidget>("cmdBack")->whatsThis(), SmallBook(false).Control("cmdBack")->html);
  QWhatsThis::hideText();
}

}  // namespace
}  // namespace verlume::qt
