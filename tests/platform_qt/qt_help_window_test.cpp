#include "platform_qt/qt_help_window.h"

#include <gtest/gtest.h>

#include <QLineEdit>
#include <QListWidget>
#include <QScrollBar>
#include <QTest>
#include <QTreeWidget>

#include "platform_fake/fake_file_system.h"
#include "platform_qt/help_files.h"
#include "platform_qt/modal_driver.h"
#include "platform_qt/qt_dialogs.h"
#include "platform_qt/qt_help_viewer.h"
#include "platform_qt/qt_main_window.h"
#include "platform_qt/qt_system.h"

namespace verlume::qt {
namespace {

class QtHelpWindowTest : public testing::Test {
 protected:
  QtHelpWindowTest() { SetLanguage(false); }
  void SetLanguage(bool isGreek) { viewer.SetHelpFile(FromQt(SmallHelpFile(isGreek)), isGreek); }

  static QList<HelpForm*> Windows() {
    QList<HelpForm*> windows;
    for (QWidget* window : QApplication::topLevelWidgets()) {
      if (window->objectName() == "frmHelp") windows.append(static_cast<HelpForm*>(window));
    }
    return windows;
  }
  void Open() {
    viewer.ShowContents();
    ASSERT_EQ(Windows().size(), 1);
    form = Windows().first();
    ASSERT_TRUE(QTest::qWaitForWindowActive(form));
  }
  template <class Widget>
  Widget* Named(const char* name) {
    return form->findChild<Widget*>(QLatin1String(name));
  }
  QTextBrowser* Topic() { return Named<QTextBrowser>("txtTopic"); }
  QTreeWidget* Contents() { return Named<QTreeWidget>("tvwContents"); }
  QListWidget* Results() { return Named<QListWidget>("lstResults"); }
  QLineEdit* Search() { return Named<QLineEdit>("txtSearch"); }
  QString Title() { return Topic()->document()->firstBlock().text().trimmed(); }
  QString Marked() {
    QStringList marked;
    for (const auto& mark : Topic()->extraSelections()) marked.append(mark.cursor.selectedText());
    return marked.join('|');
  }
  void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QTest::keyClick(form->focusWidget() ? form->focusWidget() : form, key, modifiers);
  }
  // Follows the first link of the topic, as a user with a keyboard does.
  void FollowLink() {
    Topic()->setFocus();
    Press(Qt::Key_Tab);
    Press(Qt::Key_Return);
  }

  fake::FakeFileSystem files;
  QtMainWindow frmMain{files};
  QtHelpViewer viewer{&frmMain.form()};
  QPointer<HelpForm> form;
};

TEST_F(QtHelpWindowTest, OpensAtTheFirstTopic) {
  Open();
  EXPECT_FALSE(form->isModal());
  EXPECT_EQ(form->windowTitle(), "Verlume Help");
  EXPECT_EQ(Title(), "Welcome");
  EXPECT_EQ(Contents()->topLevelItemCount(), 2);
  EXPECT_EQ(Contents()->topLevelItem(0)->text(0), "Getting started");
  EXPECT_EQ(Contents()->currentItem()->text(0), "Welcome");
  EXPECT_FALSE(Named<QToolButton>("cmdBack")->isEnabled());
  EXPECT_FALSE(Named<QToolButton>("cmdForward")->isEnabled());
}

TEST_F(QtHelpWindowTest, ThereIsOneWindow) {
  Open();
  Contents()->setFocus();
  form->GoTo("panel");
  viewer.ShowContents();
  EXPECT_EQ(Windows().size(), 1);
  EXPECT_EQ(Title(), "The panel");
}

TEST_F(QtHelpWindowTest, ChoosingItAgainBringsItToTheFront) {
  frmMain.form().show();
  Open();
  frmMain.form().activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&frmMain.form()));
  viewer.ShowContents();
  EXPECT_TRUE(QTest::qWaitForWindowActive(form));
}

