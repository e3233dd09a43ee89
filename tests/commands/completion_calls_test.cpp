// The list of completions behind "/CALL ".
#include "commands/completion_calls.h"

#include "commands/completion_fixture.h"

namespace verlume {
namespace {

using testing::ElementsAre;

class CompletionCallsTest : public fake::CompletionSide {
 protected:
  CompletionCallsTest() {
    state.CalledHosts = {{u"bob.example.org", 4000, u"Bob"}, {u"192.0.2.7", 80, {}}};
  }
};

TEST_F(CompletionCallsTest, ShowsTheComputersCalledLast) {
  pane.Type(u"/call ");
  EXPECT_TRUE(IsOpen());
  EXPECT_THAT(Rows(), ElementsAre(u"/call bob.example.org 4000", u"/call 192.0.2.7 80"));
}

TEST_F(CompletionCallsTest, SaysWhoAnsweredThere) {
  pane.Type(u"/call ");
  EXPECT_EQ(RowWith(u"/call bob.example.org 4000"), u"Bob\t");
  EXPECT_EQ(RowWith(u"/call 192.0.2.7 80"), u"\t");
}

TEST_F(CompletionCallsTest, TheGreekWordCallsToo) {
  pane.Type(u"/κλήση ");
  EXPECT_THAT(Rows(), ElementsAre(u"/κλήση bob.example.org 4000", u"/κλήση 192.0.2.7 80"));
}

TEST_F(CompletionCallsTest, KeepsThoseThatBeginWithWhatIsTyped) {
  pane.Type(u"/CALL BOB");
  EXPECT_THAT(Rows(), ElementsAre(u"/CALL bob.example.org 4000"));
  pane.Type(u"x");
  EXPECT_FALSE(IsOpen());
}

TEST_F(CompletionCallsTest, PutsTheLineIntoThePaneWithoutTheNickname) {
  pane.Type(u"/call b");
  EXPECT_EQ(Press(key_code::kDown), u"/call bob.example.org 4000");
  EXPECT_EQ(Press(key_code::kUp), u"/call b");
}

TEST_F(CompletionCallsTest, ALineThatIsOneOfThemNeedsNoList) {
  pane.Type(u"/call 192.0.2.7 8");
  EXPECT_TRUE(IsOpen());
  pane.Type(u"0");
  EXPECT_FALSE(IsOpen());
}

TEST_F(CompletionCallsTest, OtherCommandsHaveNone) {
  pane.Type(u"/wait ");
  EXPECT_FALSE(IsOpen());
  pane.SetText(u"call ");
  EXPECT_FALSE(IsOpen());
}

TEST_F(CompletionCallsTest, IsOffWithTheSuggestions) {
  state.SuggestCommands = false;
  pane.Type(u"/call ");
  EXPECT_FALSE(IsOpen());
}

}  // namespace
}  // namespace verlume
