#include "shell/attention_menu.h"

#include "shell/shell_fixture.h"

namespace verlume {
namespace {

class AttentionSwitchesTest : public ShellTest {
 protected:
  AttentionSwitchesTest() {
    window.mnuAttentionLines.checked = true;
    window.mnuAttentionCount.checked = true;
  }
  std::u16string Stored(std::u16string_view key) {
    return settings.ReadSetting(u"General", key, u"none", 20);
  }

  AttentionSwitches switches{state, platform, errors, settings};
};

TEST_F(AttentionSwitchesTest, EachEntrySwitchesItsOwnSetting) {
  switches.mnuAttentionText_Click();
  EXPECT_TRUE(state.NotifyText);
  EXPECT_TRUE(window.mnuAttentionText.checked);
  EXPECT_EQ(Stored(u"NotifyText"), u"True");
  switches.mnuAttentionText_Click();
  EXPECT_EQ(Stored(u"NotifyText"), u"False");

  switches.mnuAttentionSound_Click();
  EXPECT_TRUE(state.NotifySound);
  EXPECT_TRUE(window.mnuAttentionSound.checked);
  EXPECT_EQ(Stored(u"NotifySound"), u"True");

  switches.mnuAttentionCount_Click();
  EXPECT_FALSE(state.NotifyCount);
  EXPECT_FALSE(window.mnuAttentionCount.checked);
  EXPECT_EQ(Stored(u"NotifyCount"), u"False");

  switches.mnuAttentionLines_Click();
  EXPECT_FALSE(state.NotifyLines);
  EXPECT_FALSE(window.mnuAttentionLines.checked);
  EXPECT_EQ(Stored(u"NotifyLines"), u"False");
  EXPECT_TRUE(window.rtbCommands.HasFocus());
}

TEST_F(AttentionSwitchesTest, TheTextIsGreyWithoutNotifications) {
  switches.ShowState();
  EXPECT_TRUE(window.mnuAttentionText.enabled);
  switches.mnuAttentionLines_Click();
  EXPECT_FALSE(window.mnuAttentionText.enabled);
  EXPECT_TRUE(window.mnuAttentionLines.enabled);
}

TEST_F(AttentionSwitchesTest, WhatTheDesktopCannotDoIsGrey) {
  fake.attention.canNotify = false;
  switches.ShowState();
  EXPECT_FALSE(window.mnuAttentionLines.enabled);
  EXPECT_FALSE(window.mnuAttentionText.enabled);
  EXPECT_TRUE(window.mnuAttentionSound.enabled);
  EXPECT_TRUE(window.mnuAttentionCount.enabled);
}

TEST_F(AttentionSwitchesTest, SwitchedOffTakesAwayWhatIsShown) {
  fake.attention.SetCount(3);
  fake.attention.Notify({});
  switches.mnuAttentionLines_Click();
  switches.mnuAttentionCount_Click();
  EXPECT_FALSE(fake.attention.shown);
  EXPECT_EQ(fake.attention.count, 0);
}

}  // namespace
}  // namespace verlume
