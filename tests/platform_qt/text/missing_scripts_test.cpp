#include "platform_qt/text/missing_scripts.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QFontDatabase>
#include <QPlainTextEdit>
#include <QTextBlock>

#include "platform_qt/fonts/installed_scripts.h"

namespace verlume::qt {
namespace {

void LookAtAllFonts() {
  while (!InstalledScripts::Instance().IsComplete()) InstalledScripts::Instance().RunTurn();
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
