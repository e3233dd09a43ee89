// The hint that a line which begins with "/" is no command.
#include "commands/completion_fixture.h"

namespace verlume {
namespace {

class CompletionHint : public fake::CompletionSide {
 protected:
  static constexpr std::u16string_view kHint = u"No such command: it will be sent as text";
};

TEST_F(CompletionHint, StandsBesideAWordThatIsNoCommand) {
  pane.Type(u"/wax");
  EXPECT_EQ(Hint(), kHint);
  EXPECT_FALSE(IsOpen());
  pane.Type(u" on");
  EXPECT_EQ(Hint(), kHint);
}

TEST_F(CompletionHint, IsThereForAWordThatOnlyBeginsLikeACommand) {
  pane.Type(u"/wa ");
  EXPECT_EQ(Hint(), kHint);
}

TEST_F(CompletionHint, IsNotThereWhileRowsAreShownOrTheLineIsACommandOrNone) {
  MakeMacro(u"good day");
  for (const auto line : {u"/", u"/wa", u"/wait", u"/WAIT 4000", u"/κλήση a", u"/good", u"/good d",
                          u"/good day", u"hello", u"", u" /wax"}) {
    pane.SetText(u"/wax");
    EXPECT_EQ(Hint(), kHint);
    pane.SetText(line);
    EXPECT_EQ(Hint(), u"");
  }
}

TEST_F(CompletionHint, IsThereAlsoWhereNothingIsSuggested) {
  state.SuggestCommands = false;
  pane.Type(u"/wa");
  EXPECT_EQ(Hint(), u"");
  pane.Type(u"x");
  EXPECT_EQ(Hint(), kHint);
}

TEST_F(CompletionHint, IsThereForALineThatIsRecalled) {
  Enter(u"/wax");
  EXPECT_EQ(Hint(), u"");
  Press(key_code::kPageUp);
  EXPECT_EQ(Hint(), kHint);
}

TEST_F(CompletionHint, GoesWithTheFocusAndComesBackInTheLanguageInForce) {
  pane.Type(u"/wax");
  pane.onLostFocus();
  EXPECT_EQ(Hint(), u"");
  state.IsGreek = true;
  pane.onGotFocus();
  EXPECT_EQ(Hint(), u"Δεν υπάρχει τέτοια εντολή: θα σταλεί ως κείμενο");
  pane.SetText(u"/wa");
  pane.onLostFocus();
  pane.onGotFocus();
  EXPECT_FALSE(IsOpen());
}

TEST_F(CompletionHint, IsNotThereForALineThatIsTooLongForAWord) {
  pane.SetText(u"/wax " + std::u16string(300, u'a'));
  EXPECT_EQ(Hint(), u"");
}

}  // namespace
}  // namespace verlume
