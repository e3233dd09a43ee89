#include "platform_qt/text/missing_scripts.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QFontDatabase>
#include <QPlainTextEdit>
#include <QTextBlock>

#include "platform_qt/text/installed_scripts.h"

namespace verlume::qt {
namespace {

using Parts = std::vector<std::pair<int, int>>;

Parts PartsOf(QStringView text) {
  Parts parts;
  const auto shows = [](QChar::Script script) {
    return script != QChar::Script_Devanagari && script != QChar::Script_Gothic;
  };
  for (const auto& range : PartsInMissingScripts(text, shows)) {
    EXPECT_EQ(range.format.fontStyleStrategy(), QFont::NoFontMerging);
    parts.emplace_back(range.start, range.length);
  }
  return parts;
}

TEST(MissingScripts, PartsReachToTheNextScript) {
  EXPECT_EQ(PartsOf(u"abc \u0391 \u05D0"), Parts{});
  EXPECT_EQ(PartsOf(u"ab \u0915\u0916 1, c"), (Parts{{3, 6}}));
  EXPECT_EQ(PartsOf(u"a\u0915a\u0915"), (Parts{{1, 1}, {3, 1}}));
}

TEST(MissingScripts, WhatStandsBeforeTheFirstLetterGoesWithIt) {
  EXPECT_EQ(PartsOf(u"1. \u0915 a"), (Parts{{0, 5}}));
  EXPECT_EQ(PartsOf(u"1. a \u0915"), (Parts{{5, 1}}));
}

TEST(MissingScripts, AMarkGoesWithItsLetter) {
  EXPECT_EQ(PartsOf(u"a\u093Fb"), Parts{});
  EXPECT_EQ(PartsOf(u"\u0915\u0301"), (Parts{{0, 2}}));
}

TEST(MissingScripts, LettersOfTwoUnits) {
  EXPECT_EQ(PartsOf(u"a\U00010330\U00010331b"), (Parts{{1, 4}}));
  EXPECT_EQ(PartsOf(u"\xD800 \u0915"), (Parts{{0, 3}}));
}

TEST(InstalledScripts, OfATable) {
  const QByteArray header = QByteArray::fromHex("00010000 000A 0000 0000");
  const QByteArray table = header + QByteArray::fromHex("0002") + "dev2" +
                           QByteArray::fromHex("0000") + "khmr" + QByteArray::fromHex("0000");
  EXPECT_EQ(ScriptsOf(table), (QSet<QChar::Script>{QChar::Script_Devanagari, QChar::Script_Khmer}));
  for (int size = 0; size < table.size(); ++size) ScriptsOf(table.left(size));
  EXPECT_EQ(ScriptsOf(table.left(18)), (QSet<QChar::Script>{QChar::Script_Devanagari}));
  EXPECT_TRUE(ScriptsOf(QByteArray()).isEmpty());
}

void LookAtAllFonts() {
  while (!InstalledScripts::Instance().IsComplete()) InstalledScripts::Instance().RunTurn();
}

// What Qt knows about the installed fonts must not be contradicted.
TEST(InstalledScripts, HaveTheWritingSystemsThatFontsAreMadeFor) {
  LookAtAllFonts();
  const std::pair<QFontDatabase::WritingSystem, QChar::Script> kScripts[] = {
      {QFontDatabase::Latin, QChar::Script_Latin},
      {QFontDatabase::Greek, QChar::Script_Greek},
      {QFontDatabase::Hebrew, QChar::Script_Hebrew},
      {QFontDatabase::Armenian, QChar::Script_Armenian},
      {QFontDatabase::Georgian, QChar::Script_Georgian},
      {QFontDatabase::Arabic, QChar::Script_Arabic},
      {QFontDatabase::Devanagari, QChar::Script_Devanagari},
      {QFontDatabase::Khmer, QChar::Script_Khmer}};
  for (const auto& [system, script] : kScripts) {
    if (QFontDatabase::families(system).isEmpty()) continue;
    EXPECT_TRUE(InstalledScripts::Instance().Shows(script)) << script;
  }
}

class MissingScriptsInAnEditor : public testing::Test {
 protected:
  // A letter of a script that the fonts here show, or do not show; empty when there is none.
  static QString Letter(bool isShown) {
    LookAtAllFonts();
    for (char32_t c = 0x0530; c < 0x20000; ++c) {
      if (!QChar::isLetter(c)) continue;
      if (InstalledScripts::Instance().Shows(QChar::script(c)) == isShown) {
        return QString::fromUcs4(&c, 1);
      }
    }
    return {};
  }
  static bool IsMarked(const QTextBlock& block) { return !block.layout()->formats().isEmpty(); }
  bool IsMarked() const { return IsMarked(editor.document()->firstBlock()); }
  int MarkedBlocks() const {
    int marked = 0;
    QTextBlock block = editor.document()->firstBlock();
    for (; block.isValid(); block = block.next()) marked += IsMarked(block);
    return marked;
  }

