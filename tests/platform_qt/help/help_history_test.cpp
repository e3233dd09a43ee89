#include "platform_qt/help/help_history.h"

#include <gtest/gtest.h>

namespace verlume::qt {
namespace {

class HelpHistoryTest : public testing::Test {
 protected:
  void Visit(std::initializer_list<const char*> topics) {
    for (const char* topic : topics) history.Go(topic);
  }
  QString Now() { return history.Now()->topicId; }

  HelpHistory history;
};

TEST_F(HelpHistoryTest, BeginsWithNoVisit) {
  EXPECT_EQ(history.Now(), nullptr);
  EXPECT_FALSE(history.CanGoBack());
  EXPECT_FALSE(history.CanGoForward());
}

TEST_F(HelpHistoryTest, GoesBackAndForward) {
  Visit({"a", "b", "c"});
  history.GoBack();
  EXPECT_EQ(Now(), "b");
  EXPECT_TRUE(history.CanGoForward());
  history.GoForward();
  EXPECT_EQ(Now(), "c");
  EXPECT_FALSE(history.CanGoForward());
}

TEST_F(HelpHistoryTest, StaysAtItsEnds) {
  Visit({"a"});
  history.GoBack();
  EXPECT_EQ(Now(), "a");
  history.GoForward();
  EXPECT_EQ(Now(), "a");
}

TEST_F(HelpHistoryTest, ANewVisitForgetsWhatLayAhead) {
  Visit({"a", "b", "c"});
  history.GoBack();
  history.GoBack();
  Visit({"d"});
  EXPECT_FALSE(history.CanGoForward());
  history.GoBack();
  EXPECT_EQ(Now(), "a");
}

TEST_F(HelpHistoryTest, KeepsWhereATopicWasLeft) {
  Visit({"a"});
  history.Now()->scroll = 40;
  Visit({"b"});
  EXPECT_EQ(history.Now()->scroll, 0);
  history.GoBack();
  EXPECT_EQ(history.Now()->scroll, 40);
}

}  // namespace
}  // namespace verlume::qt
