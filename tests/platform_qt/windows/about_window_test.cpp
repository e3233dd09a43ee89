#include "platform_qt/windows/about_window.h"

#include <gtest/gtest.h>

#include <QClipboard>
#include <QTest>
#include <QTimer>

#include "platform_qt/dialogs/dialogs.h"
#include "platform_qt/dialogs/modal_driver.h"
#include "platform_qt/system/system.h"
#include "platform_qt/windows/window_focus.h"

namespace verlume::qt {
namespace {

constexpr const char16_t* kLongText =
    u"Η εφαρμογή αυτή επιτρέπει σε δύο απομακρυσμένους υπολογιστές να συνδεθούν μεταξύ τους, ώστε "
    u"οι κάτοχοί τους να μπορούν να ανταλλάσσουν γραπτά μηνύματα, σε πραγματικό χρόνο.";

class QtAboutWindowTest : public testing::Test {
 protected:
  QtAboutWindowTest() {
    mainWindow.setGeometry(500, 300, 600, 500);
    EXPECT_TRUE(ShowAndWait(mainWindow));
    view.lblTitle.SetCaption(u"Verlume");
    view.lblVersion.SetCaption(u"Version 0001.0000.0000");
    view.lblDescription.SetCaption(kLongText);
    view.lblDisclaimer.SetCaption(kLongText);
    view.lblCredit.SetCaption(u"Credit");
    view.cmdOK.SetCaption(u"OK");
    view.cmdSysInfo.SetCaption(u"Πληροφορίες συστήματος...");
    view.cmdOK.onClick = [this] { view.window.Unload(); };
  }

  // Shows the box, does the act and closes the box.
  void ShowAnd(const std::function<void()>& act) {
    const ModalDriver driver([&](QDialog& box) {
      EXPECT_EQ(&box, &form);
      act();
      view.window.Unload();
    });
    view.window.ShowModal();
    EXPECT_FALSE(form.isVisible());
  }
  // Shows the box; the act closes it.
  void ShowUntil(const std::function<void(QDialog&)>& act) {
    const ModalDriver driver(act);
    view.window.ShowModal();
    EXPECT_FALSE(form.isVisible());
  }

