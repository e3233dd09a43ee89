// The help viewer with a small book, and the help window that it opens.
#pragma once

#include <gtest/gtest.h>

#include <QLineEdit>
#include <QListWidget>
#include <QScrollBar>
#include <QTest>
#include <QTreeWidget>

#include "platform_fake/fake_file_system.h"
#include "platform_qt/help/help_files.h"
#include "platform_qt/help/help_viewer.h"
#include "platform_qt/windows/main_window.h"
#include "platform_qt/windows/window_focus.h"

namespace verlume::qt {

class HelpWindowFixture : public testing::Test {
 protected:
  HelpWindowFixture() { SetLanguage(false); }
  void SetLanguage(bool isGreek) { viewer.SetHelpFile(FromQt(SmallHelpFile(isGreek)), isGreek); }

  static QList<HelpForm*> Windows() {
    QList<HelpForm*> windows;
    for (QWidget* window : QApplication::topLevelWidgets()) {
      if (window->objectName() == "frmHelp") windows.append(static_cast<HelpForm*>(window));
    }
    return windows;
  }
  void Open() {
    viewer.ShowContents();
    ASSERT_EQ(Windows().size(), 1);
    form = Windows().first();
    ASSERT_TRUE(WaitForFocus(*form));
  }
  template <class Widget>
  Widget* Named(const char* name) {
    return form->findChild<Widget*>(QLatin1String(name));
  }
  QTextBrowser* Topic() { return Named<QTextBrowser>("txtTopic"); }
  QTreeWidget* Contents() { return Named<QTreeWidget>("tvwContents"); }
  QString CurrentLine() {
    return Contents()->currentItem() ? Contents()->currentItem()->text(0) : QString();
  }
  QListWidget* Results() { return Named<QListWidget>("lstResults"); }
  QLineEdit* Search() { return Named<QLineEdit>("txtSearch"); }
  QString Title() { return Topic()->document()->firstBlock().text().trimmed(); }
  QString Marked() {
    QStringList marked;
    for (const auto& mark : Topic()->extraSelections()) marked.append(mark.cursor.selectedText());
    return marked.join('|');
  }
  void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QTest::keyClick(form->focusWidget() ? form->focusWidget() : form, key, modifiers);
  }
  // Follows the first link of the topic by keyboard.
  void FollowLink() {
    Topic()->setFocus();
    Press(Qt::Key_Tab);
    Press(Qt::Key_Return);
  }

  fake::FakeFileSystem files;
  QtMainWindow frmMain{files};
  QtHelpViewer viewer{&frmMain.form()};
  QPointer<HelpForm> form;
};

}  // namespace verlume::qt
