#include "platform_qt/system/arguments.h"

#include <gmock/gmock.h>

namespace verlume::qt {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

std::vector<std::string_view> OwnOf(std::vector<const char*> arguments) {
  arguments.insert(arguments.begin(), "verlume");
  return OwnArguments(static_cast<int>(arguments.size()), arguments.data());
}

TEST(OwnArguments, AreWhatQtLeaves) {
  EXPECT_THAT(OwnOf({}), IsEmpty());
  EXPECT_THAT(OwnOf({"--wait", "4000"}), ElementsAre("--wait", "4000"));
  EXPECT_THAT(OwnOf({"-platform", "offscreen", "--wait"}), ElementsAre("--wait"));
  EXPECT_THAT(OwnOf({"--platform", "offscreen", "--wait"}), ElementsAre("--wait"));
  EXPECT_THAT(OwnOf({"--wait", "-style", "fusion", "4000"}), ElementsAre("--wait", "4000"));
  EXPECT_THAT(OwnOf({"-style=fusion", "-reverse", "--help"}), ElementsAre("--help"));
  EXPECT_THAT(OwnOf({"--folder", "platform"}), ElementsAre("--folder", "platform"));
  EXPECT_THAT(OwnOf({"", "-", "--", "-reverse=1", "---style"}),
              ElementsAre("", "-", "--", "-reverse=1", "---style"));
}

TEST(OwnArguments, AMissingValueIsQtsConcern) {
  EXPECT_THAT(OwnOf({"--wait", "-platform"}), ElementsAre("--wait"));
  EXPECT_THAT(OwnArguments(0, nullptr), IsEmpty());
}

}  // namespace
}  // namespace verlume::qt
