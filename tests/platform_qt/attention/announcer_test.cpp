// What an assistive tool hears of it is in tests/desktop/, where one can listen.
#include "platform_qt/attention/announcer.h"

#include <gtest/gtest.h>

#include <QAccessible>

namespace verlume::qt {
namespace {

TEST(AnnouncerTest, WhileNobodyListensNothingIsDone) {
  QAccessible::setActive(false);
  ASSERT_FALSE(QAccessible::isActive());
  QWidget window;
  window.show();
  Announcer announcer(&window);
  announcer.Announce("Bob: one");
  const auto children = window.findChildren<QWidget*>();
  EXPECT_FALSE(children.isEmpty());
  for (const QWidget* child : children) {
    EXPECT_FALSE(child->isVisible());
    EXPECT_EQ(child->accessibleName(), "");
  }
}

}  // namespace
}  // namespace verlume::qt
