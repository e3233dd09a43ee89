#include "macros/macro_editor_states.h"

#include <gtest/gtest.h>

#include "platform_fake/fake_macro_window.h"

namespace verlume {
namespace {

class MacroEditorStatesTest : public testing::Test {
 protected:
  // The first letters of the enabled buttons' captions, and a dash for each disabled one.
  std::string Buttons(MacroEditorState state) {
    EnterState(window.frmMacros, state);
    std::string on;
    for (const auto& [button, letter] :
         {std::pair{&window.cmdAdd, 'A'}, std::pair{&window.cmdEdit, 'E'},
          std::pair{&window.cmdSave, 'S'}, std::pair{&window.cmdSaveAs, 's'},
          std::pair{&window.cmdCancel, 'C'}, std::pair{&window.cmdDelete, 'D'},
          std::pair{&window.cmdRun, 'R'}, std::pair{&window.cmdClose, 'c'}}) {
      on += button->enabled ? letter : '-';
    }
    return on;
  }

  fake::FakeFileSystem files;
  fake::FakeMacroWindow window{files};
};

TEST_F(MacroEditorStatesTest, EachStateHasItsButtons) {
  EXPECT_EQ(Buttons(MacroEditorState::Empty), "A------c");
  EXPECT_EQ(Buttons(MacroEditorState::Showing), "AE---DRc");
  EXPECT_EQ(Buttons(MacroEditorState::New), "--S-C---");
  EXPECT_EQ(Buttons(MacroEditorState::Editing), "--SsC---");
}

TEST_F(MacroEditorStatesTest, TextIsReadOnlyWhileMacrosAreLookedThrough) {
  for (const MacroEditorState state : {MacroEditorState::Empty, MacroEditorState::Showing}) {
    EnterState(window.frmMacros, state);
    EXPECT_TRUE(window.rtbMacroText.locked);
    EXPECT_EQ(window.rtbMacroText.tag, u"no");
  }
  for (const MacroEditorState state : {MacroEditorState::New, MacroEditorState::Editing}) {
    EnterState(window.frmMacros, state);
    EXPECT_FALSE(window.rtbMacroText.locked);
    EXPECT_EQ(window.rtbMacroText.tag, u"");
  }
}

TEST_F(MacroEditorStatesTest, ListIsPinnedWhileAMacroIsWrittenAndWhileItIsEmpty) {
  EnterState(window.frmMacros, MacroEditorState::Empty);
  EXPECT_EQ(window.lstMacroNames.tag, u"no");
  window.lstMacroNames.Append(u"one");
  const std::pair<MacroEditorState, std::u16string> expected[] = {
      {MacroEditorState::Empty, u""},
      {MacroEditorState::Showing, u""},
      {MacroEditorState::New, u"no"},
      {MacroEditorState::Editing, u"no"}};
  for (const auto& [state, tag] : expected) {
    EnterState(window.frmMacros, state);
    EXPECT_EQ(window.lstMacroNames.tag, tag);
  }
}

TEST_F(MacroEditorStatesTest, MarkerSaysNoInAnyLetterCase) {
  for (const char16_t* marker : {u"no", u"No", u"nO", u"NO"}) EXPECT_TRUE(SaysNo(marker));
  for (const char16_t* marker : {u"", u"n", u"yes", u"nope", u"on"}) EXPECT_FALSE(SaysNo(marker));
}

}  // namespace
}  // namespace verlume
