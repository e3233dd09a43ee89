#include "platform_qt/windows/pane_hint.h"

#include <gtest/gtest.h>

#include <QAccessible>
#include <QTest>

namespace verlume::qt {
namespace {

class PaneHintTest : public testing::Test {
 protected:
  PaneHintTest() {
    area.resize(400, 200);
    pane->setGeometry(20, 60, 300, 40);
    pane->setAccessibleDescription("Commands");
    hint->FloatBeside(pane);
    area.show();
  }

  QWidget area;
  QWidget* pane = new QWidget(&area);
  PaneHint* hint = new PaneHint(&area);
  QtPaneHint lblHint{hint};
};

TEST_F(PaneHintTest, IsThereWhileItSaysSomething) {
  EXPECT_FALSE(hint->isVisible());
  lblHint.SetCaption(u"<b>so</b>");
  EXPECT_TRUE(hint->isVisible());
  EXPECT_EQ(lblHint.Caption(), u"<b>so</b>");
  EXPECT_EQ(hint->textFormat(), Qt::PlainText);
  lblHint.SetCaption(u"");
  EXPECT_FALSE(hint->isVisible());
}

TEST_F(PaneHintTest, IsThePanesDescriptionMeanwhile) {
  lblHint.SetCaption(u"one");
  lblHint.SetCaption(u"two");
  EXPECT_EQ(QAccessible::queryAccessibleInterface(pane)->text(QAccessible::Description), "two");
  lblHint.SetCaption(u"");
  EXPECT_EQ(QAccessible::queryAccessibleInterface(pane)->text(QAccessible::Description),
            "Commands");
}

TEST_F(PaneHintTest, LiesBelowThePaneOrAboveWhereNoRoomIsBelow) {
  lblHint.SetCaption(u"hint");
  EXPECT_EQ(hint->geometry().topLeft(), QPoint(20, 100));
  pane->move(20, 160);
  EXPECT_EQ(hint->geometry().bottomLeft(), QPoint(20, 159));
  EXPECT_GE(hint->width(), hint->fontMetrics().horizontalAdvance("hint"));
}

TEST_F(PaneHintTest, IsNeverWiderThanThePaneAndTakesNoFocus) {
  lblHint.SetCaption(std::u16string(200, u'w'));
  EXPECT_EQ(hint->width(), 300);
  EXPECT_EQ(hint->focusPolicy(), Qt::NoFocus);
}

}  // namespace
}  // namespace verlume::qt