TEST_F(QtHelpWindowTest, AChangeOfLanguageDoesNotBringItToTheFront) {
  frmMain.form().show();
  Open();
  frmMain.form().activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&frmMain.form()));
  SetLanguage(true);
  QCoreApplication::processEvents();
  EXPECT_TRUE(frmMain.form().isActiveWindow());
}

TEST_F(QtHelpWindowTest, TheNextWindowBeginsAtTheBeginning) {
  Open();
  form->GoTo("panel");
  Press(Qt::Key_Escape);
  ASSERT_TRUE(QTest::qWaitFor([this] { return !form; }, 10000));
  Open();
  EXPECT_EQ(Title(), "Welcome");
}

TEST_F(QtHelpWindowTest, AClickInTheContentsShowsTheTopic) {
  Open();
  QTreeWidgetItem* line = Contents()->topLevelItem(0)->child(1);
  QTest::mouseClick(Contents()->viewport(), Qt::LeftButton, {},
                    Contents()->visualItemRect(line).center());
  EXPECT_EQ(Title(), "Waiting");
}

TEST_F(QtHelpWindowTest, ContentsAreReachedByKeys) {
  Open();
  ASSERT_EQ(form->focusWidget(), Contents());
  Press(Qt::Key_Down);
  EXPECT_EQ(Title(), "Welcome");
  Press(Qt::Key_Return);
  EXPECT_EQ(Title(), "Waiting");
}

TEST_F(QtHelpWindowTest, AChapterLeadsToItsFirstTopic) {
  Open();
  Contents()->setCurrentItem(Contents()->topLevelItem(1));
  Press(Qt::Key_Return);
  EXPECT_EQ(Title(), "The panel");
  EXPECT_EQ(Contents()->currentItem()->text(0), "The panel");
}

TEST_F(QtHelpWindowTest, LinksLeadToTopicsAndTheContentsFollow) {
  Open();
  FollowLink();
  EXPECT_EQ(Title(), "Waiting");
  EXPECT_EQ(Contents()->currentItem()->text(0), "Waiting");
}

TEST_F(QtHelpWindowTest, NothingIsOpenedFromOutside) {
  Open();
  Topic()->setSource(QUrl("file:///etc/hostname"));
  EXPECT_EQ(Topic()->toPlainText(), "");
  EXPECT_FALSE(Topic()->openLinks());
  EXPECT_FALSE(Topic()->openExternalLinks());
}

TEST_F(QtHelpWindowTest, AltArrowsGoBackAndForward) {
  Open();
  form->GoTo("waiting");
  form->GoTo("lblStatus");
  Press(Qt::Key_Left, Qt::AltModifier);
  EXPECT_EQ(Title(), "Waiting");
  EXPECT_EQ(Contents()->currentItem()->text(0), "Waiting");
  Press(Qt::Key_Left, Qt::AltModifier);
  EXPECT_EQ(Title(), "Welcome");
  EXPECT_FALSE(Named<QToolButton>("cmdBack")->isEnabled());
  Press(Qt::Key_Right, Qt::AltModifier);
  EXPECT_EQ(Title(), "Waiting");
}

TEST_F(QtHelpWindowTest, ButtonsGoBackAndForward) {
  Open();
  form->GoTo("waiting");
  Named<QToolButton>("cmdBack")->click();
  EXPECT_EQ(Title(), "Welcome");
  Named<QToolButton>("cmdForward")->click();
  EXPECT_EQ(Title(), "Waiting");
}

TEST_F(QtHelpWindowTest, GoingBackReturnsToThePlaceThatWasLeft) {
  Open();
  form->resize(form->minimumSizeHint());
  Topic()->zoomIn(30);
  Topic()->verticalScrollBar()->setValue(25);
  ASSERT_EQ(Topic()->verticalScrollBar()->value(), 25);
  form->GoTo("panel");
  EXPECT_EQ(Topic()->verticalScrollBar()->value(), 0);
  Press(Qt::Key_Left, Qt::AltModifier);
  EXPECT_EQ(Topic()->verticalScrollBar()->value(), 25);
}

