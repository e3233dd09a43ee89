#include "platform_qt/text/hidden_text_box.h"

#include <gtest/gtest.h>

#include <QWidget>

#include "platform_fake/fake_file_system.h"

namespace verlume::qt {
namespace {

class QtHiddenTextBoxTest : public testing::Test {
 protected:
  fake::FakeFileSystem files;
  QWidget parent;
  QtHiddenTextBox box{&parent, files};
};

TEST_F(QtHiddenTextBoxTest, RtfBecomesItsPlainText) {
  box.SetRtf(uR"({\rtf1\ansi{\fonttbl{\f0 Arial;}}\f0\b bold\b0  and \u945?\par last\par})");
  EXPECT_EQ(box.Text(), u"bold and \u03B1\nlast");
  EXPECT_EQ(box.TextLength(), 15u);
}

TEST_F(QtHiddenTextBoxTest, WhatIsNotRtfIsPlainText) {
  box.SetRtf(u"{no} \\rtf\r\nhere");
  EXPECT_EQ(box.Text(), u"{no} \\rtf\nhere");
}

TEST_F(QtHiddenTextBoxTest, ATextReplacesTheOneBefore) {
  box.SetRtf(uR"({\rtf1 one})");
  box.SetRtf(uR"({\rtf1 two})");
  EXPECT_EQ(box.Text(), u"two");
  box.SetText(u"");
  EXPECT_EQ(box.Text(), u"");
}

TEST_F(QtHiddenTextBoxTest, NobodySeesIt) {
  parent.show();
  EXPECT_FALSE(box.widget()->isVisible());
}

}  // namespace
}  // namespace verlume::qt
