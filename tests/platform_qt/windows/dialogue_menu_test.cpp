// The menu of the dialogue pane, which opens on the spot.
#include <gtest/gtest.h>

#include <QContextMenuEvent>
#include <QMenu>
#include <QPlainTextEdit>
#include <QTest>
#include <QTextBlock>
#include <vector>

#include "platform_fake/fake_file_system.h"
#include "platform_qt/windows/main_window.h"
#include "platform_qt/windows/window_focus.h"

namespace verlume::qt {
namespace {

class DialoguePaneMenuTest : public testing::Test {
 protected:
  DialoguePaneMenuTest() {
    view.rtbData.SetText(u"one\ntwo");
    view.rtbData.onContextMenu = [this](std::size_t position) {
      asked.push_back(position);
      return std::vector<PopupEntry>{
          {.caption = u"Copy", .perform = [this] { chosen += u"copy "; }},
          {.caption = u"Open the address",
           .enabled = false,
           .perform = [this] { chosen += u"? "; }},
          {.caption = u"Find", .separatorBefore = true, .perform = [this] { chosen += u"find "; }}};
    };
    view.window.Show();
  }
  ~DialoguePaneMenuTest() override {
    if (QMenu* menu = Menu()) menu->close();
  }

  QMenu* Menu() { return pane->findChild<QMenu*>(); }
  // As the system tells of a right click.
  void OpenByMouse(const QPoint& place) {
    QWidget* text = pane->viewport();
    QContextMenuEvent event(QContextMenuEvent::Mouse, place, text->mapToGlobal(place));
    QCoreApplication::sendEvent(text, &event);
  }
  // As the system tells the window of the menu key; it passes that on to where the focus is.
  void OpenByKey() {
    QContextMenuEvent event(QContextMenuEvent::Keyboard, {}, {});
    QCoreApplication::sendEvent(form.windowHandle(), &event);
  }
  void Choose(qsizetype entry) {
    Menu()->setActiveAction(Menu()->actions().at(entry));
    QTest::keyClick(Menu(), Qt::Key_Return);
  }

  fake::FakeFileSystem files;
  QtMainWindow frmMain{files};
  MainForm& form = frmMain.form();
  MainWindow& view = frmMain.View();
  QPlainTextEdit* pane = form.Find<QPlainTextEdit>("rtbData");
  std::vector<std::size_t> asked;
  std::u16string chosen;
};

TEST_F(DialoguePaneMenuTest, HasTheEntriesThatTheProgramNames) {
  OpenByMouse({5, 5});
  ASSERT_NE(Menu(), nullptr);
  EXPECT_TRUE(Menu()->isVisible());
  QStringList texts;
  QStringList disabled;
  for (const QAction* entry : Menu()->actions()) {
    const QString text = entry->isSeparator() ? "-" : entry->text().remove('&');
    texts.append(text);
    if (!entry->isEnabled() && !entry->isSeparator()) disabled.append(text);
  }
  EXPECT_EQ(texts, (QStringList{"Copy", "Open the address", "-", "Find"}));
  EXPECT_EQ(disabled, QStringList{"Open the address"});
}

TEST_F(DialoguePaneMenuTest, ByMouseItIsForThePlaceUnderThePointer) {
  QTextCursor last(pane->document()->lastBlock());
  OpenByMouse(pane->cursorRect(last).center());
  EXPECT_EQ(asked, std::vector<std::size_t>{4});
}

TEST_F(DialoguePaneMenuTest, ByKeyItIsForTheCaretsPlace) {
  form.activateWindow();
  ASSERT_TRUE(WaitForFocus(form));
  view.rtbData.SetFocus();
  view.rtbData.Select(5, 0);
  OpenByKey();
  EXPECT_EQ(asked, std::vector<std::size_t>{5});
  ASSERT_NE(Menu(), nullptr);
  EXPECT_TRUE(Menu()->isVisible());
}

TEST_F(DialoguePaneMenuTest, AnEntryIsPerformedWhenItIsChosen) {
  OpenByMouse({5, 5});
  ASSERT_NE(Menu(), nullptr);
  EXPECT_EQ(chosen, u"");
  Choose(3);
  EXPECT_EQ(chosen, u"find ");
  const auto isGone = [this] { return Menu() == nullptr; };
  ASSERT_TRUE(QTest::qWaitFor(isGone, 10000)) << "it leaves nothing behind";
  OpenByMouse({5, 5});
  ASSERT_NE(Menu(), nullptr);
  Choose(0);
  EXPECT_EQ(chosen, u"find copy ");
}

TEST_F(DialoguePaneMenuTest, ADisabledEntryCannotBeChosen) {
  OpenByMouse({5, 5});
  ASSERT_NE(Menu(), nullptr);
  Choose(1);
  EXPECT_EQ(chosen, u"");
}

}  // namespace
}  // namespace verlume::qt
