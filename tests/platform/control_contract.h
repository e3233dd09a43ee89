// The contract that the controls and windows of every platform keep. A suite is made from a maker:
// a default constructible class with label(), checkBox(), button(), entry(), menu(), lamp(),
// picture(), window(), CloseByUser(), which does what the window's close box does, and
// WhileModal(act), which runs the act as soon as the window is shown modally.
#pragma once

#include <gtest/gtest.h>

#include <vector>

#include "platform/control.h"
#include "platform/window.h"

namespace verlume {

template <class Maker>
class ControlContract : public testing::Test {
 protected:
  Maker maker;
};

TYPED_TEST_SUITE_P(ControlContract);

TYPED_TEST_P(ControlContract, LabelKeepsItsCaptionAsGiven) {
  Label& label = this->maker.label();
  label.SetCaption(u"<b>R&D</b> && \\par");
  EXPECT_EQ(label.Caption(), u"<b>R&D</b> && \\par");
  label.SetCaption(u"");
  EXPECT_EQ(label.Caption(), u"");
}

TYPED_TEST_P(ControlContract, LabelTagIsApartFromItsCaption) {
  Label& label = this->maker.label();
  EXPECT_EQ(label.Tag(), u"");
  label.SetCaption(u"1,234");
  label.SetTag(u"1234");
  EXPECT_EQ(label.Caption(), u"1,234");
  EXPECT_EQ(label.Tag(), u"1234");
}

TYPED_TEST_P(ControlContract, ToolTipIsKeptAsGiven) {
  Label& label = this->maker.label();
  label.SetToolTip(u"Red=Idle & <i>more</i>");
  EXPECT_EQ(label.ToolTip(), u"Red=Idle & <i>more</i>");
}

TYPED_TEST_P(ControlContract, CheckBoxRaisesClickWhenItsValueChanges) {
  CheckBox& box = this->maker.checkBox();
  std::vector<int> values;
  box.onClick = [&] { values.push_back(box.Value()); };
  box.SetValue(1);
  box.SetValue(1);
  box.SetValue(0);
  box.SetValue(0);
  EXPECT_EQ(values, (std::vector<int>{1, 0}));
}

TYPED_TEST_P(ControlContract, CheckBoxWithoutHandlerChangesAllTheSame) {
  CheckBox& box = this->maker.checkBox();
  EXPECT_EQ(box.Value(), 0);
  box.SetValue(1);
  EXPECT_EQ(box.Value(), 1);
}

TYPED_TEST_P(ControlContract, ButtonKeepsItsCaptionAsGiven) {
  Button& button = this->maker.button();
  button.SetCaption(u"Save & <b>close</b>...");
  EXPECT_EQ(button.Caption(), u"Save & <b>close</b>...");
}

TYPED_TEST_P(ControlContract, DisabledButtonIgnoresClicks) {
  Button& button = this->maker.button();
  int clicks = 0;
  button.onClick = [&] { ++clicks; };
  EXPECT_TRUE(button.Enabled());
  button.Click();
  EXPECT_EQ(clicks, 1);
  button.SetEnabled(false);
  EXPECT_FALSE(button.Enabled());
  button.Click();
  EXPECT_EQ(clicks, 1);
  button.SetEnabled(true);
  button.Click();
  EXPECT_EQ(clicks, 2);
}

TYPED_TEST_P(ControlContract, MenuEntryIsTickedByTheProgramAlone) {
  MenuEntry& entry = this->maker.entry();
  int clicks = 0;
  entry.onClick = [&] { ++clicks; };
  EXPECT_FALSE(entry.Checked());
  entry.Click();
  EXPECT_EQ(clicks, 1);
  EXPECT_FALSE(entry.Checked());
  entry.SetChecked(true);
  EXPECT_TRUE(entry.Checked());
  EXPECT_EQ(clicks, 1) << "setting the tick is no click";
  entry.Click();
  EXPECT_TRUE(entry.Checked());
  entry.SetChecked(false);
  EXPECT_FALSE(entry.Checked());
}

TYPED_TEST_P(ControlContract, MenusKeepTheirCaptions) {
  this->maker.entry().SetCaption(u"Save & close");
  this->maker.menu().SetCaption(u"Αρχείο && <b>");
  EXPECT_EQ(this->maker.entry().Caption(), u"Save & close");
  EXPECT_EQ(this->maker.menu().Caption(), u"Αρχείο && <b>");
}

TYPED_TEST_P(ControlContract, MenuEntryKeepsItsToolTipAsGiven) {
  MenuEntry& entry = this->maker.entry();
  entry.SetCaption(u"Always on top");
  EXPECT_EQ(entry.ToolTip(), u"");
  entry.SetToolTip(u"R&D <b>");
  EXPECT_EQ(entry.ToolTip(), u"R&D <b>");
}

TYPED_TEST_P(ControlContract, LampKeepsItsTwoColors) {
  Lamp& lamp = this->maker.lamp();
  lamp.SetFillColor(65535);
  lamp.SetBorderColor(255);
  EXPECT_EQ(lamp.FillColor(), 65535);
  EXPECT_EQ(lamp.BorderColor(), 255);
}

TYPED_TEST_P(ControlContract, PictureHasAHeight) {
  EXPECT_GT(this->maker.picture().Height(), 0);
}

TYPED_TEST_P(ControlContract, WindowKeepsItsTitle) {
  this->maker.window().SetTitle(u"Verlume & Ψ");
  EXPECT_EQ(this->maker.window().Title(), u"Verlume & Ψ");
}

TYPED_TEST_P(ControlContract, UnloadAsksAndUnloadsOnce) {
  Window& window = this->maker.window();
  std::vector<UnloadMode> asked;
  int unloads = 0;
  window.onQueryUnload = [&](bool&, UnloadMode mode) { asked.push_back(mode); };
  window.onUnload = [&] { ++unloads; };
  window.Show();
  window.Unload();
  window.Unload();
  EXPECT_EQ(asked, std::vector{UnloadMode::Code});
  EXPECT_EQ(unloads, 1);
}

TYPED_TEST_P(ControlContract, CloseByUserIsToldFromOneByCode) {
  Window& window = this->maker.window();
  std::vector<UnloadMode> asked;
  int unloads = 0;
  window.onQueryUnload = [&](bool&, UnloadMode mode) { asked.push_back(mode); };
  window.onUnload = [&] { ++unloads; };
  window.Show();
  this->maker.CloseByUser();
  EXPECT_EQ(asked, std::vector{UnloadMode::User});
  EXPECT_EQ(unloads, 1);
}

TYPED_TEST_P(ControlContract, RefusedCloseLeavesTheWindow) {
  Window& window = this->maker.window();
  int unloads = 0;
  bool refuse = true;
  window.onQueryUnload = [&](bool& cancel, UnloadMode) { cancel = refuse; };
  window.onUnload = [&] { ++unloads; };
  window.Show();
  this->maker.CloseByUser();
  window.Unload();
  EXPECT_EQ(unloads, 0);
  refuse = false;
  this->maker.CloseByUser();
  EXPECT_EQ(unloads, 1);
}

TYPED_TEST_P(ControlContract, UnloadWithinTheCloseQuestionUnloadsOnce) {
  Window& window = this->maker.window();
  std::vector<UnloadMode> asked;
  int unloads = 0;
  window.onQueryUnload = [&](bool&, UnloadMode mode) {
    asked.push_back(mode);
    if (mode == UnloadMode::User) window.Unload();
  };
  window.onUnload = [&] { ++unloads; };
  window.Show();
  this->maker.CloseByUser();
  EXPECT_EQ(asked, (std::vector{UnloadMode::User, UnloadMode::Code}));
  EXPECT_EQ(unloads, 1);
}

TYPED_TEST_P(ControlContract, UnloadWithinARefusedCloseQuestionStands) {
  Window& window = this->maker.window();
  int unloads = 0;
  window.onQueryUnload = [&](bool& cancel, UnloadMode mode) {
    if (mode != UnloadMode::User) return;
    window.Unload();
    cancel = true;
  };
  window.onUnload = [&] { ++unloads; };
  window.Show();
  this->maker.CloseByUser();
  EXPECT_EQ(unloads, 1);
}

TYPED_TEST_P(ControlContract, ShowModalReturnsOnceTheWindowIsUnloaded) {
  Window& window = this->maker.window();
  std::vector<const char*> order;
  window.onUnload = [&] { order.push_back("unload"); };
  this->maker.WhileModal([&] {
    order.push_back("shown");
    window.Unload();
  });
  window.ShowModal();
  order.push_back("returned");
  EXPECT_EQ(order, (std::vector{"shown", "unload", "returned"}));
}

TYPED_TEST_P(ControlContract, ModalWindowClosedByTheUserCanBeShownAgain) {
  Window& window = this->maker.window();
  std::vector<UnloadMode> asked;
  int unloads = 0;
  window.onQueryUnload = [&](bool&, UnloadMode mode) { asked.push_back(mode); };
  window.onUnload = [&] { ++unloads; };
  for (int time = 1; time <= 2; ++time) {
    this->maker.WhileModal([this] { this->maker.CloseByUser(); });
    window.ShowModal();
    EXPECT_EQ(unloads, time);
  }
  EXPECT_EQ(asked, (std::vector{UnloadMode::User, UnloadMode::User}));
}

TYPED_TEST_P(ControlContract, ModalWindowThatRefusesTheUserGoesByCode) {
  Window& window = this->maker.window();
  int unloads = 0;
  window.onQueryUnload = [](bool& cancel, UnloadMode mode) { cancel = mode == UnloadMode::User; };
  window.onUnload = [&] { ++unloads; };
  this->maker.WhileModal([&] {
    this->maker.CloseByUser();
    EXPECT_EQ(unloads, 0);
    window.Unload();
  });
  window.ShowModal();
  EXPECT_EQ(unloads, 1);
}

REGISTER_TYPED_TEST_SUITE_P(
    ControlContract, LabelKeepsItsCaptionAsGiven, LabelTagIsApartFromItsCaption,
    ToolTipIsKeptAsGiven, CheckBoxRaisesClickWhenItsValueChanges,
    CheckBoxWithoutHandlerChangesAllTheSame, ButtonKeepsItsCaptionAsGiven,
    DisabledButtonIgnoresClicks, MenuEntryIsTickedByTheProgramAlone, MenusKeepTheirCaptions,
    MenuEntryKeepsItsToolTipAsGiven, LampKeepsItsTwoColors, PictureHasAHeight, WindowKeepsItsTitle,
    UnloadAsksAndUnloadsOnce, CloseByUserIsToldFromOneByCode, RefusedCloseLeavesTheWindow,
    UnloadWithinTheCloseQuestionUnloadsOnce, UnloadWithinARefusedCloseQuestionStands,
    ShowModalReturnsOnceTheWindowIsUnloaded, ModalWindowClosedByTheUserCanBeShownAgain,
    ModalWindowThatRefusesTheUserGoesByCode);

}  // namespace verlume
