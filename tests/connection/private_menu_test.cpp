#include "connection/private_menu.h"

#include <gtest/gtest.h>

#include "support/program_copy.h"

namespace verlume {
namespace {

using fake::ProgramCopy;

class PrivateMenuTest : public testing::Test {
 protected:
  std::string Ticks(const ProgramCopy& side) const {
    const fake::FakeMainWindow& window = side.platform.window;
    std::string ticks;
    for (const fake::FakeMenuEntry* entry :
         {&window.mnuPrivateWhenPossible, &window.mnuPrivateOnly, &window.mnuPrivateNever}) {
      ticks += entry->checked ? 'x' : '-';
    }
    return ticks;
  }
  bool SettingsHave(std::u16string_view text) const {
    return ann.Settings().find(text) != std::u16string::npos;
  }

  fake::FakeNetwork network;
  ProgramCopy ann{network, u"Ann"};
};

TEST_F(PrivateMenuTest, AtFirstConversationsArePrivateWhenPossible) {
  EXPECT_EQ(Ticks(ann), "x--");
  EXPECT_EQ(ann.Privacy().offer, PrivacyOffer::WhenPossible);
  EXPECT_EQ(ann.Privacy().ownName, u"Ann");
}

TEST_F(PrivateMenuTest, AChoiceIsOfferedTickedAndSaved) {
  ann.platform.window.mnuPrivateOnly.Click();
  EXPECT_EQ(Ticks(ann), "-x-");
  EXPECT_EQ(ann.Privacy().offer, PrivacyOffer::Only);
  EXPECT_TRUE(SettingsHave(u"PrivateConversations=Only"));
  ann.platform.window.mnuPrivateNever.Click();
  EXPECT_EQ(Ticks(ann), "--x");
  EXPECT_EQ(ann.Privacy().offer, PrivacyOffer::Never);
  ann.platform.window.mnuPrivateWhenPossible.Click();
  EXPECT_EQ(Ticks(ann), "x--");
  EXPECT_TRUE(SettingsHave(u"PrivateConversations=WhenPossible"));
}

TEST_F(PrivateMenuTest, TheChoiceIsReadAtTheNextStart) {
  const auto copyWith = [this](std::u16string_view value) {
    const std::u16string settings =
        std::u16string(u"[General]\r\nMacrosfolder=/macros/\r\nPrivateConversations=")
            .append(value);
    ProgramCopy copy(network, settings, ProgramCopy::SettingsFile{});
    return Ticks(copy) + (copy.Privacy().offer == PrivacyOffer::Never ? " never" : "");
  };
  EXPECT_EQ(copyWith(u"only"), "-x-");
  EXPECT_EQ(copyWith(u"NEVER"), "--x never");
  EXPECT_EQ(copyWith(u"sometimes"), "x--") << "counts as missing";
}

TEST_F(PrivateMenuTest, WhoWaitsHasAKeyFromThenOn) {
  ann.platform.window.mnuPrivateNever.Click();
  ann.Enter(u"/WAIT 4000");
  EXPECT_FALSE(ann.Privacy().OwnFingerprint());
  ann.platform.window.mnuPrivateOnly.Click();
  EXPECT_TRUE(ann.Privacy().OwnFingerprint());
}

}  // namespace
}  // namespace verlume
