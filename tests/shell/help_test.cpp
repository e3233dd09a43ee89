#include "shell/help.h"

#include "shell/shell_fixture.h"

namespace verlume {
namespace {

class HelpTest : public ShellTest {
 protected:
  Help help{platform, errors};
};

TEST_F(HelpTest, TheEntryOpensTheDetailedHelp) {
  help.mnuHelpDetailed_Click();
  EXPECT_EQ(fake.help.timesShown, 1);
}

TEST_F(HelpTest, AFailureIsReported) {
  fake.help.failure = FailureNumber::FileNotFound;
  fake.dialogs.answers = {Answer::No};
  help.mnuHelpDetailed_Click();
  EXPECT_EQ(Titles(), std::vector<std::u16string>{u"Verlume, 224."});
}

}  // namespace
}  // namespace verlume
