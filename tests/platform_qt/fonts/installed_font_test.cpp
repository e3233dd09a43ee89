#include "platform_qt/fonts/installed_font.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QFontDatabase>

namespace verlume::qt {
namespace {

class InstalledFontTest : public testing::Test {
 protected:
  ~InstalledFontTest() override { QApplication::setFont(before_); }
  static QFont Used(const QFont& font) {
    QApplication::setFont(font);
    UseInstalledFont();
    return QApplication::font();
  }

 private:
  const QFont before_ = QApplication::font();
};

TEST_F(InstalledFontTest, OneThatIsNotInstalledGivesWayToOneThatIs) {
  QFont missing(QStringLiteral("No Such Font"), 13);
  missing.setItalic(true);
  const QFont used = Used(missing);
  EXPECT_FALSE(QFontDatabase::styles(used.family()).isEmpty()) << used.family().toStdString();
  EXPECT_EQ(used.pointSize(), 13);
  EXPECT_TRUE(used.italic());
}

TEST_F(InstalledFontTest, AnInstalledOneStays) {
  EXPECT_EQ(Used(QFont(QStringLiteral("DejaVu Serif"), 11)).family(),
            QStringLiteral("DejaVu Serif"));
}

}  // namespace
}  // namespace verlume::qt
