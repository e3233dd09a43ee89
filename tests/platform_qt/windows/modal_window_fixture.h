// A modal window over a main one, and a user who does something in it.
#pragma once

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QLabel>
#include <QTest>

#include "platform_qt/dialogs/modal_driver.h"
#include "platform_qt/windows/window_focus.h"

namespace verlume::qt {

template <class QtModalWindow>
class ModalWindowTest : public testing::Test {
 protected:
  ModalWindowTest() {
    mainWindow.setGeometry(300, 200, 600, 500);
    EXPECT_TRUE(ShowAndWait(mainWindow));
  }

  // The window has it once the window manager has made it the active one.
  bool HasKeyboard() {
    const bool has = QTest::qWaitFor([this] { return form.focusWidget() != nullptr; }, 10000);
    EXPECT_TRUE(has);
    return has;
  }
  // Shows the window, does the act and closes the window.
  void ShowAnd(const std::function<void()>& act) {
    const ModalDriver driver([&](QDialog&) {
      if (HasKeyboard()) act();
      view.window.Unload();
    });
    view.window.ShowModal();
    EXPECT_FALSE(form.isVisible());
  }
  void ExpectOneOfEach(const std::vector<const char*>& names) {
    for (const char* name : names) {
      EXPECT_EQ(form.template findChildren<QWidget*>(QLatin1String(name)).size(), 1) << name;
    }
  }
  // The names of the first stops of the Tab key, beginning with the one that has the focus.
  std::string TabOrder(int stops) {
    QStringList order;
    for (int step = 0; step < stops; ++step) {
      order.append(form.focusWidget()->objectName());
      QTest::keyClick(form.focusWidget(), Qt::Key_Tab);
    }
    return order.join(u' ').toStdString();
  }
  // The window fits on the smallest screen, and what is shown in it has its room.
  void ExpectNothingIsCut() {
    for (const QLabel* text : form.template findChildren<QLabel*>()) {
      if (!text->isVisible()) continue;
      EXPECT_GE(text->height(), text->heightForWidth(text->width())) << text->objectName().data();
      EXPECT_GE(text->width(), text->minimumSizeHint().width()) << text->objectName().data();
    }
    for (const QAbstractButton* button : form.template findChildren<QAbstractButton*>()) {
      if (button->objectName().startsWith(u"qt_")) continue;
      EXPECT_GE(button->width(), button->sizeHint().width()) << button->objectName().data();
      EXPECT_TRUE(button->text().contains(u'&')) << "a letter";
    }
    for (const QWidget* part :
         form.template findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly)) {
      if (!part->isVisible()) continue;
      EXPECT_TRUE(form.rect().contains(part->geometry())) << part->objectName().data();
    }
    EXPECT_LE(form.frameGeometry().width(), 640);
    EXPECT_LE(form.frameGeometry().height(), 480);
  }

  QWidget mainWindow;
  QtModalWindow modalWindow{&mainWindow};
  std::remove_reference_t<decltype(modalWindow.View())>& view = modalWindow.View();
  std::remove_reference_t<decltype(modalWindow.form())>& form = modalWindow.form();
};

}  // namespace verlume::qt
