#include "platform_qt/os/console.h"

#include <gtest/gtest.h>

namespace verlume::qt {
namespace {

TEST(ConsoleTest, TextGoesWhereTheStandardHandleLeads) {
  testing::internal::CaptureStdout();
  EXPECT_TRUE(PrintText("Γεια\nχαρά\n", false));
  EXPECT_EQ(testing::internal::GetCapturedStdout(), "Γεια\nχαρά\n");
}

TEST(ConsoleTest, ErrorsAndLogLinesGoToStandardError) {
  testing::internal::CaptureStderr();
  EXPECT_TRUE(PrintText("λάθος\n", true));
  LogLine("γραμμή");
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "λάθος\nγραμμή\n");
}

}  // namespace
}  // namespace verlume::qt
