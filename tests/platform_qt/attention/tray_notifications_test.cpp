#include "platform_qt/attention/tray_notifications.h"

#include <gtest/gtest.h>

namespace verlume::qt {
namespace {

class TrayNotificationsTest : public testing::Test {
 protected:
  TrayNotificationsTest() {
    QPixmap picture(32, 32);
    picture.fill(Qt::blue);
    tray = std::make_unique<TrayNotifications>("Verlume", QIcon(picture));
    tray->onClicked = [this] { ++clicks; };
  }
  // As the system tells of it.
  void Click() { emit const_cast<QSystemTrayIcon&>(tray->Icon()).messageClicked(); }

  std::unique_ptr<TrayNotifications> tray;
  int clicks = 0;
};

TEST_F(TrayNotificationsTest, TheIconIsThereFromTheNotificationUntilItIsWithdrawn) {
  EXPECT_FALSE(tray->Icon().isVisible());
  tray->Show({u"Bob", u"one", false});
  EXPECT_TRUE(tray->Icon().isVisible());
  EXPECT_EQ(tray->Icon().toolTip(), "Verlume");
  tray->Show({u"Bob", u"two", true});
  EXPECT_TRUE(tray->Icon().isVisible());
  tray->Withdraw();
  EXPECT_FALSE(tray->Icon().isVisible());
  tray->Withdraw();
  EXPECT_EQ(clicks, 0);
}

TEST_F(TrayNotificationsTest, AClickIsToldOnceAndTakesTheIconAway) {
  tray->Show({u"Bob", u"one", false});
  Click();
  EXPECT_EQ(clicks, 1);
  EXPECT_FALSE(tray->Icon().isVisible());
}

TEST_F(TrayNotificationsTest, NobodyNeedsToListen) {
  tray->onClicked = nullptr;
  tray->Show({u"Bob", u"", false});
  Click();
  EXPECT_FALSE(tray->Icon().isVisible());
}

TEST(CutForTrayTest, WhatFitsStays) {
  EXPECT_EQ(CutForTray("", 5), "");
  EXPECT_EQ(CutForTray("Ωμέγα", 5), "Ωμέγα");
  EXPECT_EQ(CutForTray("<b>&amp;", 63), "<b>&amp;") << "it is no markup";
}

TEST(CutForTrayTest, WhatIsTooLongEndsWithDotsAndNoHalfCharacter) {
  EXPECT_EQ(CutForTray("abcdef", 5), "abcd…");
  EXPECT_EQ(CutForTray(QString::fromUtf8("abc😀def"), 5), "abc…");
  EXPECT_EQ(CutForTray(QString::fromUtf8("ab😀def"), 5), QString::fromUtf8("ab😀…"));
}

}  // namespace
}  // namespace verlume::qt