  QWidget mainWindow;
  QtAboutWindow frmAbout{&mainWindow};
  AboutWindow& view = frmAbout.View();
  AboutForm& form = frmAbout.form();
};

TEST_F(QtAboutWindowTest, EveryElementBearsItsName) {
  EXPECT_EQ(form.objectName(), "frmAbout");
  for (const char* name : {"picIcon", "lblTitle", "lblVersion", "lblDescription", "lblDisclaimer",
                           "lblCredit", "cmdOK", "cmdSysInfo"}) {
    EXPECT_NE(form.findChild<QWidget*>(QLatin1String(name)), nullptr) << name;
  }
}

TEST_F(QtAboutWindowTest, KeepsTheUserFromTheMainWindow) {
  ShowAnd([this] {
    EXPECT_EQ(QApplication::activeModalWidget(), &form);
    EXPECT_EQ(form.windowModality(), Qt::ApplicationModal);
  });
  EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

TEST_F(QtAboutWindowTest, EnterPressesOkAndEscapeClosesAsTheUser) {
  int pressed = 0;
  view.cmdOK.onClick = [&] {
    ++pressed;
    view.window.Unload();
  };
  std::vector<UnloadMode> asked;
  view.window.onQueryUnload = [&](bool&, UnloadMode mode) { asked.push_back(mode); };
  for (QWidget* focused : {static_cast<QWidget*>(form.cmdOK), static_cast<QWidget*>(form.lblTitle),
                           static_cast<QWidget*>(form.lblDescription)}) {
    ShowUntil([&](QDialog&) {
      focused->setFocus();
      QTest::keyClick(focused, Qt::Key_Return);
    });
    ShowUntil([&](QDialog&) {
      focused->setFocus();
      QTest::keyClick(focused, Qt::Key_Escape);
    });
  }
  EXPECT_EQ(pressed, 3);
  const std::vector pair{UnloadMode::Code, UnloadMode::User};
  EXPECT_EQ(asked, (std::vector{pair[0], pair[1], pair[0], pair[1], pair[0], pair[1]}));
}

TEST_F(QtAboutWindowTest, RightButtonOpensNoMenuOfQts) {
  ShowAnd([&] {
    for (QWidget* element : form.findChildren<QWidget*>()) {
      element->setWhatsThis("help");
      const QPoint place = element->rect().center();
      QContextMenuEvent menu(QContextMenuEvent::Mouse, place, element->mapToGlobal(place));
      QTimer::singleShot(0, &form, [&] {
        QWidget* popup = QApplication::activePopupWidget();
        EXPECT_EQ(popup, nullptr) << element->objectName().toStdString();
        if (popup) popup->close();
      });
      QApplication::sendEvent(element, &menu);
      QApplication::processEvents();
    }
  });
}

TEST_F(QtAboutWindowTest, RefusedEscapeLeavesTheBox) {
  view.window.onQueryUnload = [](bool& cancel, UnloadMode mode) {
    cancel = mode == UnloadMode::User;
  };
  ShowAnd([this] {
    QTest::keyClick(&form, Qt::Key_Escape);
    EXPECT_TRUE(form.isVisible());
  });
}

TEST_F(QtAboutWindowTest, StandsInTheMiddleOfTheMainWindowEachTime) {
  for (int time = 0; time < 2; ++time) {
    ShowAnd([this] {
      const QPoint off = form.geometry().center() - mainWindow.geometry().center();
      EXPECT_LE(off.manhattanLength(), 60) << off.x() << ' ' << off.y();
      form.move(0, 0);
    });
  }
}

TEST_F(QtAboutWindowTest, GrowsWithItsTexts) {
  int shortHeight = 0;
  view.lblDescription.SetCaption(u"Short.");
  ShowAnd([&] { shortHeight = form.height(); });
  view.lblDescription.SetCaption(kLongText);
  ShowAnd([&] {
    EXPECT_GT(form.height(), shortHeight + form.fontMetrics().height());
    for (const QLabel* text : form.findChildren<QLabel*>()) {
      EXPECT_GE(text->height(), text->heightForWidth(text->width())) << text->objectName().data();
      EXPECT_TRUE(form.rect().contains(text->geometry()));
    }
    EXPECT_GE(form.cmdSysInfo->width(), form.cmdSysInfo->sizeHint().width());
  });
}

TEST_F(QtAboutWindowTest, TextsAreCopiedByTheKeyboard) {
  ShowAnd([this] {
    for (QLabel* text : form.findChildren<QLabel*>()) {
      text->setFocus();
      QTest::keyClick(text, Qt::Key_A, Qt::ControlModifier);
      QTest::keyClick(text, Qt::Key_C, Qt::ControlModifier);
      EXPECT_EQ(QApplication::clipboard()->text(), text->text());
    }
  });
}

TEST_F(QtAboutWindowTest, ForgetsWhatWasSelectedInItBefore) {
  ShowAnd([this] { form.lblVersion->setSelection(0, 7); });
  ShowAnd([this] { EXPECT_FALSE(form.lblVersion->hasSelectedText()); });
}

TEST_F(QtAboutWindowTest, MarkupIsText) {
  for (const QLabel* text : form.findChildren<QLabel*>()) {
    EXPECT_EQ(text->textFormat(), Qt::PlainText);
  }
}

TEST_F(QtAboutWindowTest, ReleaseOfTheRightButtonReachesItsTexts) {
  std::vector<MouseButton> released;
  view.lblDescription.onMouseUp = [&](MouseButton button) { released.push_back(button); };
  ShowAnd([this] {
    const QPoint middle = form.lblDescription->mapTo(static_cast<QWidget*>(&form),
                                                     form.lblDescription->rect().center());
    QTest::mouseClick(form.windowHandle(), Qt::RightButton, {}, middle);
  });
  EXPECT_EQ(released, std::vector{MouseButton::Right});
  for (const QLabel* text : form.findChildren<QLabel*>()) {
    EXPECT_EQ(text->contextMenuPolicy(), Qt::PreventContextMenu) << "a menu takes the release";
  }
}

TEST_F(QtAboutWindowTest, BoxesOverItBelongToIt) {
  QtDialogs dialogs(&mainWindow);
  ShowAnd([&] {
    const ModalDriver driver([this](QDialog& box) {
      EXPECT_EQ(box.parentWidget(), &form);
      box.reject();
    });
    dialogs.ShowMessage(Note(u"note", u"title"));
    EXPECT_TRUE(form.isVisible());
  });
}

TEST_F(QtAboutWindowTest, ShownAgainWhileItIsShownChangesNothing) {
  ShowAnd([this] {
    view.window.ShowModal();
    EXPECT_TRUE(form.isVisible());
  });
}

TEST_F(QtAboutWindowTest, GoesWhenTheProgramEndsUnderIt) {
  int asked = 0;
  view.window.onQueryUnload = [&](bool&, UnloadMode) { ++asked; };
  QtApplication application;
  bool isBack = false;
  QTimer::singleShot(0, &application, [&] {
    ShowUntil([&](QDialog&) { application.End(); });
    isBack = true;
  });
  application.Run();
  EXPECT_TRUE(isBack);
  EXPECT_EQ(asked, 0);
  EXPECT_FALSE(mainWindow.isVisible());
}

TEST_F(QtAboutWindowTest, ShowsTheProgramsIcon) {
  QPixmap square(64, 64);
  square.fill(Qt::red);
  mainWindow.setWindowIcon(square);
  QtAboutWindow other(&mainWindow);
  EXPECT_EQ(other.form().picIcon->grab().toImage().pixelColor(20, 20), QColor(Qt::red));
}

}  // namespace
}  // namespace verlume::qt
