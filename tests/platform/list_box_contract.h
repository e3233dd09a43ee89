// The contract that the list box of every platform keeps. A suite is made from a maker: a default
// constructible class with list(), and with Choose(index) and PressDown(), which do what a click on
// that item and the Down key do.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "platform/control.h"

namespace verlume {

template <class Maker>
class ListBoxContract : public testing::Test {
 protected:
  ListBoxContract() {
    for (const char16_t* name : {u"beta", u"<b>Άλφα</b>", u"beta"}) list.Append(name);
    list.onClick = [this] { clicked.push_back(list.SelectedIndex()); };
  }

  std::vector<std::u16string> Items() const {
    std::vector<std::u16string> items;
    for (int i = 0; i < list.Count(); ++i) items.push_back(list.Item(i));
    return items;
  }

  Maker maker;
  ListBox& list = maker.list();
  std::vector<int> clicked;
};

TYPED_TEST_SUITE_P(ListBoxContract);

TYPED_TEST_P(ListBoxContract, KeepsItsItemsInOrderAndAsGiven) {
  EXPECT_EQ(this->Items(), (std::vector<std::u16string>{u"beta", u"<b>Άλφα</b>", u"beta"}));
  EXPECT_EQ(this->list.SelectedIndex(), -1);
  this->list.Clear();
  EXPECT_EQ(this->list.Count(), 0);
}

TYPED_TEST_P(ListBoxContract, ProgramsSelectionIsNoClick) {
  this->list.Select(2);
  EXPECT_EQ(this->list.SelectedIndex(), 2);
  this->list.Append(u"last");
  EXPECT_EQ(this->list.SelectedIndex(), 2);
  this->list.Select(-1);
  EXPECT_EQ(this->list.SelectedIndex(), -1);
  this->list.Select(1);
  this->list.Select(9);
  EXPECT_EQ(this->list.SelectedIndex(), -1);
  this->list.Select(1);
  this->list.Clear();
  EXPECT_EQ(this->list.SelectedIndex(), -1);
  EXPECT_TRUE(this->clicked.empty());
}

TYPED_TEST_P(ListBoxContract, ItemThatIsNotThereIsEmpty) {
  EXPECT_EQ(this->list.Item(-1), u"");
  EXPECT_EQ(this->list.Item(3), u"");
  this->list.Remove(-1);
  this->list.Remove(3);
  EXPECT_EQ(this->list.Count(), 3);
}

TYPED_TEST_P(ListBoxContract, RemovalOfAnItemLeavesTheSelectionOnItsOwn) {
  this->list.Select(1);
  this->list.Remove(0);
  EXPECT_EQ(this->list.Item(this->list.SelectedIndex()), u"<b>Άλφα</b>");
  this->list.Remove(1);
  EXPECT_EQ(this->list.SelectedIndex(), 0);
  EXPECT_TRUE(this->clicked.empty());
}

TYPED_TEST_P(ListBoxContract, RemovalOfTheSelectedItemSelectsNone) {
  for (const int index : {1, 0, 0}) {
    this->list.Select(index);
    this->list.Remove(index);
    EXPECT_EQ(this->list.SelectedIndex(), -1);
  }
  EXPECT_TRUE(this->clicked.empty());
}

TYPED_TEST_P(ListBoxContract, UsersClickIsToldOnceEachTime) {
  this->maker.Choose(1);
  this->maker.Choose(2);
  this->maker.Choose(2);
  EXPECT_EQ(this->clicked, (std::vector<int>{1, 2, 2}));
}

TYPED_TEST_P(ListBoxContract, HandlerMaySelectAnotherItem) {
  this->list.onClick = [this] { this->list.Select(0); };
  this->maker.Choose(2);
  EXPECT_EQ(this->list.SelectedIndex(), 0);
}

TYPED_TEST_P(ListBoxContract, HandlerMayRemoveTheItem) {
  this->list.onClick = [this] { this->list.Remove(this->list.SelectedIndex()); };
  this->maker.Choose(1);
  EXPECT_EQ(this->list.Count(), 2);
  EXPECT_EQ(this->list.SelectedIndex(), -1);
}

TYPED_TEST_P(ListBoxContract, DownKeySelectsTheFirstItemAndThenTheNextAndTells) {
  for (int i = 0; i < 4; ++i) this->maker.PressDown();
  EXPECT_EQ(this->clicked, (std::vector<int>{0, 1, 2}));
}

TYPED_TEST_P(ListBoxContract, KeyGoesOnFromTheItemThatTheHandlerSelected) {
  this->list.Select(0);
  this->list.onClick = [this] {
    this->clicked.push_back(this->list.SelectedIndex());
    this->list.Select(0);
  };
  this->maker.PressDown();
  EXPECT_EQ(this->list.SelectedIndex(), 0);
  this->maker.PressDown();
  EXPECT_EQ(this->clicked, (std::vector<int>{1, 1}));
}

TYPED_TEST_P(ListBoxContract, KeyBeginsAtTheFirstItemAfterTheHandlerRemovedItsOwn) {
  this->list.Select(0);
  this->list.onClick = [this] {
    this->clicked.push_back(this->list.SelectedIndex());
    this->list.Remove(this->list.SelectedIndex());
  };
  this->maker.PressDown();
  EXPECT_EQ(this->list.Count(), 2);
  EXPECT_EQ(this->list.SelectedIndex(), -1);
  this->maker.PressDown();
  EXPECT_EQ(this->clicked, (std::vector<int>{1, 0}));
}

TYPED_TEST_P(ListBoxContract, TagIsKept) {
  EXPECT_EQ(this->list.Tag(), u"");
  this->list.SetTag(u"no");
  EXPECT_EQ(this->list.Tag(), u"no");
}

REGISTER_TYPED_TEST_SUITE_P(ListBoxContract, KeepsItsItemsInOrderAndAsGiven,
                            ProgramsSelectionIsNoClick, ItemThatIsNotThereIsEmpty,
                            RemovalOfAnItemLeavesTheSelectionOnItsOwn,
                            RemovalOfTheSelectedItemSelectsNone, UsersClickIsToldOnceEachTime,
                            HandlerMaySelectAnotherItem, HandlerMayRemoveTheItem,
                            DownKeySelectsTheFirstItemAndThenTheNextAndTells,
                            KeyGoesOnFromTheItemThatTheHandlerSelected,
                            KeyBeginsAtTheFirstItemAfterTheHandlerRemovedItsOwn, TagIsKept);

}  // namespace verlume
