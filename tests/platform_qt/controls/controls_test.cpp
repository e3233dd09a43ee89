#include "platform_qt/controls/controls.h"

#include <gtest/gtest.h>

#include <QHelpEvent>
#include <QMainWindow>
#include <QMenuBar>
#include <QSignalSpy>
#include <QTest>
#include <QTextDocumentFragment>
#include <QToolTip>

namespace verlume::qt {
namespace {

class QtControlsTest : public testing::Test {
 protected:
  QImage Picture(QWidget& widget) { return widget.grab().toImage(); }

  QWidget form;
};

TEST_F(QtControlsTest, LabelShowsMarkupAsText) {
  QtLabel label(new ElidedLabel(&form));
  label.SetCaption(u"<b>bold</b>");
  EXPECT_EQ(label.widget()->textFormat(), Qt::PlainText);
  EXPECT_GT(label.widget()->sizeHint().width(),
            label.widget()->fontMetrics().horizontalAdvance(QStringLiteral("bold")) * 2);
}

TEST_F(QtControlsTest, LabelDrawsAnAmpersandAsIs) {
  ElidedLabel one(nullptr);
  ElidedLabel other(nullptr);
  one.resize(120, 30);
  other.resize(120, 30);
  one.setText(QStringLiteral("R&D"));
  other.setText(QStringLiteral("RD"));
  EXPECT_NE(Picture(one), Picture(other));
}

TEST_F(QtControlsTest, LineBreakInALabelIsABlank) {
  ElidedLabel one(nullptr);
  ElidedLabel other(nullptr);
  one.resize(160, 30);
  other.resize(160, 30);
  one.setText(QStringLiteral("ann\nlee"));
  other.setText(QStringLiteral("ann lee"));
  EXPECT_EQ(Picture(one), Picture(other));
}

// Rests the mouse on the widget and returns the text of the tool tip that is shown.
QString ToolTipShownBy(QWidget& widget, const QPoint& at = {2, 2}) {
  // A tool tip stays for a moment before it disappears.
  QToolTip::hideText();
  EXPECT_TRUE(QTest::qWaitFor([] { return !QToolTip::isVisible(); }, 10000));
  QHelpEvent rest(QEvent::ToolTip, at, widget.mapToGlobal(at));
  QApplication::sendEvent(&widget, &rest);
  if (!QToolTip::isVisible()) return {};
  // The text as the tool tip's label shows it.
  const QString text = QToolTip::text();
  return Qt::mightBeRichText(text) ? QTextDocumentFragment::fromHtml(text).toPlainText() : text;
}

TEST_F(QtControlsTest, CutLabelShowsTheWholeTextAsToolTip) {
  form.resize(300, 100);
  QtLabel label(new ElidedLabel(&form));
  label.SetCaption(u"a nickname of <quite> some length");
  label.widget()->setGeometry(0, 0, 40, 20);
  form.show();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&form));
  EXPECT_EQ(ToolTipShownBy(*label.widget()), "a nickname of <quite> some length");
  label.SetCaption(u"a <b>bold</b> nickname, R&D");
  EXPECT_EQ(ToolTipShownBy(*label.widget()), "a <b>bold</b> nickname, R&D");
}

TEST_F(QtControlsTest, ToolTipShowsEveryTextAsItIs) {
  QtLabel label(new ElidedLabel(&form));
  form.show();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&form));
  for (const char* text :
       {"Red=Idle / Yellow=Wait", "R&D", "a < b & c > d", "<b>bold</b>", "two  blanks & <i>one</i>",
        "<p>one\ntwo", "&lt;b&gt; &amp; &nbsp;", "<a href='x'>link</a>", "<!doctype html>x"}) {
    label.SetToolTip(FromQt(QString::fromUtf8(text)));
    EXPECT_EQ(ToolTipShownBy(*label.widget()).toStdString(), text);
    EXPECT_EQ(label.widget()->accessibleDescription().toStdString(), text);
  }
}

