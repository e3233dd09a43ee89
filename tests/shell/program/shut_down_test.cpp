#include "shell/program/shut_down.h"

#include "platform/run_time_failure.h"
#include "shell/shell_fixture.h"

namespace verlume {
namespace {

class ShutDownTest : public ShellTest {
 protected:
  ShutDownTest() {
    window.window.onQueryUnload = [this](bool& cancel, UnloadMode mode) {
      modes.push_back(mode);
      shutDown.Form_QueryUnload(cancel, mode);
    };
    window.window.onUnload = [this] { shutDown.Form_Unload(); };
  }

  // The result of the exit question.
  bool userAgrees = true;
  int questions = 0;
  std::u16string commandAsked;
  std::vector<UnloadMode> modes;
  ShutDown shutDown{state, platform, errors,
                    [this] {
                      ++questions;
                      commandAsked = state.CommandLine;
                      state.ExitConfirmed = userAgrees;
                    },
                    [this] { ++resets; }};
};

TEST_F(ShutDownTest, ClosingTheWindowAsksAsTheCommandDoes) {
  window.window.Close(UnloadMode::User);
  EXPECT_EQ(questions, 1);
  EXPECT_EQ(commandAsked, u"/EXIT");
}

TEST_F(ShutDownTest, YesUnloadsTheWindowFromCodeAndEndsTheProgram) {
  window.window.Close(UnloadMode::User);
  EXPECT_EQ(modes, (std::vector<UnloadMode>{UnloadMode::User, UnloadMode::Code}));
  EXPECT_TRUE(window.window.unloaded);
  EXPECT_EQ(resets, 1);
  EXPECT_TRUE(fake.application.ended);
}

TEST_F(ShutDownTest, NoKeepsTheWindowOpen) {
  userAgrees = false;
  window.window.Close(UnloadMode::User);
  EXPECT_FALSE(window.window.unloaded);
  EXPECT_FALSE(fake.application.ended);
  EXPECT_EQ(resets, 0);
}

TEST_F(ShutDownTest, ACloseFromCodeIsNotAsked) {
  userAgrees = false;
  window.window.Unload();
  EXPECT_EQ(questions, 0);
  EXPECT_TRUE(fake.application.ended);
}

TEST_F(ShutDownTest, ClosingLeavesTheOutgoingText) {
  userAgrees = false;
  state.OutgoingText = u"text";
  window.window.Close(UnloadMode::User);
  EXPECT_EQ(state.OutgoingText, u"text");
}

TEST_F(ShutDownTest, TheConnectionIsResetBeforeTheProgramEnds) {
  bool endedAtReset = true;
  ShutDown other(
      state, platform, errors, [] {}, [&] { endedAtReset = fake.application.ended; });
  other.Form_Unload();
  EXPECT_FALSE(endedAtReset);
  EXPECT_TRUE(fake.application.ended);
}

TEST_F(ShutDownTest, NothingIsWrittenToTheSettingsFile) {
  window.window.Close(UnloadMode::User);
  EXPECT_TRUE(fake.files.files.empty());
}

TEST_F(ShutDownTest, TheExitEntryAsksAndEndsTheProgram) {
  state.OutgoingText = u"text";
  shutDown.mnuFileExit_Click();
  EXPECT_EQ(questions, 1);
  EXPECT_EQ(commandAsked, u"/EXIT");
  EXPECT_EQ(state.OutgoingText, u"");
  EXPECT_EQ(modes, std::vector<UnloadMode>{UnloadMode::Code});
  EXPECT_TRUE(fake.application.ended);
}

TEST_F(ShutDownTest, NoToTheExitEntryChangesNothing) {
  userAgrees = false;
  shutDown.mnuFileExit_Click();
  EXPECT_TRUE(modes.empty());
  EXPECT_FALSE(window.window.unloaded);
  EXPECT_FALSE(fake.application.ended);
}

TEST_F(ShutDownTest, AFailureWhileClosingKeepsTheWindowAfterNo) {
  ShutDown failing(
      state, platform, errors, [] { throw RunTimeFailure(FailureNumber::DiskFull); }, [] {});
  fake.dialogs.answers = {Answer::No};
  bool cancel = false;
  failing.Form_QueryUnload(cancel, UnloadMode::User);
  EXPECT_TRUE(cancel);
  EXPECT_EQ(Titles(), std::vector<std::u16string>{u"Verlume, 213."});
  fake.dialogs.answers = {Answer::No};
  failing.mnuFileExit_Click();
  EXPECT_EQ(Titles().back(), u"Verlume, 214.");
  EXPECT_FALSE(fake.application.ended);
}

TEST_F(ShutDownTest, AFailureWhileUnloadingStillEndsTheProgram) {
  ShutDown failing(
      state, platform, errors, [] {},
      [] { throw RunTimeFailure(FailureNumber::InvalidProcedureCall); });
  fake.dialogs.answers = {Answer::No};
  failing.Form_Unload();
  EXPECT_EQ(Titles(), std::vector<std::u16string>{u"Verlume, 228."});
  EXPECT_TRUE(fake.application.ended);
}

}  // namespace
}  // namespace verlume
