#include "shell/error_report.h"

#include <stdexcept>

#include "platform/run_time_failure.h"
#include "shell/shell_fixture.h"

namespace verlume {
namespace {

class ErrorReportTest : public ShellTest {
 protected:
  void Fail(FailureNumber number, Procedure procedure = Procedure::Form_Load) {
    errors.Guard(procedure, [number] { throw RunTimeFailure(number); });
  }
};

TEST_F(ErrorReportTest, ABodyThatEndsIsNotReported) {
  bool ran = false;
  EXPECT_TRUE(errors.Guard(Procedure::Form_Load, [&ran] { ran = true; }));
  EXPECT_TRUE(ran);
  EXPECT_TRUE(fake.dialogs.messages.empty());
  EXPECT_EQ(resets, 0);
}

TEST_F(ErrorReportTest, TellsNumberAndDescriptionInEnglish) {
  fake.dialogs.answers = {Answer::No};
  Fail(FailureNumber::TypeMismatch);
  ASSERT_EQ(fake.dialogs.messages.size(), 1u);
  EXPECT_EQ(fake.dialogs.messages[0].text,
            u"Error condition 13 with the description 'Type mismatch' has occured.\r\n\r\n"
            u"The application cannot perform the requested operation.\r\n\r\n"
            u"Do you want to shut down the application and return to the Windows environment?");
}

TEST_F(ErrorReportTest, TellsNumberAndDescriptionInGreek) {
  state.IsGreek = true;
  fake.dialogs.answers = {Answer::No};
  Fail(FailureNumber::AddressInUse);
  ASSERT_EQ(fake.dialogs.messages.size(), 1u);
  EXPECT_EQ(fake.dialogs.messages[0].text,
            u"Παρουσιάσθηκε το σφάλμα με αριθμό 10048 και περιγραφή «Address in use».\r\n\r\n"
            u"Η εφαρμογή δεν μπορεί να εκτελέσει την εργασία που ζητήσατε.\r\n\r\n"
            u"Θέλετε να διακοπεί η λειτουργία της εφαρμογής και να επιστρέψετε στο περιβάλλον "
            u"των Windows;");
}

TEST_F(ErrorReportTest, TheTitleNamesTheProcedure) {
  fake.dialogs.answers = {Answer::No, Answer::No};
  Fail(FailureNumber::TypeMismatch, Procedure::Form_Load);
  Fail(FailureNumber::DiskFull, Procedure::rtbMacroText_KeyPress);
  EXPECT_EQ(Titles(), (std::vector<std::u16string>{u"Verlume, 203.", u"Verlume, 254."}));
}

TEST_F(ErrorReportTest, TheBoxIsAQuestionThatProposesNo) {
  fake.dialogs.answers = {Answer::No};
  Fail(FailureNumber::TypeMismatch);
  ASSERT_EQ(fake.dialogs.messages.size(), 1u);
  EXPECT_EQ(fake.dialogs.messages[0].icon, MessageIcon::Question);
  EXPECT_EQ(fake.dialogs.messages[0].buttons, MessageButtons::YesNo);
  EXPECT_EQ(fake.dialogs.messages[0].defaultAnswer, Answer::No);
}

TEST_F(ErrorReportTest, TheConnectionIsClosedBeforeTheUserAnswers) {
  int resetsWhileOpen = 0;
  fake.dialogs.whileOpen = [&] { resetsWhileOpen = resets; };
  fake.dialogs.answers = {Answer::No};
  Fail(FailureNumber::TypeMismatch);
  EXPECT_EQ(resetsWhileOpen, 1);
  EXPECT_EQ(resets, 1);
}

TEST_F(ErrorReportTest, NoLeavesTheProgramRunning) {
  fake.dialogs.answers = {Answer::No};
  EXPECT_FALSE(errors.Guard(Procedure::Form_Load,
                            [] { throw RunTimeFailure(FailureNumber::InvalidProcedureCall); }));
  EXPECT_FALSE(window.window.unloaded);
}

TEST_F(ErrorReportTest, YesUnloadsTheMainWindow) {
  fake.dialogs.answers = {Answer::Yes};
  Fail(FailureNumber::TypeMismatch);
  EXPECT_TRUE(window.window.unloaded);
}

TEST_F(ErrorReportTest, ACancelledDialogIsASilentEnd) {
  EXPECT_FALSE(
      errors.Guard(Procedure::Form_Load, [] { throw RunTimeFailure(FailureNumber::Cancelled); }));
  EXPECT_TRUE(fake.dialogs.messages.empty());
  EXPECT_EQ(resets, 0);
}

TEST_F(ErrorReportTest, AnyOtherExceptionIsAnInternalError) {
  fake.dialogs.answers = {Answer::No};
  EXPECT_FALSE(errors.Guard(Procedure::tmrTimer_Timer, [] { throw std::runtime_error("secret"); }));
  ASSERT_EQ(fake.dialogs.messages.size(), 1u);
  EXPECT_EQ(fake.dialogs.messages[0].title, u"Verlume, 226.");
  EXPECT_TRUE(fake.dialogs.messages[0].text.starts_with(
      u"Error condition 51 with the description 'Internal error' has occured."));
}

TEST_F(ErrorReportTest, AFailureIsLoggedWithItsProcedure) {
  fake.dialogs.answers = {Answer::No};
  Fail(FailureNumber::DiskFull, Procedure::AppendToLog);
  EXPECT_EQ(fake.application.loggedErrors,
            std::vector<std::string>{"procedure 240 failed: error 61, Disk full"});
}

TEST_F(ErrorReportTest, AFailureIsLoggedBeforeTheUserAnswers) {
  std::size_t loggedWhileOpen = 0;
  fake.dialogs.whileOpen = [&] { loggedWhileOpen = fake.application.loggedErrors.size(); };
  fake.dialogs.answers = {Answer::No};
  Fail(FailureNumber::DiskFull);
  EXPECT_EQ(loggedWhileOpen, 1u);
}

TEST_F(ErrorReportTest, OtherExceptionsAreLoggedWithWhatTheySay) {
  fake.dialogs.answers = {Answer::No, Answer::No};
  errors.Guard(Procedure::tmrTimer_Timer, [] { throw std::out_of_range("position 5 of 3"); });
  errors.Guard(Procedure::tmrTimer_Timer, [] { throw 7; });
  EXPECT_EQ(fake.application.loggedErrors,
            (std::vector<std::string>{"procedure 226 failed: exception, position 5 of 3",
                                      "procedure 226 failed: exception of an unknown type"}));
}

TEST_F(ErrorReportTest, WhatDoesNotFailIsNotLogged) {
  errors.Guard(Procedure::Form_Load, [] {});
  errors.Guard(Procedure::Form_Load, [] { throw RunTimeFailure(FailureNumber::Cancelled); });
  EXPECT_TRUE(fake.application.loggedErrors.empty());
}

TEST_F(ErrorReportTest, AnExceptionThatNeedsNoReportIsOnlyLogged) {
  try {
    throw RunTimeFailure(FailureNumber::PermissionDenied);
  } catch (...) {
    errors.LogException(Procedure::CommandCompletion);
  }
  EXPECT_EQ(fake.application.loggedErrors,
            std::vector<std::string>{"procedure 255 failed: error 70, Permission denied"});
  EXPECT_TRUE(fake.dialogs.messages.empty());
  EXPECT_EQ(resets, 0);
}

TEST_F(ErrorReportTest, ADescriptionThatLooksLikeAPatternIsShownAsItIs) {
  fake.dialogs.answers = {Answer::No};
  errors.Report(7, u"100%1 %2", Procedure::Form_Load);
  ASSERT_EQ(fake.dialogs.messages.size(), 1u);
  EXPECT_TRUE(fake.dialogs.messages[0].text.starts_with(
      u"Error condition 7 with the description '100%1 %2' has occured."));
}

}  // namespace
}  // namespace verlume
