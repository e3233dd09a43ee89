#include "platform_qt/spelling/spell_checker.h"

#include <gtest/gtest.h>

#include <QInputMethodEvent>
#include <QMenu>
#include <QTest>
#include <QTextBlock>

#include "platform_fake/fake_file_system.h"
#include "platform_qt/spelling/small_dictionaries.h"
#include "platform_qt/spelling/spelling_menu.h"
#include "platform_qt/text/rich_text_box.h"

namespace verlume::qt {
namespace {

class SpellCheckerTest : public testing::Test {
 protected:
  SpellCheckerTest() {
    small.Add("en_US", "UTF-8", {"hello", "there", "world"});
    small.Add("el_GR", "UTF-8", {"ναι", "γεια"});
    window.resize(400, 100);
    pane->setGeometry(0, 0, 400, 100);
    window.show();
  }
  void Start() {
    checker.emplace(pane, small.Folder());
    checker->SetCaption(SpellingEntry::AddWord, u"Add");
    checker->SetCaption(SpellingEntry::NoSuggestion, u"None");
    checker->SetCaption(SpellingEntry::Searching, u"Searching");
    checker->SetOn(true);
  }
  // The words with a wave below them.
  QStringList Marked() const {
    QStringList words;
    for (QTextBlock block = pane->document()->begin(); block.isValid(); block = block.next()) {
      for (const QTextLayout::FormatRange& range : block.layout()->formats()) {
        if (range.format.underlineStyle() != QTextCharFormat::SpellCheckUnderline) continue;
        words.append(block.text().mid(range.start, range.length));
      }
    }
    return words;
  }
  bool WaitForMarks(const QStringList& words) const {
    return QTest::qWaitFor([&] { return Marked() == words; });
  }
  void Write(std::u16string_view text) {
    box.SetText(text);
    box.Select(0, 0);
  }
  // What the menu offers at a place once the search has ended.
  QStringList Offered(int place, QObject& owner) {
    QTextCursor cursor(pane->document());
    cursor.setPosition(place);
    actions = checker->SpellingActions(cursor, &owner);
    const auto isSearching = [&] { return actions.value(0) && actions[0]->text() == "Searching"; };
    EXPECT_TRUE(QTest::qWaitFor([&] { return !isSearching(); }));
    QStringList texts;
    for (const QAction* action : actions) {
      if (action->isVisible() && !action->isSeparator()) texts.append(action->text());
    }
    return texts;
  }