TEST_F(QtControlsTest, MenuEntryShowsItsToolTipAndNoneElse) {
  QMenu menu;
  menu.setToolTipsVisible(true);
  QtMenuEntry with(menu.addAction(QString()));
  QtMenuEntry without(menu.addAction(QString()));
  with.SetCaption(u"Always on top");
  without.SetCaption(u"Date");
  with.SetToolTip(u"R&D <b>never</b>");
  menu.popup(QPoint(200, 200));
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&menu));
  const auto middleOf = [&menu](int at) {
    return menu.actionGeometry(menu.actions().at(at)).center();
  };
  EXPECT_EQ(ToolTipShownBy(menu, middleOf(0)), "R&D <b>never</b>");
  EXPECT_EQ(ToolTipShownBy(menu, middleOf(1)), "");
  with.SetToolTip(u"");
  EXPECT_EQ(ToolTipShownBy(menu, middleOf(0)), "");
}

TEST_F(QtControlsTest, LabelThatFitsShowsNoToolTipOfItsText) {
  form.resize(600, 100);
  QtLabel label(new ElidedLabel(&form));
  label.SetCaption(u"ann");
  label.widget()->setGeometry(0, 0, 400, 30);
  form.show();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&form));
  EXPECT_EQ(ToolTipShownBy(*label.widget()), "");
}

TEST_F(QtControlsTest, CutLabelKeepsAToolTipOfItsOwn) {
  form.resize(300, 100);
  QtLabel label(new ElidedLabel(&form));
  label.SetCaption(u"a text of quite some length");
  label.SetToolTip(u"Copyright notice");
  label.widget()->setGeometry(0, 0, 40, 20);
  form.show();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&form));
  EXPECT_EQ(ToolTipShownBy(*label.widget()), "Copyright notice");
}

TEST_F(QtControlsTest, WrappedLabelShowsMoreThanOneLine) {
  ElidedLabel label(&form);
  label.setWordWrap(true);
  label.setText(QStringLiteral("one two three four"));
  const int line = label.fontMetrics().height();
  const int width = label.fontMetrics().horizontalAdvance(QStringLiteral("one two t"));
  label.resize(width, line);
  form.resize(600, 200);
  form.show();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&form));
  EXPECT_NE(ToolTipShownBy(label), "") << "one line is too little";
  label.resize(width + 10, 3 * line);
  EXPECT_EQ(ToolTipShownBy(label), "");
}

TEST_F(QtControlsTest, LabelTakesABackColor) {
  QtLabel label(new ElidedLabel(nullptr));
  const std::unique_ptr<QWidget> owner(label.widget());
  label.widget()->resize(20, 20);
  label.SetBackColor(0x0000FF);
  EXPECT_EQ(Picture(*owner).pixelColor(10, 10), QColor(255, 0, 0));
  label.SetBackColor(0xFF0000);
  EXPECT_EQ(Picture(*owner).pixelColor(10, 10), QColor(0, 0, 255));
}

TEST_F(QtControlsTest, MouseEventsCarryTheButton) {
  QtLabel label(new ElidedLabel(&form));
  label.widget()->resize(50, 20);
  std::vector<MouseButton> down;
  std::vector<MouseButton> up;
  label.onMouseDown = [&](MouseButton button) { down.push_back(button); };
  label.onMouseUp = [&](MouseButton button) { up.push_back(button); };
  QTest::mouseClick(label.widget(), Qt::LeftButton);
  QTest::mouseClick(label.widget(), Qt::RightButton);
  QTest::mouseClick(label.widget(), Qt::MiddleButton);
  const std::vector all{MouseButton::Left, MouseButton::Right, MouseButton::Other};
  EXPECT_EQ(down, all);
  EXPECT_EQ(up, all);
}

TEST_F(QtControlsTest, CheckBoxClickedByTheUserRaisesClick) {
  QtCheckBox box(new QCheckBox(&form));
  int clicks = 0;
  box.onClick = [&] { ++clicks; };
  box.widget()->click();
  EXPECT_EQ(box.Value(), 1);
  EXPECT_EQ(clicks, 1);
}

TEST_F(QtControlsTest, ButtonPressedByTheUserRaisesClick) {
  QtButton button(new QPushButton(&form));
  int clicks = 0;
  button.onClick = [&] { ++clicks; };
  QTest::mouseClick(button.widget(), Qt::LeftButton);
  QTest::keyClick(button.widget(), Qt::Key_Space);
  EXPECT_EQ(clicks, 2);
  button.SetEnabled(false);
  QTest::mouseClick(button.widget(), Qt::LeftButton);
  EXPECT_EQ(clicks, 2);
}

