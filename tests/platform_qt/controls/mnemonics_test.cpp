#include "platform_qt/controls/mnemonics.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QMenuBar>
#include <QTest>

#include "platform_fake/fake_file_system.h"
#include "platform_qt/windows/main_window.h"
#include "platform_qt/windows/window_focus.h"
#include "shell/language_texts.h"
#include "shell/private_texts.h"
#include "shell/reach_texts.h"

namespace verlume::qt {
namespace {

using testing::ElementsAre;

TEST(Mnemonics, FirstLetterOfAWordComesFirst) {
  EXPECT_THAT(ChooseMnemonics({"Date", "Time"}), ElementsAre(0, 0));
  EXPECT_THAT(ChooseMnemonics({"Log folder", "Log dialogue"}), ElementsAre(0, 4));
  EXPECT_THAT(ChooseMnemonics({"Log", "Load"}), ElementsAre(0, 1));
}

TEST(Mnemonics, LettersOfBothCasesAreOne) {
  EXPECT_THAT(ChooseMnemonics({"Aa", "ab"}), ElementsAre(0, 1));
  EXPECT_THAT(ChooseMnemonics({"Δδ", "δε"}), ElementsAre(0, 1));
}

TEST(Mnemonics, AccentedLettersAndFinalSigmaAreNone) {
  EXPECT_THAT(ChooseMnemonics({"Ώρα", "Έξοδος", "ός", "é"}), ElementsAre(1, 1, -1, -1));
}

TEST(Mnemonics, CaptionGivesWayToOneThatHasNoOtherLetter) {
  EXPECT_THAT(ChooseMnemonics({"ab", "a"}), ElementsAre(1, 0));
  EXPECT_THAT(ChooseMnemonics({"ab", "bc", "b", "a"}), ElementsAre(0, 1, 0, -1));
  EXPECT_THAT(ChooseMnemonics({"ab", "bc", "a"}), ElementsAre(1, 1, 0));
}

TEST(Mnemonics, FirstLettersOfLaterCaptionsGoBeforeOtherLettersOfEarlierOnes) {
  EXPECT_THAT(ChooseMnemonics({"Edit", "English", "Greek", "Nickname"}), ElementsAre(0, 3, 0, 0));
}

TEST(Mnemonics, LettersOfAnotherScriptComeLast) {
  EXPECT_THAT(ChooseMnemonics({"Αν IP", "Α"}), ElementsAre(1, 0));
  EXPECT_THAT(ChooseMnemonics({"Α IP", "Α"}), ElementsAre(2, 0));
}

TEST(Mnemonics, TakenLettersAreLeftAlone) {
  EXPECT_THAT(ChooseMnemonics({"Bold", "B"}, "BO"), ElementsAre(2, -1));
}

TEST(Mnemonics, AmpersandOfACaptionIsShown) {
  EXPECT_EQ(WithMnemonic("R&D", 2), "R&&&D");
  EXPECT_EQ(WithMnemonic("R&D", -1), "R&&D");
  EXPECT_EQ(WithMnemonic("Σχετικά", 0), "&Σχετικά");
}

class MnemonicsTest : public testing::Test {
 protected:
  void SetLanguage(bool isGreek) {
    for (const auto& [set, text] : MenuAndToolTipTexts(view)) set(text.In(isGreek));
    for (const auto& [set, text] : PanelTexts(view)) set(text.In(isGreek));
    for (const auto& [set, text] : PrivateTexts(view)) set(text.In(isGreek));
    for (const auto& [set, text] : ReachTexts(view)) set(text.In(isGreek));
  }

  // The key of a text's mnemonic; fails the test if there is none, or an accented one.
  QChar KeyOf(const QString& text) {
    const QKeySequence key = QKeySequence::mnemonic(text);
    EXPECT_FALSE(key.isEmpty()) << text.toStdString();
    if (key.isEmpty()) return {};
    const QChar letter(static_cast<char16_t>(key[0].key()));
    EXPECT_EQ(letter.decompositionTag(), QChar::NoDecomposition) << text.toStdString();
    return letter;
  }
  void ExpectDifferentKeys(const QStringList& texts) {
    QString keys;
    for (const QString& text : texts) {
      const QChar key = KeyOf(text);
      EXPECT_FALSE(keys.contains(key)) << text.toStdString();
      keys.append(key);
    }
  }
  QStringList MenuBarBoxesAndKeyBar() {
    QStringList texts;
    for (const QAction* menu : form.menuBar()->actions()) texts.append(menu->text());
    for (const QCheckBox* box : form.findChildren<QCheckBox*>()) texts.append(box->text());
    for (const char* name : {"cmdKeyGoOn", "cmdKeyHangUp"}) {
      texts.append(form.Find<QPushButton>(name)->text());
    }
    return texts;
  }

