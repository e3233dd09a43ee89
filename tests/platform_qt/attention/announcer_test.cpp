#include "platform_qt/attention/announcer.h"

#include <gtest/gtest.h>

#include <QAccessible>
#include <QTest>

namespace verlume::qt {
namespace {

QStringList shownNotifications;

void NoteShown(QAccessibleEvent* event) {
  if (event->type() != QAccessible::ObjectShow) return;
  const QAccessibleInterface* object = event->accessibleInterface();
  if (object && object->role() == QAccessible::Notification) {
    shownNotifications.append(object->text(QAccessible::Name));
  }
}

class AnnouncerTest : public testing::Test {
 protected:
  AnnouncerTest() : wasActive_(QAccessible::isActive()) {
    shownNotifications.clear();
    before_ = QAccessible::installUpdateHandler(NoteShown);
    window.resize(200, 100);
    window.show();
  }
  ~AnnouncerTest() override {
    QAccessible::installUpdateHandler(before_);
    QAccessible::setActive(wasActive_);
  }

  QWidget window;
  Announcer announcer{&window};

 private:
  QAccessible::UpdateHandler before_ = nullptr;
  bool wasActive_;
};

TEST_F(AnnouncerTest, EachAnnouncementIsANotificationThatAppears) {
  QAccessible::setActive(true);
  announcer.Announce("Bob: <b>one</b>");
  announcer.Announce("Bob: two");
  announcer.Announce("Bob: two");
  EXPECT_EQ(shownNotifications, (QStringList{"Bob: <b>one</b>", "Bob: two", "Bob: two"}));
}

TEST_F(AnnouncerTest, WhileNobodyListensNothingIsDone) {
  QAccessible::setActive(false);
  announcer.Announce("Bob: one");
  QAccessible::setActive(true);
  EXPECT_TRUE(shownNotifications.isEmpty());
  for (const QWidget* child : window.findChildren<QWidget*>()) {
    EXPECT_FALSE(child->isVisible());
    EXPECT_EQ(child->accessibleName(), "");
  }
}

TEST_F(AnnouncerTest, IsNotSeenAndTakesNoKeyboardAndNoClicks) {
  QAccessible::setActive(true);
  const QImage before = window.grab().toImage();
  announcer.Announce("Bob: one");
  EXPECT_EQ(window.grab().toImage(), before);
  for (const QWidget* child : window.findChildren<QWidget*>()) {
    EXPECT_EQ(child->focusPolicy(), Qt::NoFocus);
    EXPECT_TRUE(child->testAttribute(Qt::WA_TransparentForMouseEvents));
  }
}

}  // namespace
}  // namespace verlume::qt
