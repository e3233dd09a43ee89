#include "platform_qt/help/help_window_fixture.h"

namespace verlume::qt {
namespace {

using QtHelpWindowTest = HelpWindowFixture;

TEST_F(QtHelpWindowTest, OpensAtTheFirstTopic) {
  Open();
  EXPECT_FALSE(form->isModal());
  EXPECT_EQ(form->windowTitle(), "Verlume Help");
  EXPECT_EQ(Title(), "Welcome");
  EXPECT_EQ(Contents()->topLevelItemCount(), 2);
  EXPECT_EQ(Contents()->topLevelItem(0)->text(0), "Getting started");
  EXPECT_EQ(CurrentLine(), "Welcome");
  EXPECT_FALSE(Named<QToolButton>("cmdBack")->isEnabled());
  EXPECT_FALSE(Named<QToolButton>("cmdForward")->isEnabled());
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
  EXPECT_EQ(CurrentLine(), "The panel");
}

TEST_F(QtHelpWindowTest, LinksLeadToTopicsAndTheContentsFollow) {
  Open();
  FollowLink();
  EXPECT_EQ(Title(), "Waiting");
  EXPECT_EQ(CurrentLine(), "Waiting");
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
  EXPECT_EQ(CurrentLine(), "Waiting");
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
  ASSERT_EQ(Results()->count(), 3);
  EXPECT_TRUE(Results()->item(0)->text().startsWith("Waiting\nType /WAIT"));
  Press(Qt::Key_Down);
  ASSERT_EQ(form->focusWidget(), Results());
  Press(Qt::Key_Down);
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

TEST_F(QtHelpWindowTest, GoingBackMarksTheFindingThatIsShown) {
  Open();
  Search()->setText("port");
  ASSERT_EQ(Results()->count(), 3);
  for (const int row : {0, 2}) emit Results()->itemActivated(Results()->item(row));
  EXPECT_TRUE(Results()->item(2)->isSelected());
  Press(Qt::Key_Left, Qt::AltModifier);
  EXPECT_TRUE(Results()->item(0)->isSelected());
  EXPECT_FALSE(Results()->item(2)->isSelected());
  Press(Qt::Key_Left, Qt::AltModifier);
  EXPECT_FALSE(Results()->item(0)->isSelected());
}

TEST_F(QtHelpWindowTest, EscapeClearsTheSearchBeforeItCloses) {
  Open();
  Search()->setText("a");
  Press(Qt::Key_Escape);
  EXPECT_EQ(Search()->text(), "");
  ASSERT_EQ(Windows().size(), 1);
  EXPECT_TRUE(form->isVisible());
  Press(Qt::Key_Escape);
  EXPECT_TRUE(QTest::qWaitFor([] { return Windows().isEmpty(); }));
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

}  // namespace
}  // namespace verlume::qt