  fake::FakeFileSystem files;
  QtMainWindow frmMain{files};
  MainForm& form = frmMain.form();
  MainWindow& view = frmMain.View();
};

class WindowMnemonics : public MnemonicsTest, public testing::WithParamInterface<bool> {};

TEST_P(WindowMnemonics, EveryMenuBoxAndAnswerHasALetterOfItsOwn) {
  SetLanguage(GetParam());
  ExpectDifferentKeys(MenuBarBoxesAndKeyBar());
}

TEST_P(WindowMnemonics, EveryEntryHasALetterOfItsOwnInItsMenu) {
  SetLanguage(GetParam());
  for (const QAction* menu : form.menuBar()->actions()) {
    QStringList texts;
    for (const QAction* entry : menu->menu()->actions()) {
      if (!entry->isSeparator()) texts.append(entry->text());
    }
    ExpectDifferentKeys(texts);
  }
}

TEST_P(WindowMnemonics, LettersDependOnNothingButTheCaptions) {
  SetLanguage(GetParam());
  const QStringList first = MenuBarBoxesAndKeyBar();
  SetLanguage(!GetParam());
  EXPECT_NE(MenuBarBoxesAndKeyBar(), first);
  SetLanguage(GetParam());
  EXPECT_EQ(MenuBarBoxesAndKeyBar(), first);
}

TEST_P(WindowMnemonics, CaptionsStayAsTheyWereSet) {
  SetLanguage(GetParam());
  EXPECT_EQ(view.mnuFileExit.Caption(), GetParam() ? u"Έξοδος" : u"Exit");
  EXPECT_EQ(view.mnuTools.Caption(), GetParam() ? u"Εργαλεία" : u"Tools");
}

INSTANTIATE_TEST_SUITE_P(InBothLanguages, WindowMnemonics, testing::Bool(),
                         [](const auto& isGreek) { return isGreek.param ? "Greek" : "English"; });

TEST_F(MnemonicsTest, AltAndALetterOpenAMenuAndALetterChoosesItsEntry) {
  SetLanguage(true);
  view.window.Show();
  form.activateWindow();
  ASSERT_TRUE(WaitForFocus(form));
  int exits = 0;
  view.mnuFileExit.onClick = [&] { ++exits; };
  auto* menu = form.Find<QMenu>("mnuFile");
  const QChar key = KeyOf(menu->title());
  QTest::sendKeyEvent(QTest::Click, form.focusWidget(), Qt::Key(key.unicode()), key.toLower(),
                      Qt::AltModifier);
  ASSERT_TRUE(QTest::qWaitFor([&] { return menu->isVisible(); }, 10000));
  const QChar entry = KeyOf(form.Find<QAction>("mnuFileExit")->text());
  QTest::sendKeyEvent(QTest::Click, menu, Qt::Key(entry.unicode()), entry.toLower(), {});
  EXPECT_EQ(exits, 1);
  EXPECT_EQ(form.focusWidget()->objectName(), "rtbCommands");
}

TEST_F(MnemonicsTest, AltAndALetterTurnACheckBox) {
  SetLanguage(false);
  view.window.Show();
  form.activateWindow();
  ASSERT_TRUE(WaitForFocus(form));
  const QChar key = KeyOf(form.Find<QCheckBox>("chkBold")->text());
  QTest::sendKeyEvent(QTest::Click, form.focusWidget(), Qt::Key(key.unicode()), key.toLower(),
                      Qt::AltModifier);
  EXPECT_TRUE(QTest::qWaitFor([&] { return view.chkBold.Value() == 1; }, 10000));
}

TEST_F(MnemonicsTest, CaptionThatChangesGivesItsMenuNewLetters) {
  QMenu menu;
  QtMenuEntry one(menu.addAction(QString()));
  QtMenuEntry two(menu.addAction(QString()));
  one.SetCaption(u"Save");
  two.SetCaption(u"Send");
  EXPECT_EQ(menu.actions()[0]->text(), "&Save");
  EXPECT_EQ(menu.actions()[1]->text(), "S&end");
  one.SetCaption(u"Load & run");
  EXPECT_EQ(menu.actions()[0]->text(), "&Load && run");
  EXPECT_EQ(menu.actions()[1]->text(), "&Send");
  EXPECT_EQ(one.Caption(), u"Load & run");
}

}  // namespace
}  // namespace verlume::qt
