#include "platform_qt/controls/table_box.h"

#include <gtest/gtest.h>

#include <QAccessible>
#include <QApplication>
#include <QHeaderView>
#include <QHelpEvent>
#include <QTest>
#include <QToolTip>

#include "platform_qt/controls/tool_tip.h"

namespace verlume::qt {
namespace {

class QtTableBoxTest : public testing::Test {
 protected:
  QtTableBoxTest() {
    table.SetHeading(0, u"Name");
    table.SetHeading(1, u"Since");
    table.SetRows({{u"Anna", u"March"}, {u"<b>Bob</b>", u"April"}, {u"Carol", u"May"}});
    table.onClick = [this] { clicked.push_back(table.SelectedIndex()); };
    widget.resize(400, 200);
    widget.show();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(&widget));
  }
  void Click(const QPoint& place, Qt::KeyboardModifiers held = {}) {
    QTest::mouseClick(widget.viewport(), Qt::LeftButton, held, place);
  }
  QPoint RowAt(int index) { return widget.visualItemRect(widget.topLevelItem(index)).center(); }
  std::u16string Cell(int row, int column) {
    return FromQt(widget.topLevelItem(row)->text(column));
  }

  TableWidget widget{nullptr};
  QtTableBox table{&widget};
  std::vector<int> clicked;
};

TEST_F(QtTableBoxTest, ShowsRowsUnderTheirHeadings) {
  EXPECT_EQ(table.Count(), 3);
  EXPECT_EQ(widget.columnCount(), 2);
  EXPECT_EQ(widget.headerItem()->text(1), "Since");
  EXPECT_EQ(Cell(1, 0), u"<b>Bob</b>");
  table.SetRow(1, {u"Bill", u"June"});
  EXPECT_EQ(Cell(1, 0), u"Bill");
  table.SetRow(7, {u"nobody", u""});
  table.SetRow(-1, {u"nobody", u""});
  EXPECT_EQ(table.Count(), 3);
  table.SetHeading(0, u"Όνομα");
  EXPECT_EQ(widget.headerItem()->text(0), "Όνομα");
  EXPECT_EQ(widget.columnCount(), 2);
}

TEST_F(QtTableBoxTest, NothingIsSelectedUntilSomebodySelects) {
  EXPECT_EQ(table.SelectedIndex(), -1);
  table.Select(2);
  EXPECT_EQ(table.SelectedIndex(), 2);
  table.SetRow(2, {u"Caroline", u"May"});
  EXPECT_EQ(table.SelectedIndex(), 2);
  table.Select(3);
  EXPECT_EQ(table.SelectedIndex(), -1);
  table.Select(2);
  table.SetRows({{u"Dora", u"May"}});
  EXPECT_EQ(table.SelectedIndex(), -1);
  EXPECT_TRUE(clicked.empty()) << "the program's own doing is no click";
}

TEST_F(QtTableBoxTest, TheUserSelectsByMouseAndKeys) {
  Click(RowAt(1));
  EXPECT_EQ(clicked, std::vector{1});
  QTest::keyClick(&widget, Qt::Key_Down);
  EXPECT_EQ(clicked, (std::vector{1, 2}));
  QTest::keyClick(&widget, Qt::Key_Home);
  EXPECT_EQ(clicked, (std::vector{1, 2, 0}));
}

TEST_F(QtTableBoxTest, AClickBesideTheRowsLeavesTheSelection) {
  table.Select(1);
  Click({20, widget.viewport()->height() - 5});
  EXPECT_EQ(table.SelectedIndex(), 1);
  Click(RowAt(1), Qt::ControlModifier);
  EXPECT_EQ(table.SelectedIndex(), 1);
}

TEST_F(QtTableBoxTest, TheRightButtonSelectsNothing) {
  std::vector<MouseButton> released;
  table.onMouseUp = [&](MouseButton button) { released.push_back(button); };
  QTest::mouseClick(widget.viewport(), Qt::RightButton, {}, RowAt(1));
  EXPECT_EQ(table.SelectedIndex(), -1);
  EXPECT_EQ(released, std::vector{MouseButton::Right});
}

TEST_F(QtTableBoxTest, TheWidestColumnsGiveWay) {
  table.SetRows({{std::u16string(200, u'w'), u"3 November 2026"}});
  EXPECT_EQ(widget.header()->length(), widget.viewport()->width());
  EXPECT_GE(widget.columnWidth(1), widget.fontMetrics().horizontalAdvance("3 November 2026"));
  widget.resize(600, 200);
  EXPECT_EQ(widget.header()->length(), widget.viewport()->width());
  EXPECT_GT(widget.columnWidth(0), 400);
}

TEST_F(QtTableBoxTest, TheLastColumnGivesItsRoomBack) {
  for (const int width : {600, 200, 120}) {
    widget.resize(width, 200);
    EXPECT_EQ(widget.header()->length(), widget.viewport()->width()) << width;
  }
}

TEST_F(QtTableBoxTest, AssistiveToolsReadEveryCell) {
  QAccessibleInterface* all = QAccessible::queryAccessibleInterface(&widget);
  ASSERT_NE(all->tableInterface(), nullptr);
  EXPECT_EQ(all->tableInterface()->rowCount(), 3);
  EXPECT_EQ(all->tableInterface()->cellAt(2, 1)->text(QAccessible::Name), "May");
  EXPECT_EQ(all->tableInterface()->columnDescription(1), "Since");
}

TEST_F(QtTableBoxTest, ATextThatIsCutIsShownInFullAsAToolTip) {
  const QString cut = QStringLiteral("<b>") + QString(100, u'w') + QStringLiteral("</b>");
  table.SetRow(0, {FromQt(cut), u"March"});
  const auto point = [this](int column) {
    QTreeWidgetItem* row = widget.topLevelItem(0);
    const QPoint place = widget.visualRect(widget.indexFromItem(row, column)).center();
    QHelpEvent wish(QEvent::ToolTip, place, widget.viewport()->mapToGlobal(place));
    QApplication::sendEvent(widget.viewport(), &wish);
  };
  point(0);
  EXPECT_EQ(QToolTip::text(), PlainToolTip(cut));
  point(1);
  EXPECT_TRUE(QTest::qWaitFor([] { return !QToolTip::isVisible(); }, 10000));
}

}  // namespace
}  // namespace verlume::qt
