#include <gtest/gtest.h>

#include <QAccessible>
#include <QTest>

#include "platform_qt/controls/controls_label.h"
#include "platform_qt/fonts/installed_scripts.h"

namespace verlume::qt {
namespace {

// The first letter of a script that the fonts here show, or do not show.
QString LetterShown(bool isShown) {
  InstalledScripts& installed = InstalledScripts::Instance();
  while (!installed.IsComplete()) installed.RunTurn();
  for (char32_t c = 0x0530; c < 0x20000; ++c) {
    if (QChar::isLetter(c) && installed.Shows(QChar::script(c)) == isShown) {
      return QString::fromUcs4(&c, 1);
    }
  }
  return {};
}

QImage PictureOf(const QString& text) {
  ElidedLabel label(nullptr);
  label.resize(160, 30);
  label.setText(text);
  return label.grab().toImage();
}

TEST(LabelLetters, ThoseThatNoFontShowsAreBoxes) {
  const QString letter = LetterShown(false);
  ASSERT_FALSE(letter.isEmpty()) << "the fonts here show everything";
  EXPECT_EQ(PictureOf("Bob " + letter), PictureOf("Bob " + QString(letter.size(), u'\u25A1')));
}

TEST(LabelLetters, ThoseThatAFontShowsAreDrawn) {
  const QString letter = LetterShown(true);
  ASSERT_FALSE(letter.isEmpty()) << "the tests need fonts-dejavu-core";
  EXPECT_NE(PictureOf("Bob " + letter), PictureOf(QStringLiteral("Bob \u25A1")));
}

TEST(LabelLetters, AreReadAsTheyAre) {
  const QString text = "Bob " + LetterShown(false);
  ElidedLabel label(nullptr);
  label.setText(text);
  QAccessibleInterface* read = QAccessible::queryAccessibleInterface(&label);
  ASSERT_NE(read, nullptr);
  EXPECT_EQ(read->text(QAccessible::Name), text);
}

}  // namespace
}  // namespace verlume::qt
