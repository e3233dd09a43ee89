// The fixture of the tests of macros and records: a platform in memory, a settings file in /verlume
// and an error report that counts how often it closes the connection.
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform_fake/fake_platform.h"
#include "shell/error_report.h"
#include "shell/settings.h"

namespace verlume {

class RoomTest : public testing::Test {
 protected:
  RoomTest();
  ~RoomTest() override;

  std::u16string Setting(std::u16string_view section, std::u16string_view key) const {
    return settings.ReadSetting(section, key, u"missing", 1024);
  }

  // The boxes shown, by title, in order.
  std::vector<std::u16string> Titles() const {
    std::vector<std::u16string> titles;
    for (const Message& message : fake.dialogs.messages) titles.push_back(message.title);
    return titles;
  }

  // Expects the error report of a failure, and answers No to its question.
  void AnswerNoToErrors(int times = 1) {
    fake.dialogs.answers.insert(fake.dialogs.answers.end(), times, Answer::No);
  }
  void ExpectReported(std::u16string_view number, std::u16string_view title) const {
    ASSERT_FALSE(fake.dialogs.messages.empty());
    const Message& report = fake.dialogs.messages.back();
    EXPECT_EQ(report.title, title);
    EXPECT_NE(report.text.find(u"Error condition " + std::u16string(number) + u" "),
              std::u16string::npos);
  }

  fake::FakeNetwork network;
  fake::FakePlatform fake{network};
  AppState state;
  int timesReset = 0;
  int timesUnloaded = 0;
  ErrorReport errors{state, fake.platform, [this] { ++timesReset; }, [this] { ++timesUnloaded; }};
  Settings settings{state, fake.files};
};

}  // namespace verlume
