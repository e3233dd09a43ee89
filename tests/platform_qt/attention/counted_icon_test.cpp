#include "platform_qt/attention/counted_icon.h"

#include <gtest/gtest.h>

#include <QPixmap>

namespace verlume::qt {
namespace {

class CountedIconTest : public testing::Test {
 protected:
  CountedIconTest() {
    for (const int side : {16, 32, 256}) {
      QPixmap picture(side, side);
      picture.fill(Qt::blue);
      icon.addPixmap(picture);
    }
  }
  QImage With(int count, int side = 32) {
    return CountedIcon(icon, count).pixmap(QSize(side, side), 1.0).toImage();
  }

  QIcon icon;
};

TEST_F(CountedIconTest, NoNumberLeavesTheIconAsItIs) {
  EXPECT_EQ(With(0), icon.pixmap(QSize(32, 32), 1.0).toImage());
  EXPECT_EQ(With(-1), With(0));
}

TEST_F(CountedIconTest, EveryNumberLooksDifferentInEverySize) {
  for (const int side : {16, 32, 256}) {
    EXPECT_EQ(With(1, side).size(), QSize(side, side));
    EXPECT_NE(With(1, side), With(0, side)) << side;
    EXPECT_NE(With(1, side), With(7, side)) << side;
    EXPECT_NE(With(7, side), With(77, side)) << side;
  }
}

TEST_F(CountedIconTest, AboveNinetyNineItStaysTheSame) {
  EXPECT_EQ(With(100), With(100'000));
  EXPECT_NE(With(99), With(100));
}

TEST_F(CountedIconTest, TheBadgeLeavesTheTopOfTheIconAlone) {
  const QImage picture = With(100'000);
  for (int x = 0; x < 32; ++x) EXPECT_EQ(picture.pixelColor(x, 10), QColor(Qt::blue));
}

}  // namespace
}  // namespace verlume::qt
