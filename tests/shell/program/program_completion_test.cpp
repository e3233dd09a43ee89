// The list of completions in a whole program in memory: its events and its setting.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/program_copy.h"

namespace verlume {
namespace {

using testing::ElementsAre;

class ProgramCompletion : public testing::Test {
 protected:
  fake::FakeNetwork network;
  fake::ProgramCopy ann{network, u"Ann"};
  fake::FakeMainWindow& window = ann.platform.window;
};

TEST_F(ProgramCompletion, EventsOfThePaneAndTheListAreBound) {
  ann.platform.files.files[u"/macros/wave.rtf"] = "{\\rtf1 waves}";
  window.rtbCommands.Type(u"/wa");
  EXPECT_TRUE(window.fraCompletions.visible);
  EXPECT_THAT(window.lstCompletions.items,
              ElementsAre(u"/WAIT\t[port]\twaits for a call", u"/wave\t\tmacro"));

  window.rtbCommands.PressKey(key_code::kDown);
  window.rtbCommands.PressKey(key_code::kDown);
  EXPECT_EQ(window.rtbCommands.Text(), u"/wave");
  window.rtbCommands.onLostFocus();
  EXPECT_FALSE(window.fraCompletions.visible);

  window.rtbCommands.SetText(u"/wa");
  window.lstCompletions.Choose(1);
  window.rtbCommands.Type(u"\r");
  EXPECT_EQ(ann.Dialogue(), u"<Ann>waves");
}

TEST_F(ProgramCompletion, TheHistoryKeepsItsKeysWhileTheListIsOpen) {
  ann.Enter(u"hello");
  window.rtbCommands.Type(u"/wa");
  EXPECT_FALSE(window.rtbCommands.PressKey(key_code::kPageUp));
  EXPECT_EQ(window.rtbCommands.Text(), u"hello");
  window.rtbCommands.SetText(u"/wa");
  EXPECT_FALSE(window.rtbCommands.PressKey(key_code::kTab));
  EXPECT_EQ(window.rtbCommands.Text(), u"/wa");
  EXPECT_FALSE(window.rtbCommands.PressKey(key_code::kEscape));
  EXPECT_EQ(window.rtbCommands.Text(), u"");
}

TEST_F(ProgramCompletion, AMacroThatIsASlashWordLeavesNoListBehind) {
  ann.platform.files.files[u"/macros/slash.rtf"] = "{\\rtf1 /wa}";
  ann.Enter(u"/slash");
  EXPECT_EQ(ann.Dialogue(), u"<Ann>/wa");
  EXPECT_FALSE(window.fraCompletions.visible);
}

TEST_F(ProgramCompletion, StartWritesNoSettingOfIt) {
  EXPECT_TRUE(window.mnuToolsCompletions.checked);
  EXPECT_EQ(ann.Settings().find(u"Suggestcommands"), std::u16string::npos);
}

TEST_F(ProgramCompletion, TheEntryIsKeptForTheNextStart) {
  window.mnuToolsCompletions.Click();
  window.rtbCommands.Type(u"/wa");
  EXPECT_FALSE(window.fraCompletions.visible);
  EXPECT_NE(ann.Settings().find(u"Suggestcommands=False"), std::u16string::npos);

  fake::ProgramCopy again(network, ann.Settings(), fake::ProgramCopy::SettingsFile{});
  EXPECT_FALSE(again.program.State().SuggestCommands);
  EXPECT_FALSE(again.platform.window.mnuToolsCompletions.checked);
}

}  // namespace
}  // namespace verlume