TEST_F(QtHelpWindowTest, ALinkToAControlScrollsToIt) {
  Open();
  form->resize(form->minimumSizeHint());
  Topic()->zoomIn(30);
  form->GoTo("mnuHelpDetailed");
  EXPECT_EQ(Title(), "The panel");
  EXPECT_GT(Topic()->verticalScrollBar()->value(), 0);
}

TEST_F(QtHelpWindowTest, AnUnknownPlaceChangesNothing) {
  Open();
  form->GoTo("elsewhere");
  EXPECT_EQ(Title(), "Welcome");
  EXPECT_FALSE(Named<QToolButton>("cmdBack")->isEnabled());
}

TEST_F(QtHelpWindowTest, F1ExplainsTheWindowItself) {
  Open();
  Press(Qt::Key_F1);
  EXPECT_EQ(Title(), "This window");
}

TEST_F(QtHelpWindowTest, SearchingListsWhatIsFoundAndMarksIt) {
  Open();
  Press(Qt::Key_F, Qt::ControlModifier);
  ASSERT_EQ(form->focusWidget(), Search());
  QTest::keyClicks(Search(), "PORT");
  EXPECT_TRUE(Results()->isVisible());
  EXPECT_FALSE(Contents()->isVisible());
  ASSERT_EQ(Results()->count(), 2);
  EXPECT_TRUE(Results()->item(0)->text().startsWith("Waiting\nType /WAIT"));
  Press(Qt::Key_Down);
  ASSERT_EQ(form->focusWidget(), Results());
  Press(Qt::Key_Down);
  Press(Qt::Key_Return);
  EXPECT_EQ(Title(), "The panel");
  EXPECT_EQ(Marked(), "port");
}

TEST_F(QtHelpWindowTest, EnterInTheSearchFieldOpensTheBest) {
  Open();
  Press(Qt::Key_Slash);
  ASSERT_EQ(form->focusWidget(), Search());
  QTest::keyClicks(Search(), "/wait");
  EXPECT_EQ(Search()->text(), "/wait");
  Press(Qt::Key_Return);
  EXPECT_EQ(Title(), "Waiting");
  EXPECT_EQ(Marked(), "/WAIT");
}

TEST_F(QtHelpWindowTest, AClickOnAFindingShowsIt) {
  Open();
  Search()->setText("lamp");
  QTest::mouseClick(Results()->viewport(), Qt::LeftButton, {},
                    Results()->visualItemRect(Results()->item(0)).center());
  EXPECT_EQ(Title(), "Waiting");
}

TEST_F(QtHelpWindowTest, WithoutAQueryTheContentsAreBack) {
  Open();
  Search()->setText("zebra");
  ASSERT_EQ(Results()->count(), 1);
  EXPECT_EQ(Results()->item(0)->text(), "Nothing found");
  EXPECT_EQ(Results()->item(0)->flags(), Qt::NoItemFlags);
  Search()->setFocus();
  Press(Qt::Key_Return);
  EXPECT_EQ(Title(), "Welcome");
  Search()->clear();
  EXPECT_TRUE(Contents()->isVisible());
  form->GoTo("waiting");
  EXPECT_EQ(Marked(), "");
}

TEST_F(QtHelpWindowTest, ALanguageSwitchStaysAtTheTopic) {
  Open();
  form->GoTo("waiting");
  SetLanguage(true);
  EXPECT_EQ(form->windowTitle(), "Βοήθεια του Verlume");
  EXPECT_EQ(Title(), "Αναμονή");
  EXPECT_EQ(Contents()->topLevelItem(1)->text(0), "Το παράθυρο");
  EXPECT_EQ(Contents()->currentItem()->text(0), "Αναμονή");
  Press(Qt::Key_Left, Qt::AltModifier);
  EXPECT_EQ(Title(), "Καλώς ήλθατε");
}

