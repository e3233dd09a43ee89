// A platform in memory with an error report, as most tests of the shell need.
#pragma once

#include <gtest/gtest.h>

#include "platform_fake/fake_platform.h"
#include "shell/app_state.h"
#include "shell/error_report.h"
#include "shell/settings.h"

namespace verlume {

class ShellTest : public testing::Test {
 protected:
  ShellTest();
  ~ShellTest() override;

  static constexpr const char16_t* kIniFile = u"/verlume/Verlume.ini";

  // The titles and texts of the boxes shown so far.
  std::vector<std::u16string> Titles() const {
    std::vector<std::u16string> titles;
    for (const Message& message : fake.dialogs.messages) titles.push_back(message.title);
    return titles;
  }

  fake::FakeNetwork network;
  fake::FakePlatform fake{network};
  fake::FakeMainWindow& window = fake.window;
  Platform& platform = fake.platform;
  AppState state;
  int resets = 0;
  ErrorReport errors{state, fake.platform, [this] { ++resets; },
                     [this] { window.window.Unload(); }};
  Settings settings{state, fake.files};
};

}  // namespace verlume
