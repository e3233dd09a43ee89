#include "platform_qt/text/text_format.h"

#include <gtest/gtest.h>

#include <QFontDatabase>
#include <QFontInfo>
#include <string>

#include "platform_qt/convert/text.h"

namespace verlume::qt {
namespace {

QTextCharFormat InFont(std::u16string_view name) {
  SelectionFormat format;
  format.fontName = name;
  return ToQt(format);
}

TEST(QtTextFormat, AFontKeepsItsNameWhateverFontShowsIt) {
  const QTextCharFormat format = InFont(u"No Such Font");
  EXPECT_EQ(FromQt(format).fontName, u"No Such Font");
  EXPECT_EQ(format.fontFamilies().toStringList().value(0),
            QFontInfo(QFont("No Such Font")).family());
}

TEST(QtTextFormat, AMissingFontIsShownInAnother) {
  QTextCharFormat format = InFont(u"No Such Font");
  format.merge(InFont(u"Arial"));
  EXPECT_EQ(FromQt(format).fontName, u"Arial");
}

TEST(QtTextFormat, AFontWithoutANameIsTheDefaultFont) {
  EXPECT_EQ(FromQt(InFont(u"")).fontName, kDefaultFontName);
  EXPECT_EQ(FromQt(QTextCharFormat()).fontName, kDefaultFontName);
}

TEST(QtTextFormat, AnInstalledFontIsFoundHoweverItIsSpelled) {
  const QString family = QFontDatabase::families().first();
  const QString plain = family.left(family.indexOf(u'[')).trimmed();
  for (const QString& name : {plain, plain.toUpper(), plain + " [no such foundry]"}) {
    const QTextCharFormat format = InFont(FromQt(name));
    EXPECT_EQ(FromQt(format).fontName, FromQt(name));
    EXPECT_EQ(format.fontFamilies().toStringList().value(0), plain);
  }
}

TEST(QtTextFormat, ThousandsOfMissingFontsKeepTheirNamesAndAreShownInFewFonts) {
  QSet<QString> families;
  for (int i = 0; i < 5'000; ++i) {
    const QString name = QStringLiteral("No Such Font %1").arg(i);
    const QTextCharFormat format = InFont(FromQt(name));
    EXPECT_EQ(FromQt(format).fontName, FromQt(name));
    families.insert(format.fontFamilies().toStringList().value(0));
  }
  EXPECT_LE(families.size(), 3);
}

}  // namespace
}  // namespace verlume::qt
