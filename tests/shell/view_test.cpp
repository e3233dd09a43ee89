#include "shell/view.h"

#include "shell/shell_fixture.h"

namespace verlume {
namespace {

class ViewTest : public ShellTest {
 protected:
  View view{platform, errors};
};

TEST_F(ViewTest, StatusPanelIsHiddenAndShown) {
  view.ShowState();
  EXPECT_TRUE(window.mnuViewStatusPanel.checked);
  view.mnuViewStatusPanel_Click();
  EXPECT_FALSE(window.fraPanel.visible);
  EXPECT_FALSE(window.mnuViewStatusPanel.checked);
  view.mnuViewStatusPanel_Click();
  EXPECT_TRUE(window.fraPanel.visible);
  EXPECT_TRUE(window.mnuViewStatusPanel.checked);
}

TEST_F(ViewTest, BothPanesAreZoomed) {
  view.mnuViewZoomIn_Click();
  EXPECT_EQ(window.rtbData.zoom, 110);
  EXPECT_EQ(window.rtbCommands.zoom, 110);
  view.mnuViewZoomOut_Click();
  view.mnuViewZoomOut_Click();
  EXPECT_EQ(window.rtbData.zoom, 90);
  view.mnuViewZoomReset_Click();
  EXPECT_EQ(window.rtbData.zoom, kUsualZoom);
  view.ZoomBy(3);
  EXPECT_EQ(window.rtbCommands.zoom, 150);
}

TEST_F(ViewTest, ZoomEndsAtItsLimits) {
  view.ZoomBy(100);
  EXPECT_EQ(window.rtbData.zoom, kGreatestZoom);
  EXPECT_FALSE(window.mnuViewZoomIn.enabled);
  EXPECT_TRUE(window.mnuViewZoomOut.enabled);
  view.ZoomBy(-100);
  EXPECT_EQ(window.rtbData.zoom, kLeastZoom);
  EXPECT_TRUE(window.mnuViewZoomIn.enabled);
  EXPECT_FALSE(window.mnuViewZoomOut.enabled);
}

TEST_F(ViewTest, UsualSizeIsGreyWhileItIsInForce) {
  view.ShowState();
  EXPECT_FALSE(window.mnuViewZoomReset.enabled);
  view.mnuViewZoomIn_Click();
  EXPECT_TRUE(window.mnuViewZoomReset.enabled);
}

TEST_F(ViewTest, ARememberedZoomBetweenTheStepsGoesToTheNext) {
  window.rtbData.zoom = 120;
  view.mnuViewZoomOut_Click();
  EXPECT_EQ(window.rtbData.zoom, 110);
}

}  // namespace
}  // namespace verlume
