#include "platform_qt/controls/label_accessibility.h"

#include <gtest/gtest.h>

#include <QAccessible>

#include "platform_qt/controls/controls.h"

namespace verlume::qt {
namespace {

class LabelAccessibilityTest : public testing::Test {
 protected:
  QString NameOf(const QtLabel& read) {
    return QAccessible::queryAccessibleInterface(read.widget())->text(QAccessible::Name);
  }

  QWidget form;
  QtLabel label{new ElidedLabel(&form)};
};

TEST_F(LabelAccessibilityTest, AValueIsReadBehindItsName) {
  label.SetAccessibleName(u"Remote address");
  EXPECT_EQ(NameOf(label), "Remote address");
  label.SetCaption(u"192.0.2.7");
  EXPECT_EQ(NameOf(label), "Remote address: 192.0.2.7");
  label.SetAccessibleName(u"Απομακρυσμένη διεύθυνση");
  EXPECT_EQ(NameOf(label), "Απομακρυσμένη διεύθυνση: 192.0.2.7");
  label.SetCaption(u"");
  EXPECT_EQ(NameOf(label), "Απομακρυσμένη διεύθυνση");
}

TEST_F(LabelAccessibilityTest, ALabelWithoutANameIsReadAsItsText) {
  label.SetCaption(u"3 of 7");
  EXPECT_EQ(NameOf(label), "3 of 7");
}

TEST_F(LabelAccessibilityTest, TheCaptionBesideAValueIsNotRead) {
  QtLabel caption(new ElidedLabel(&form));
  caption.SetCaption(u"You");
  label.SetAccessibleName(u"Your nickname");
  label.SetCaption(u"Ann");
  form.show();
  caption.widget()->setBuddy(label.widget());
  EXPECT_EQ(NameOf(caption), "");
  EXPECT_TRUE(QAccessible::queryAccessibleInterface(caption.widget())->state().invisible);
  QAccessibleInterface* value = QAccessible::queryAccessibleInterface(label.widget());
  EXPECT_FALSE(value->state().invisible);
  EXPECT_TRUE(value->relations().isEmpty());
}

}  // namespace
}  // namespace verlume::qt
