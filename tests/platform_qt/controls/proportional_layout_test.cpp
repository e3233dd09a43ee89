#include "platform_qt/controls/proportional_layout.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QPlainTextEdit>
#include <QWidget>
#include <utility>

#include "platform_qt/controls/controls_label.h"

namespace verlume::qt {
namespace {

class FixedWidget : public QWidget {
 public:
  FixedWidget(QWidget* parent, QSize needed) : QWidget(parent), needed_(needed) {}
  QSize minimumSizeHint() const override { return needed_; }

 private:
  QSize needed_;
};

class ProportionalLayoutTest : public testing::Test {
 protected:
  QWidget area;
  ProportionalLayout* layout = new ProportionalLayout(&area, QSize(200, 100));
};

TEST_F(ProportionalLayoutTest, KeepsEveryRelativePlaceAndSize) {
  auto* widget = new QWidget(&area);
  layout->Place(widget, QRect(50, 25, 100, 50));
  layout->setGeometry(QRect(0, 0, 200, 100));
  EXPECT_EQ(widget->geometry(), QRect(50, 25, 100, 50));
  layout->setGeometry(QRect(0, 0, 800, 300));
  EXPECT_EQ(widget->geometry(), QRect(200, 75, 400, 150));
}

TEST_F(ProportionalLayoutTest, ReturnsToTheSamePlacesAfterAnyResizing) {
  auto* widget = new QWidget(&area);
  layout->Place(widget, QRect(33, 17, 71, 29));
  layout->setGeometry(QRect(0, 0, 333, 217));
  const QRect before = widget->geometry();
  for (int size = 200; size < 1000; size += 7) layout->setGeometry(QRect(0, 0, size, size / 2));
  layout->setGeometry(QRect(0, 0, 333, 217));
  EXPECT_EQ(widget->geometry(), before);
}

TEST_F(ProportionalLayoutTest, NeighboursTouchAtEverySize) {
  auto* left = new QWidget(&area);
  auto* right = new QWidget(&area);
  layout->Place(left, QRect(0, 0, 67, 100));
  layout->Place(right, QRect(67, 0, 133, 100));
  for (int width = 200; width < 400; ++width) {
    layout->setGeometry(QRect(0, 0, width, 100));
    EXPECT_EQ(left->geometry().right() + 1, right->geometry().left()) << width;
    EXPECT_EQ(right->geometry().right() + 1, width) << width;
  }
}

TEST_F(ProportionalLayoutTest, MinimumIsTheDesign) {
  layout->Place(new FixedWidget(&area, QSize(10, 10)), QRect(0, 0, 20, 20));
  EXPECT_EQ(layout->minimumSize(), QSize(200, 100));
}

TEST_F(ProportionalLayoutTest, MinimumGrowsWithAWidgetThatNeedsMore) {
  layout->Place(new FixedWidget(&area, QSize(30, 40)), QRect(0, 0, 20, 20));
  EXPECT_EQ(layout->minimumSize(), QSize(300, 200));
}

TEST_F(ProportionalLayoutTest, PaneNeverEnlargesTheMinimum) {
  layout->Place(new QPlainTextEdit(&area), QRect(0, 0, 10, 10));
  EXPECT_EQ(layout->minimumSize(), QSize(200, 100));
}

TEST_F(ProportionalLayoutTest, PlacingAgainMovesTheWidget) {
  auto* widget = new QWidget(&area);
  layout->Place(widget, QRect(0, 0, 10, 10));
  layout->Place(widget, QRect(20, 20, 10, 10));
  EXPECT_EQ(layout->count(), 1);
  layout->setGeometry(QRect(0, 0, 200, 100));
  EXPECT_EQ(widget->geometry(), QRect(20, 20, 10, 10));
}

TEST_F(ProportionalLayoutTest, DesignHeightIsReadAndSetInDesignUnits) {
  auto* label = new QWidget(&area);
  auto* picture = new QWidget(&area);
  layout->Place(label, QRect(0, 0, 50, 10));
  layout->Place(picture, QRect(50, 0, 50, 30));
  layout->setGeometry(QRect(0, 0, 400, 200));
  SetDesignHeight(label, DesignHeight(picture));
  layout->setGeometry(QRect(0, 0, 600, 300));
  EXPECT_EQ(label->height(), picture->height());
}

TEST_F(ProportionalLayoutTest, WidgetElsewhereHasItsHeightInPixels) {
  QWidget other;
  QWidget inside(&other);
  SetDesignHeight(&inside, 41);
  EXPECT_EQ(inside.height(), 41);
  EXPECT_EQ(DesignHeight(&inside), 41);
}

// How often a widget is told to lay out anew.
class LayoutRequests : public QObject {
 public:
  explicit LayoutRequests(QWidget& widget) { widget.installEventFilter(this); }
  int Count() {
    QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
    return std::exchange(count_, 0);
  }

 private:
  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() == QEvent::LayoutRequest) ++count_;
    return false;
  }
  int count_ = 0;
};

TEST_F(ProportionalLayoutTest, OnlyAnotherNeedLaysOutAnew) {
  auto* label = new ElidedLabel(&area);
  layout->Place(label, QRect(0, 0, 50, 20));
  area.show();
  LayoutRequests requests(area);
  requests.Count();
  label->setText("1,234,567");
  EXPECT_EQ(requests.Count(), 0);
  QFont large = label->font();
  large.setPointSize(60);
  label->setFont(large);
  EXPECT_GT(requests.Count(), 0);
  label->hide();
  EXPECT_GT(requests.Count(), 0);
  layout->Place(label, QRect(0, 0, 60, 20));
  EXPECT_GT(requests.Count(), 0);
}

}  // namespace
}  // namespace verlume::qt
