// When the list is open, and what it contains.
#include "commands/completion.h"

#include "commands/completion_fixture.h"

namespace verlume {
namespace {

using testing::ElementsAre;

using Completions = fake::CompletionSide;

TEST_F(Completions, OpenWithASlashWord) {
  EXPECT_FALSE(IsOpen());
  pane.Type(u"/");
  EXPECT_TRUE(IsOpen());
  EXPECT_EQ(Rows().size(), CommandTable().size());
  EXPECT_EQ(Selected(), -1);
}

TEST_F(Completions, FollowWhatIsTyped) {
  pane.Type(u"/c");
  EXPECT_EQ(Rows().front(), u"/CALL");
  pane.Type(u"l");
  EXPECT_THAT(Rows(),
              ElementsAre(u"/CLOSE", u"/CLEARDIALOGUE", u"/CLEARCOMMANDS", u"/CLEARHISTORY"));
  pane.SetText(u"/ca");
  EXPECT_THAT(Rows(), ElementsAre(u"/CALL", u"/CANCEL"));
}

TEST_F(Completions, StayAwayFromAnyOtherLine) {
  for (const auto line : {u"hello", u" /wa", u"and/or", u"/call me"}) {
    pane.SetText(line);
    EXPECT_FALSE(IsOpen());
  }
}

TEST_F(Completions, StayAwayFromALineThatIsTooLongForAWord) {
  const std::u16string name(256, u'a');
  MakeMacro(name);
  MakeMacro(name + u"a");
  pane.SetText(u"/" + name.substr(1));
  EXPECT_TRUE(IsOpen());
  pane.SetText(u"/" + name);
  EXPECT_FALSE(IsOpen());
}

TEST_F(Completions, CloseWhereNothingMatches) {
  pane.Type(u"/wax");
  EXPECT_FALSE(IsOpen());
  pane.SetText(u"/wa");
  EXPECT_TRUE(IsOpen());
}

TEST_F(Completions, CloseWhereWhatIsTypedIsTheOnlyMatch) {
  pane.Type(u"/wai");
  EXPECT_TRUE(IsOpen());
  pane.Type(u"t");
  EXPECT_FALSE(IsOpen());
}

TEST_F(Completions, StayWhereTheTypedWordLacksAnAccent) {
  pane.Type(u"/κληση");
  EXPECT_THAT(Rows(), ElementsAre(u"/ΚΛΉΣΗ"));
  EXPECT_TRUE(IsOpen());
}

TEST_F(Completions, StayWhereTheTypedCommandHasLongerOnesBesideIt) {
  pane.Type(u"/font");
  EXPECT_THAT(Rows(), ElementsAre(u"/FONTCOLOR", u"/FONT"));
  EXPECT_TRUE(IsOpen());
}

TEST_F(Completions, CloseWithABlank) {
  pane.Type(u"/ca");
  EXPECT_TRUE(IsOpen());
  pane.Type(u" ");
  EXPECT_FALSE(IsOpen());
}

TEST_F(Completions, CloseWhenTheLineHasRun) {
  Enter(u"/ca");
  EXPECT_FALSE(IsOpen());
  EXPECT_EQ(window.rtbData.Text(), u"<Bob>/ca");
}

TEST_F(Completions, CloseWhenEscapeEmptiesThePane) {
  pane.Type(u"/ca");
  EXPECT_EQ(Press(key_code::kEscape), u"");
  EXPECT_FALSE(IsOpen());
}

TEST_F(Completions, CloseWhenALineOfAnotherKindIsRecalled) {
  Enter(u"hello");
  pane.Type(u"/ca");
  EXPECT_EQ(Press(key_code::kPageUp), u"hello");
  EXPECT_FALSE(IsOpen());
}

TEST_F(Completions, StayAwayFromARecalledLine) {
  Enter(u"/ca");
  for (const int key : {key_code::kPageUp, key_code::kPageDown, key_code::kUp, key_code::kDown}) {
    EXPECT_EQ(Press(key), u"/ca");
    EXPECT_FALSE(IsOpen());
  }
  pane.Type(u"l");
  EXPECT_TRUE(IsOpen());
}

TEST_F(Completions, SayWhatACommandDoesInTheLanguageInForce) {
  pane.Type(u"/wa");
  EXPECT_EQ(RowWith(u"/WAIT"), u"[port]\twaits for a call");
  pane.SetText(u"");
  state.IsGreek = true;
  pane.Type(u"/wa");
  EXPECT_EQ(RowWith(u"/WAIT"), u"[θύρα]\tαναμένει κλήση");
  pane.SetText(u"/αναμ");
  EXPECT_EQ(RowWith(u"/ΑΝΑΜΟΝΉ"), u"[θύρα]\tαναμένει κλήση");
}

TEST_F(Completions, CloseWhenThePaneLosesTheFocus) {
  pane.Type(u"/ca");
  pane.onLostFocus();
  EXPECT_FALSE(IsOpen());
  pane.Type(u"l");
  EXPECT_TRUE(IsOpen());
}

TEST_F(Completions, MarkTheMacrosInTheLanguageInForce) {
  MakeMacro(u"wave");
  pane.Type(u"/wa");
  EXPECT_EQ(RowWith(u"/wave"), u"\tmacro");
  pane.SetText(u"");
  state.IsGreek = true;
  pane.Type(u"/wa");
  EXPECT_EQ(RowWith(u"/wave"), u"\tμακροεντολή");
}

TEST_F(Completions, ListTheMacrosByName) {
  for (const auto name : {u"wide", u"West", u"will"}) MakeMacro(name);
  pane.Type(u"/w");
  EXPECT_THAT(Rows(), ElementsAre(u"/WAIT", u"/West", u"/wide", u"/will"));
}

TEST_F(Completions, OfferNoMacroThatTheInterpreterWouldNotLoad) {
  for (const auto name : {u"w\\x", u"", u"w\nx", u"w\u2028x", u"wx"}) MakeMacro(name);
  pane.Type(u"/w");
  EXPECT_THAT(Rows(), ElementsAre(u"/WAIT", u"/wx"));
  pane.SetText(u"/");
  EXPECT_EQ(Rows().size(), CommandTable().size() + 1);
}

TEST_F(Completions, OfferAMacroOfTwoSpellingsOfItsExtensionOnce) {
  MakeMacro(u"wave");
  fake.files.files[u"/macros/wave.RTF"] = "{\\rtf1 x}";
  pane.Type(u"/wav");
  EXPECT_THAT(Rows(), ElementsAre(u"/wave"));
}

TEST_F(Completions, ReadTheFolderOnceAWord) {
  MakeMacro(u"wave");
  pane.Type(u"/x");
  MakeMacro(u"walk");
  pane.SetText(u"/wa");
  EXPECT_THAT(Rows(), ElementsAre(u"/WAIT", u"/wave"));
  pane.SetText(u"");
  pane.Type(u"/wa");
  EXPECT_THAT(Rows(), ElementsAre(u"/WAIT", u"/walk", u"/wave"));
}

TEST_F(Completions, OfAFolderThatIsGoneAreTheCommands) {
  fake.files.RemoveFolder(u"/macros");
  pane.Type(u"/wa");
  EXPECT_THAT(Rows(), ElementsAre(u"/WAIT"));
  EXPECT_TRUE(fake.dialogs.messages.empty());
  EXPECT_TRUE(fake.application.loggedErrors.empty());
}

TEST_F(Completions, OfAFolderThatCannotBeReadAreTheCommands) {
  fake.files.listingFails = FailureNumber::PermissionDenied;
  pane.Type(u"/wa");
  EXPECT_THAT(Rows(), ElementsAre(u"/WAIT"));
  EXPECT_TRUE(fake.dialogs.messages.empty());
  EXPECT_FALSE(fake.application.loggedErrors.empty());
}

TEST_F(Completions, WithNoFolderChosenHoldNothingOfTheRoot) {
  state.MacrosFolder = u"";
  fake.files.files[u"/wave.rtf"] = "{\\rtf1 x}";
  pane.Type(u"/wa");
  EXPECT_THAT(Rows(), ElementsAre(u"/WAIT"));
}

TEST_F(Completions, AreOffWhereTheUserWantsNone) {
  state.SuggestCommands = false;
  pane.Type(u"/wa");
  EXPECT_FALSE(IsOpen());
}

TEST_F(Completions, TheEntrySwitchesThemOffAndOn) {
  window.mnuToolsCompletions.checked = true;
  pane.Type(u"/wa");
  completion.mnuToolsCompletions_Click();
  EXPECT_FALSE(state.SuggestCommands);
  EXPECT_FALSE(window.mnuToolsCompletions.checked);
  EXPECT_FALSE(IsOpen());
  EXPECT_EQ(settings.ReadSetting(u"General", u"Suggestcommands", u"", 20), u"False");

  completion.mnuToolsCompletions_Click();
  EXPECT_TRUE(state.SuggestCommands);
  EXPECT_TRUE(window.mnuToolsCompletions.checked);
  EXPECT_TRUE(IsOpen());
  EXPECT_EQ(settings.ReadSetting(u"General", u"Suggestcommands", u"", 20), u"True");
}

TEST_F(Completions, TheEntryGivesTheFocusBackToTheCommandPane) {
  const int before = pane.timesFocused;
  completion.mnuToolsCompletions_Click();
  EXPECT_EQ(pane.timesFocused, before + 1);
}

TEST_F(Completions, AChoiceThatCannotBeKeptIsReported) {
  fake.files.writesFail = FailureNumber::DiskFull;
  fake.dialogs.answers = {Answer::No};
  completion.mnuToolsCompletions_Click();
  ASSERT_EQ(fake.dialogs.messages.size(), 1u);
  EXPECT_EQ(fake.dialogs.messages[0].title, u"Verlume, 256.");
}

}  // namespace
}  // namespace verlume
