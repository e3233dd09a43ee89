#include <gtest/gtest.h>

#include "platform_qt/os/machine.h"

namespace verlume::qt {
namespace {

constexpr char16_t kWindows[] = u"SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion";

TEST(MachineTest, ATextOfTheRegistryIsRead) {
  const auto text = RegistryText(kWindows, u"ProductName");
  ASSERT_TRUE(text);
  EXPECT_NE(text->find(u"Windows"), std::u16string::npos)
      << std::string(text->begin(), text->end());
  EXPECT_EQ(text->find(u'\0'), std::u16string::npos);
}

TEST(MachineTest, WhatIsNoTextOrNotThereIsNone) {
  EXPECT_FALSE(RegistryText(kWindows, u"InstallDate")) << "a number";
  EXPECT_FALSE(RegistryText(kWindows, u"no such value"));
  EXPECT_FALSE(RegistryText(u"SOFTWARE\\no such key", u"ProductName"));
  EXPECT_FALSE(RegistryText(u"", u""));
  EXPECT_FALSE(RegistryText(std::u16string(1000, u'\\'), std::u16string(20'000, u'x')));
}

TEST(MachineTest, ANumberOfTheRegistryIsRead) {
  EXPECT_GT(RegistryNumber(kWindows, u"CurrentMajorVersionNumber").value_or(0), 0u);
  EXPECT_FALSE(RegistryNumber(kWindows, u"ProductName")) << "a text";
  EXPECT_FALSE(RegistryNumber(kWindows, u"no such value"));
}

TEST(MachineTest, TheClocksAgreeWhileTheMachineIsAwake) {
  using namespace std::chrono_literals;
  const auto before = TimeAsleep();
  EXPECT_GE(before, 0s);
  EXPECT_LT(TimeAsleep() - before, 1s);
}

TEST(MachineTest, PathsHaveWindowsSeparator) {
  EXPECT_EQ(PathSeparator(), u'\\');
}

}  // namespace
}  // namespace verlume::qt