TEST_F(QtHelpWindowTest, ALanguageSwitchSearchesAgain) {
  Open();
  Search()->setText("verlume zebra");
  SetLanguage(true);
  EXPECT_EQ(Results()->item(0)->text(), "Δεν βρέθηκε τίποτα");
  Search()->setText("ΚΛΗΣΗ");
  ASSERT_EQ(Results()->count(), 1);
  EXPECT_TRUE(Results()->item(0)->text().startsWith("Καλώς ήλθατε\n"));
}

TEST_F(QtHelpWindowTest, EveryControlHasANameInBothLanguages) {
  Open();
  QStringList english;
  QStringList greek;
  for (QStringList* names : {&english, &greek}) {
    SetLanguage(names == &greek);
    for (const char* name :
         {"tvwContents", "txtSearch", "lstResults", "txtTopic", "cmdBack", "cmdForward"}) {
      names->append(Named<QWidget>(name)->accessibleName());
    }
    for (const char* name : {"cmdBack", "cmdForward"}) {
      names->append(Named<QWidget>(name)->toolTip());
    }
    names->append(Search()->placeholderText());
  }
  for (qsizetype i = 0; i < english.size(); ++i) {
    EXPECT_NE(english[i], "");
    EXPECT_NE(greek[i], "");
    EXPECT_NE(english[i], greek[i]);
  }
}

TEST_F(QtHelpWindowTest, AFileThatIsMissingIsToldOfInTheWindow) {
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

TEST_F(QtHelpWindowTest, AFileThatGoesBadIsToldOfInTheOpenWindow) {
  Open();
  form->GoTo("waiting");
  viewer.SetHelpFile(u"/nowhere", true);
  EXPECT_TRUE(Topic()->toPlainText().startsWith("Δεν υπάρχει βοήθεια"));
  SetLanguage(true);
  EXPECT_EQ(Title(), "Αναμονή");
}

TEST_F(QtHelpWindowTest, FitsInto640By480) {
  Open();
  EXPECT_LE(form->minimumSizeHint().width(), 620);
  EXPECT_LE(form->minimumSizeHint().height(), 430);
}

TEST_F(QtHelpWindowTest, LinksAreReadableOnADarkGround) {
  Open();
  QPalette dark = form->palette();
  dark.setColor(QPalette::Base, QColor(0x23, 0x23, 0x23));
  dark.setColor(QPalette::Text, Qt::white);
  dark.setColor(QPalette::Link, Qt::blue);
  form->setPalette(dark);
  const QTextCursor link = Topic()->document()->find("Waiting");
  ASSERT_TRUE(link.charFormat().isAnchor());
  EXPECT_GT(link.charFormat().foreground().color().lightness(), 190);
}

TEST_F(QtHelpWindowTest, LiesAboveAMainWindowThatIsAlwaysOnTop) {
  frmMain.View().window.SetTopMost(true);
  Open();
  EXPECT_TRUE(form->windowFlags().testFlag(Qt::WindowStaysOnTopHint));
}

TEST_F(QtHelpWindowTest, ABoxOfTheProgramIsAnsweredWhileItIsOpen) {
  frmMain.form().show();
  Open();
  QtDialogs dialogs(&frmMain.form());
  const ModalDriver driver([](QDialog& box) { box.reject(); });
  EXPECT_EQ(dialogs.ShowMessage(Question(u"text", u"title", Answer::No)), Answer::No);
  EXPECT_TRUE(form->isVisible());
}

TEST_F(QtHelpWindowTest, TheProgramsEndClosesItUnderABoxToo) {
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

TEST_F(QtHelpWindowTest, F1OpensItFromTheMainWindow) {
  frmMain.View().mnuHelpDetailed.onClick = [this] { viewer.ShowContents(); };
  frmMain.form().show();
  frmMain.form().activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&frmMain.form()));
  QTest::keyClick(frmMain.form().focusWidget(), Qt::Key_F1);
  EXPECT_EQ(Windows().size(), 1);
}

}  // namespace
}  // namespace verlume::qt