  SmallDictionaries small;
  QWidget window;
  fake::FakeFileSystem files;
  QtRichTextBox box{&window, files, Lines::Single};
  QPlainTextEdit* pane = box.widget();
  std::optional<QtSpellChecker> checker;
  QList<QAction*> actions;
};

// A cursor that goes while a document is being cleared would be moved by the next change.
TEST_F(SpellCheckerTest, ATextThatIsReplacedAgainAndAgainStaysWhole) {
  Start();
  for (int i = 0; i < 200; ++i) {
    Write(u"a");
    QTest::keyClicks(pane, "bc ");
    Write(u"");
    box.SetSelText(u"d");
    ASSERT_EQ(box.Text(), u"d");
    QCoreApplication::processEvents();
  }
}

TEST_F(SpellCheckerTest, MarksWrongWordsOfBothLanguages) {
  Start();
  Write(u"helo there, ναι γιεα");
  EXPECT_TRUE(WaitForMarks({"helo", "γιεα"})) << Marked().join(' ').toStdString();
}

TEST_F(SpellCheckerTest, AMarkIsNoPartOfTheTextOrItsFormat) {
  Write(u"helo there");
  const std::u16string before = box.Rtf();
  Start();
  ASSERT_TRUE(WaitForMarks({"helo"}));
  EXPECT_EQ(box.Rtf(), before);
  box.Select(0, 4);
  EXPECT_EQ(box.SelFormat().underline, false);
  EXPECT_EQ(pane->textCursor().charFormat().underlineStyle(), QTextCharFormat::NoUnderline);
  pane->grab();  // what paints the shades keeps the waves
  EXPECT_EQ(Marked(), QStringList{"helo"});
}

TEST_F(SpellCheckerTest, AWordIsNotMarkedWhileItIsBeingTyped) {
  Start();
  QTest::keyClicks(pane, "wrld helo");
  EXPECT_TRUE(WaitForMarks({"wrld"}));
  QTest::keyClicks(pane, " ");
  EXPECT_TRUE(WaitForMarks({"wrld", "helo"}));
  QTest::keyClicks(pane, "thre");
  QTest::keyClick(pane, Qt::Key_Left);
  QTest::keyClicks(pane, "e");
  EXPECT_TRUE(WaitForMarks({"wrld", "helo"}));
  QTest::keyClick(pane, Qt::Key_Home);
  EXPECT_TRUE(WaitForMarks({"wrld", "helo", "three"})) << Marked().join(' ').toStdString();
}

TEST_F(SpellCheckerTest, AMarkMovesWithItsWordAndGoesWhenItIsPutRight) {
  Start();
  Write(u"there helo");
  ASSERT_TRUE(WaitForMarks({"helo"}));
  QTest::keyClicks(pane, "hello ");
  EXPECT_EQ(Marked(), QStringList{"helo"});
  QTest::keyClick(pane, Qt::Key_End);
  QTest::keyClick(pane, Qt::Key_Left);
  QTest::keyClicks(pane, "l");
  EXPECT_TRUE(WaitForMarks({}));
}

TEST_F(SpellCheckerTest, CommandsAddressesNumbersAndCapitalsAreNotMarked) {
  Start();
  Write(u"helo a4b ann@example.org NASAX");
  EXPECT_TRUE(WaitForMarks({"helo"}));
  Write(u"/call helo");
  EXPECT_TRUE(WaitForMarks({}));
  Write(u"/me helo");
  EXPECT_TRUE(WaitForMarks({"helo"}));
}

TEST_F(SpellCheckerTest, ALineThatBecomesACommandLosesItsMarks) {
  Start();
  Write(u"call helo");
  ASSERT_TRUE(WaitForMarks({"call", "helo"}));
  QTest::keyClicks(pane, "/");
  EXPECT_TRUE(WaitForMarks({}));
  QTest::keyClick(pane, Qt::Key_Backspace);
  QTest::keyClick(pane, Qt::Key_End);
  EXPECT_TRUE(WaitForMarks({"call", "helo"}));
}

TEST_F(SpellCheckerTest, SwitchedOffThereAreNoMarks) {
  Start();
  Write(u"helo");
  ASSERT_TRUE(WaitForMarks({"helo"}));
  checker->SetOn(false);
  EXPECT_EQ(Marked(), QStringList());
  Write(u"helo helo");
  checker->SetOn(true);
  EXPECT_TRUE(WaitForMarks({"helo", "helo"}));
}

TEST_F(SpellCheckerTest, WithoutADictionaryOfItsScriptAWordIsRight) {
  SmallDictionaries empty;
  checker.emplace(pane, empty.Folder());
  EXPECT_FALSE(checker->HasDictionary());
  empty.Add("en_US", "UTF-8", {"hello"});
  checker.emplace(pane, empty.Folder());
  EXPECT_TRUE(checker->HasDictionary());
  checker->SetOn(true);
  Write(u"γιεα helo");
  EXPECT_TRUE(WaitForMarks({"helo"}));
}

TEST_F(SpellCheckerTest, TheUsersOwnWordsAreRight) {
  Start();
  Write(u"Helo verlume Verlume");
  ASSERT_TRUE(WaitForMarks({"Helo", "verlume", "Verlume"}));
  checker->SetOwnWords({u"helo", u"Verlume"});
  EXPECT_TRUE(WaitForMarks({"verlume"}));
}

TEST_F(SpellCheckerTest, OffersWordsToChooseFromAndTheOwnDictionary) {
  Start();
  Write(u"say helo");
  ASSERT_TRUE(WaitForMarks({"say", "helo"}));
  QObject owner;
  EXPECT_EQ(Offered(6, owner), (QStringList{"hello", "Add"}));
  std::u16string added;
  checker->onAddWord = [&](std::u16string_view word) { added = word; };
  actions[5]->trigger();
  EXPECT_EQ(added, u"helo");
  EXPECT_EQ(box.Text(), u"say helo");
}

TEST_F(SpellCheckerTest, AWordThatIsChosenTakesThePlaceAndTheFormat) {
  Start();
  Write(u"say helo there");
  box.Select(4, 4);
  SelectionFormat bold;
  bold.bold = true;
  box.SetSelFormat(bold);
  box.Select(14, 0);
  ASSERT_TRUE(WaitForMarks({"say", "helo"}));
  int changes = 0;
  box.onChange = [&] { ++changes; };
  QObject owner;
  ASSERT_EQ(Offered(5, owner).value(0), "hello");
  actions[0]->trigger();
  EXPECT_EQ(box.Text(), u"say hello there");
  EXPECT_EQ(box.SelStart(), 15u);
  EXPECT_EQ(changes, 1);
  box.Select(4, 5);
  EXPECT_EQ(box.SelFormat().bold, true);
  box.Select(9, 6);
  EXPECT_EQ(box.SelFormat().bold, false);
  EXPECT_TRUE(WaitForMarks({"say"}));
}

TEST_F(SpellCheckerTest, OffersNothingForRightWordsAndTellsWhereNothingIsLikeAWord) {
  Start();
  Write(u"hello zzzzzzzz");
  ASSERT_TRUE(WaitForMarks({"zzzzzzzz"}));
  QObject owner;
  EXPECT_EQ(Offered(2, owner), QStringList());
  EXPECT_EQ(Offered(8, owner), (QStringList{"None", "Add"}));
  EXPECT_FALSE(actions[0]->isEnabled());
}

TEST_F(SpellCheckerTest, TheMenuMayCloseBeforeTheSearchEnds) {
  Start();
  Write(u"helo");
  ASSERT_TRUE(WaitForMarks({"helo"}));
  auto owner = std::make_unique<QObject>();
  checker->SpellingActions(QTextCursor(pane->document()), owner.get());
  owner.reset();
  Write(u"helo helo");
  EXPECT_TRUE(WaitForMarks({"helo", "helo"}));
}

TEST_F(SpellCheckerTest, ItsEntriesStandFirstInThePanesMenu) {
  Start();
  new SpellingMenu(*pane, *checker);
  Write(u"helo");
  ASSERT_TRUE(WaitForMarks({"helo"}));
  pane->setFocus();
  QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(1, 1),
                          pane->mapToGlobal(QPoint(1, 1)));
  QCoreApplication::sendEvent(pane, &event);
  auto* menu = pane->findChild<QMenu*>();
  ASSERT_TRUE(menu);
  const QList<QAction*> all = menu->actions();
  ASSERT_GT(all.size(), 7);
  EXPECT_EQ(all[5]->text(), "Add");
  menu->close();
}

TEST_F(SpellCheckerTest, ALongTextIsCheckedBetweenEvents) {
  Start();
  std::u16string text;
  while (text.size() < 1 << 20) text += u"hello wrld there ";
  box.SetText(text);
  int turns = 0;
  QTimer timer;
  QObject::connect(&timer, &QTimer::timeout, &timer, [&] { ++turns; });
  timer.start(0);
  const auto lastIsMarked = [&] {
    // The very last block may hold a few letters alone.
    const QTextBlock last = pane->document()->lastBlock();
    return !last.layout()->formats().isEmpty() || !last.previous().layout()->formats().isEmpty();
  };
  EXPECT_TRUE(QTest::qWaitFor(lastIsMarked, 60000));
  EXPECT_GT(turns, 10);
}

TEST_F(SpellCheckerTest, AWordOfFourKilobytesIsNotChecked) {
  Start();
  Write(std::u16string(4096, u'w') + u" helo");
  EXPECT_TRUE(WaitForMarks({"helo"}));
}

TEST_F(SpellCheckerTest, TheWaveCanBeSeenOnAnyBackground) {
  Start();
  Write(u"helo");
  ASSERT_TRUE(WaitForMarks({"helo"}));
  const auto color = [&] {
    for (const auto& range : pane->document()->begin().layout()->formats()) {
      if (range.format.underlineStyle() == QTextCharFormat::SpellCheckUnderline) {
        return range.format.underlineColor();
      }
    }
    return QColor();
  };
  const QColor onWhite = color();
  box.SetBackColor(0x0000C0);
  EXPECT_TRUE(QTest::qWaitFor([&] { return color() != onWhite; }));
}

}  // namespace
}  // namespace verlume::qt
