#include "platform_qt/controls/choice_menu.h"

#include <gtest/gtest.h>

#include <QApplication>

namespace verlume::qt {
namespace {

class QtChoiceMenuTest : public testing::Test {
 protected:
  QMenu* Inner() { return parent.findChild<QMenu*>("mnuInner"); }
  QStringList Texts() {
    QStringList texts;
    for (const QAction* entry : Inner()->actions()) {
      texts << (entry->isSeparator() ? QStringLiteral("---") : entry->text());
    }
    return texts;
  }

  QMenu parent;
  QtChoiceMenu menu{&parent, "mnuInner"};
};

TEST_F(QtChoiceMenuTest, IsGreyWithoutChoices) {
  EXPECT_FALSE(Inner()->menuAction()->isEnabled());
  menu.SetChoices({u"one"}, u"last");
  EXPECT_TRUE(Inner()->menuAction()->isEnabled());
  menu.SetChoices({}, u"last");
  EXPECT_FALSE(Inner()->menuAction()->isEnabled());
  EXPECT_TRUE(Texts().isEmpty());
}

TEST_F(QtChoiceMenuTest, ShowsTheChoicesAsTheyAreAndTheLastOneBehindALine) {
  menu.SetChoices({u"R&D 4000", u"two"}, u"last");
  EXPECT_EQ(Texts(), (QStringList{"R&&D 4000", "two", "---", "last"}));
}

TEST_F(QtChoiceMenuTest, AChoiceMayReplaceTheEntries) {
  std::vector<std::size_t> chosen;
  menu.onChoose = [&](std::size_t index) {
    chosen.push_back(index);
    menu.SetChoices({u"new"}, u"last");
  };
  menu.SetChoices({u"one", u"two"}, u"last");
  Inner()->actions().at(1)->trigger();
  EXPECT_TRUE(chosen.empty()) << "from the event loop";
  QApplication::processEvents();
  EXPECT_EQ(chosen, std::vector<std::size_t>{1});
  EXPECT_EQ(Texts(), (QStringList{"new", "---", "last"}));
}

TEST_F(QtChoiceMenuTest, TheLastOneIsToldApart) {
  int times = 0;
  menu.onLast = [&] { ++times; };
  menu.SetChoices({u"one"}, u"last");
  Inner()->actions().constLast()->trigger();
  QApplication::processEvents();
  EXPECT_EQ(times, 1);
}

}  // namespace
}  // namespace verlume::qt
