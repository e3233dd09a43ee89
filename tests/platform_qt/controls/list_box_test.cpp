// Qt's list box keeps the contract of list boxes, and the behaviour that only a real list has.
#include "platform_qt/controls/list_box.h"

#include <QLineEdit>
#include <QScrollBar>
#include <QTest>

#include "platform/list_box_contract.h"
#include "platform_qt/windows/window_focus.h"

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
  void PressDown() { QTest::keyClick(widget_, Qt::Key_Down); }

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
    EXPECT_TRUE(WaitForFocus(form));
  }

  void Click(int index, Qt::MouseButton button, Qt::KeyboardModifiers held = {}) {
    const QPoint place = widget->visualItemRect(widget->item(index)).center();
    QTest::mouseClick(widget->viewport(), button, held, place);
  }

  // Shows items, none of them selected, in a list that has not had the focus since.
  void Fill(int count) {
    before->setFocus();
    list.Clear();
    for (int i = 0; i < count; ++i) list.Append(u"item " + FromQt(QString::number(i)));
    clicked.clear();
  }
  void FocusByTab() {
    QTest::keyClick(before, Qt::Key_Tab);
    ASSERT_TRUE(widget->hasFocus());
    ASSERT_TRUE(clicked.empty());
  }

  QWidget form;
  QLineEdit* before = new QLineEdit(&form);
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

TEST_F(QtListBoxTest, AnyKeyThatMovesSelectsTheFirstItemWhenNothingIs) {
  for (const int count : {3, 1}) {
    for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Up, Qt::Key_Home, Qt::Key_PageUp,
                              Qt::Key_PageDown, Qt::Key_Space}) {
      Fill(count);
      FocusByTab();
      QTest::keyClick(widget, key);
      EXPECT_EQ(clicked, std::vector<int>{0}) << count << " items, key " << key;
      EXPECT_EQ(list.SelectedIndex(), 0);
    }
  }
}

TEST_F(QtListBoxTest, EndSelectsTheLastItemWhenNothingIs) {
  for (const int count : {3, 1}) {
    Fill(count);
    FocusByTab();
    QTest::keyClick(widget, Qt::Key_End);
    EXPECT_EQ(clicked, std::vector<int>{count - 1});
  }
}

TEST_F(QtListBoxTest, LetterSelectsTheFirstItemThatBeginsWithItWhenNothingIs) {
  Fill(1);
  list.Append(u"other");
  FocusByTab();
  QTest::keyClick(widget, 'i');
  EXPECT_EQ(clicked, std::vector<int>{0});
}

TEST_F(QtListBoxTest, KeysInAnEmptyListTellNothing) {
  Fill(0);
  FocusByTab();
  for (const Qt::Key key : {Qt::Key_Down, Qt::Key_End}) QTest::keyClick(widget, key);
  EXPECT_TRUE(clicked.empty());
}

TEST_F(QtListBoxTest, DragOverTheItemsStaysOnTheOneThatTheHandlerSelects) {
  list.Select(0);
  list.onClick = [this] { list.Select(0); };
  const auto place = [this](int index) {
    return widget->visualItemRect(widget->item(index)).center();
  };
  QTest::mousePress(widget->viewport(), Qt::LeftButton, {}, place(1));
  QTest::mouseMove(widget->viewport(), place(2));
  QTest::mouseMove(widget->viewport(), place(3));
  QTest::mouseRelease(widget->viewport(), Qt::LeftButton, {}, place(3));
  EXPECT_EQ(list.SelectedIndex(), 0);
  EXPECT_EQ(widget->currentRow(), 0);
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