  QPlainTextEdit editor;
};

TEST_F(MissingScriptsInAnEditor, OnlyWhatIsPaintedChanges) {
  const MissingScripts missing(*editor.document());
  const QString letter = Letter(false);
  editor.setPlainText("a" + letter);
  EXPECT_EQ(IsMarked(), !letter.isEmpty());
  const QTextBlock block = editor.document()->firstBlock();
  for (auto it = block.begin(); !it.atEnd(); ++it) {
    EXPECT_FALSE(it.fragment().charFormat().hasProperty(QTextFormat::FontStyleStrategy));
  }
  editor.setPlainText("ab");
  EXPECT_FALSE(IsMarked());
}

TEST_F(MissingScriptsInAnEditor, WhatFontsHaveIsShownWhenTheyHaveBeenLookedAt) {
  const QString letter = Letter(true);
  ASSERT_FALSE(letter.isEmpty()) << "the tests need fonts-dejavu-core";
  InstalledScripts installed;
  const MissingScripts missing(*editor.document(), installed);
  editor.setPlainText(letter);
  EXPECT_TRUE(IsMarked());
  const QDeadlineTimer deadline(10'000);
  while (IsMarked() && !deadline.hasExpired()) QCoreApplication::processEvents();
  EXPECT_FALSE(IsMarked());
  EXPECT_TRUE(installed.IsComplete());
}

TEST_F(MissingScriptsInAnEditor, TextThatMovesMeanwhileIsLookedAtAgain) {
  const QString line = Letter(true) + '\n';
  InstalledScripts installed;
  const MissingScripts missing(*editor.document(), installed);
  editor.setPlainText("some words\n" + line.repeated(10));
  EXPECT_EQ(MarkedBlocks(), 10);
  QTextCursor start(editor.document());
  start.movePosition(QTextCursor::NextWord, QTextCursor::KeepAnchor);
  start.removeSelectedText();
  const QDeadlineTimer deadline(10'000);
  while (MarkedBlocks() > 0 && !deadline.hasExpired()) QCoreApplication::processEvents();
  EXPECT_EQ(MarkedBlocks(), 0);
}

TEST_F(MissingScriptsInAnEditor, MuchTextIsLookedAtAgainBetweenEvents) {
  const QString line = Letter(true) + '\n';
  InstalledScripts installed;
  const MissingScripts missing(*editor.document(), installed);
  editor.setPlainText(line.repeated(20'000));
  int turns = 0;
  const QDeadlineTimer deadline(60'000);
  while (IsMarked(editor.document()->findBlockByNumber(19'999)) && !deadline.hasExpired()) {
    QCoreApplication::processEvents();
    if (!IsMarked()) ++turns;
  }
  EXPECT_GT(turns, 1);
  EXPECT_EQ(MarkedBlocks(), 0);
}

}  // namespace
}  // namespace verlume::qt
