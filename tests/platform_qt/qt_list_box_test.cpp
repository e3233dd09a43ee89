// Qt's list box keeps the list box's contract; and what only a real list has.
#include "platform_qt/qt_list_box.h"

#include <QScrollBar>
#include <QTest>

#include "platform/list_box_contract.h"

namespace verlume::qt {
namespace {

class QtListMaker {
 public:
  QtListMaker() {
    widget_->resize(200, 200);
    form_.resize(200, 200);
    form_.show();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(&form_));
  }

  ListBox& list() { return list_; }
  void Choose(int index) {
    const QPoint place = widget_->visualItemRect(widget_->item(index)).center();
    QTest::mouseClick(widget_->viewport(), Qt::LeftButton, {}, place);
  }

 private:
  QWidget form_;
  ListWidget* widget_ = new ListWidget(&form_);
  QtListBox list_{widget_};
};

INSTANTIATE_TYPED_TEST_SUITE_P(Qt, ListBoxContract, QtListMaker);

class QtListBoxTest : public testing::Test {
 protected:
  QtListBoxTest() {
    form.resize(200, 120);
    widget->resize(200, 120);
    for (int i = 0; i < 50; ++i) list.Append(u"item " + FromQt(QString::number(i)));
    list.onClick = [this] { clicked.push_back(list.SelectedIndex()); };
    form.show();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&form));
  }

  void Click(int index, Qt::MouseButton button, Qt::KeyboardModifiers held = {}) {
    const QPoint place = widget->visualItemRect(widget->item(index)).center();
    QTest::mouseClick(widget->viewport(), button, held, place);
  }

  QWidget form;
  ListWidget* widget = new ListWidget(&form);
  QtListBox list{widget};
  std::vector<int> clicked;
};

TEST_F(QtListBoxTest, ArrowKeysSelectAndTell) {
  list.SetFocus();
  list.Select(0);
  QTest::keyClick(widget, Qt::Key_Down);
  QTest::keyClick(widget, Qt::Key_Down);
  EXPECT_EQ(clicked, (std::vector<int>{1, 2}));
}

TEST_F(QtListBoxTest, FocusAloneSelectsNothing) {
  widget->setFocus(Qt::TabFocusReason);
  ASSERT_TRUE(widget->hasFocus());
  EXPECT_EQ(list.SelectedIndex(), -1);
  EXPECT_TRUE(clicked.empty());
}

TEST_F(QtListBoxTest, NothingButAnotherItemTakesTheSelection) {
  Click(1, Qt::LeftButton);
  Click(1, Qt::LeftButton, Qt::ControlModifier);
  EXPECT_EQ(list.SelectedIndex(), 1);
  QTest::keyClick(widget, Qt::Key_Space, Qt::ControlModifier);
  EXPECT_EQ(list.SelectedIndex(), 1);
  Click(2, Qt::LeftButton, Qt::ControlModifier);
  EXPECT_EQ(list.SelectedIndex(), 2);
}

TEST_F(QtListBoxTest, ClickBesideTheItemsChangesNothing) {
  while (list.Count() > 2) list.Remove(0);
  Click(1, Qt::LeftButton);
  QTest::mouseClick(widget->viewport(), Qt::LeftButton, {}, QPoint(20, 110));
  EXPECT_EQ(list.SelectedIndex(), 1);
  EXPECT_EQ(clicked, std::vector<int>{1});
}

TEST_F(QtListBoxTest, OtherButtonsSelectNothing) {
  int released = 0;
  list.onMouseUp = [&](MouseButton button) { released += button == MouseButton::Right; };
  Click(1, Qt::RightButton);
  EXPECT_EQ(list.SelectedIndex(), -1);
  EXPECT_TRUE(clicked.empty());
  EXPECT_EQ(released, 1);
}

TEST_F(QtListBoxTest, ScrollsAnItemToTheTop) {
  list.ScrollToTop(20);
  EXPECT_EQ(widget->visualItemRect(widget->item(20)).top(), 0);
  list.ScrollToTop(49);
  EXPECT_EQ(widget->verticalScrollBar()->value(), widget->verticalScrollBar()->maximum());
  list.ScrollToTop(-1);
  list.ScrollToTop(50);
}

}  // namespace
}  // namespace verlume::qt