TEST_F(QtControlsTest, ButtonOfADisabledWindowIsEnabledAllTheSame) {
  QtButton button(new QPushButton(&form));
  form.setEnabled(false);
  EXPECT_TRUE(button.Enabled());
  button.SetEnabled(false);
  EXPECT_FALSE(button.Enabled());
}

TEST_F(QtControlsTest, ButtonHasALetterWhereNoMenuBarHas) {
  QtButton button(new QPushButton(&form));
  button.SetCaption(u"R&D");
  EXPECT_EQ(button.widget()->text(), "&R&&D");
  QMainWindow window;
  window.menuBar()->addMenu("File");
  QtButton other(new QPushButton(&window));
  other.SetCaption(u"R&D");
  EXPECT_EQ(other.widget()->text(), "R&&D");
}

TEST_F(QtControlsTest, CheckBoxShowsTheAmpersandOfItsCaption) {
  QtCheckBox box(new QCheckBox(&form));
  box.SetCaption(u"B&W");
  EXPECT_EQ(box.widget()->text(), "&B&&W");
  EXPECT_EQ(box.widget()->shortcut(), QKeySequence("Alt+B"));
}

TEST_F(QtControlsTest, ChoosingACheckableEntryTurnsNoTick) {
  QMenu menu;
  QAction* action = menu.addAction(QString());
  action->setCheckable(true);
  QtMenuEntry entry(action);
  std::vector<bool> shownWithin;
  entry.onClick = [&] { shownWithin.push_back(action->isChecked()); };
  action->trigger();
  EXPECT_FALSE(action->isChecked());
  entry.SetChecked(true);
  action->trigger();
  EXPECT_TRUE(action->isChecked());
  EXPECT_EQ(shownWithin, (std::vector{false, true}));
}

TEST_F(QtControlsTest, HandlerOfAnEntryMayTurnItsTick) {
  QMenu menu;
  QAction* action = menu.addAction(QString());
  action->setCheckable(true);
  QtMenuEntry entry(action);
  entry.onClick = [&] { entry.SetChecked(!entry.Checked()); };
  action->trigger();
  EXPECT_TRUE(action->isChecked());
  action->trigger();
  EXPECT_FALSE(action->isChecked());
}

TEST_F(QtControlsTest, MenusShowTheAmpersandsOfTheirCaptions) {
  QMenu qtMenu;
  QtMenu menu(&qtMenu);
  QtMenuEntry entry(qtMenu.addAction(QString()));
  menu.SetCaption(u"A&B");
  entry.SetCaption(u"C&D");
  EXPECT_EQ(qtMenu.title(), "A&&B");
  EXPECT_EQ(qtMenu.actions().first()->text(), "&C&&D");
}

TEST_F(QtControlsTest, LampIsPaintedInItsColors) {
  auto* widget = new LampWidget(&form);
  widget->resize(40, 40);
  QtLamp lamp(widget);
  for (const Color color : {Color(255), Color(65535), Color(65280)}) {
    lamp.SetFillColor(color);
    lamp.SetBorderColor(color);
    const QColor shown = Picture(*widget).pixelColor(20, 20);
    EXPECT_NEAR(shown.hue(), ToQt(color).hue(), 2);
    EXPECT_GT(shown.value(), 200);
  }
}

TEST_F(QtControlsTest, LampLeavesTheMouseToItsFrame) {
  auto* frame = new QFrame(&form);
  frame->resize(40, 40);
  auto* lamp = new LampWidget(frame);
  lamp->resize(40, 40);
  QtControl<Control, QFrame> picShape(frame);
  int releases = 0;
  picShape.onMouseUp = [&](MouseButton) { ++releases; };
  form.show();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&form));
  QTest::mouseClick(form.windowHandle(), Qt::RightButton, {}, QPoint(20, 20));
  EXPECT_EQ(releases, 1);
}

TEST_F(QtControlsTest, TimerIsSilentUntilStartedAndThenTicks) {
  QtTimer timer(&form);
  int ticks = 0;
  timer.onTimer = [&] { ++ticks; };
  auto* inside = form.findChild<QTimer*>("tmrTimer");
  ASSERT_NE(inside, nullptr);
  EXPECT_EQ(inside->interval(), 1000);
  EXPECT_FALSE(inside->isActive());
  timer.Start();
  EXPECT_TRUE(QTest::qWaitFor([&] { return ticks == 1; }, 10000));
}

}  // namespace
}  // namespace verlume::qt
