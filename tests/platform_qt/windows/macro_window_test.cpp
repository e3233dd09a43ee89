#include "platform_qt/windows/macro_window.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QSet>
#include <QTest>

#include "platform_fake/fake_file_system.h"
#include "platform_qt/dialogs/modal_driver.h"
#include "platform_qt/windows/window_focus.h"

namespace verlume::qt {
namespace {

class QtMacroWindowTest : public testing::Test {
 protected:
  QtMacroWindowTest() {
    mainWindow.setGeometry(20, 20, 300, 200);
    EXPECT_TRUE(ShowAndWait(mainWindow));
    SetEnglish();
    view.rtbMacroText.SetLocked(true);
  }

  void SetTexts(const std::vector<const char16_t*>& texts) {
    std::size_t at = 0;
    for (Button* button : {&view.cmdAdd, &view.cmdEdit, &view.cmdSave, &view.cmdSaveAs,
                           &view.cmdCancel, &view.cmdDelete, &view.cmdRun, &view.cmdClose}) {
      button->SetCaption(texts[at++]);
    }
    for (CheckBox* box : {&view.chkBold, &view.chkItalics, &view.chkUnderlined}) {
      box->SetCaption(texts[at++]);
    }
  }
  void SetEnglish() {
    SetTexts({u"Add", u"Edit", u"Save", u"Save as", u"Cancel", u"Delete", u"Run", u"Close", u"Bold",
              u"Italics", u"Underline"});
  }
  void SetGreek() {
    SetTexts({u"Προσθήκη", u"Επεξεργασία", u"Αποθήκευση", u"Αποθήκευση ως", u"Άκυρο", u"Διαγραφή",
              u"Εκτέλεση", u"Κλείσιμο", u"Έντονη γραφή", u"Πλάγια γραφή", u"Υπογραμμισμένη γραφή"});
  }

  // Shows the window, does the act and closes the window.
  void ShowAnd(const std::function<void()>& act) {
    const ModalDriver driver([&](QDialog& shown) {
      EXPECT_EQ(&shown, &form);
      EXPECT_TRUE(WaitForFocus(form));
      act();
      view.window.Unload();
    });
    view.window.ShowModal();
    EXPECT_FALSE(form.isVisible());
  }

  // The widgets that Tab reaches, starting from the list, until it is back.
  QStringList TabOrder(Qt::Key key) {
    QStringList names;
    view.lstMacroNames.SetFocus();
    do {
      QTest::keyClick(form.focusWidget(), key,
                      key == Qt::Key_Backtab ? Qt::ShiftModifier : Qt::NoModifier);
      names.append(form.focusWidget()->objectName());
    } while (names.last() != "lstMacroNames" && names.size() < 20);
    return names;
  }

  QWidget* TextWidget() { return form.findChild<QWidget*>("rtbMacroText"); }

  QWidget mainWindow;
  fake::FakeFileSystem files;
  QtMacroWindow frmMacros{&mainWindow, files};
  MacroWindow& view = frmMacros.View();
  MacroForm& form = frmMacros.form();
};

TEST_F(QtMacroWindowTest, EveryElementBearsItsName) {
  EXPECT_EQ(form.objectName(), "frmMacros");
  for (const char* name :
       {"lstMacroNames", "rtbMacroText", "cmdAdd", "cmdEdit", "cmdSave", "cmdSaveAs", "cmdCancel",
        "cmdDelete", "cmdRun", "cmdClose", "lblColour", "chkBold", "chkItalics", "chkUnderlined"}) {
    EXPECT_NE(form.findChild<QWidget*>(QLatin1String(name)), nullptr) << name;
  }
}

TEST_F(QtMacroWindowTest, KeepsTheUserFromTheMainWindow) {
  ShowAnd([this] {
    EXPECT_EQ(QApplication::activeModalWidget(), &form);
    EXPECT_EQ(form.windowModality(), Qt::ApplicationModal);
  });
}

TEST_F(QtMacroWindowTest, StandsInTheMiddleOfTheScreenWithItsFrameEachTime) {
  for (int time = 0; time < 2; ++time) {
    ShowAnd([this] {
      const auto off = [this] {
        return form.windowHandle()->frameGeometry().center() - form.screen()->geometry().center();
      };
      EXPECT_TRUE(QTest::qWaitFor([&] { return off().manhattanLength() <= 2; }, 10000))
          << off().x() << ' ' << off().y();
      form.move(0, 0);
    });
  }
}

TEST_F(QtMacroWindowTest, WindowLargerThanTheScreenBeginsOnIt) {
  form.setMinimumSize(form.screen()->size() + QSize(200, 200));
  ShowAnd([this] {
    const QPoint place = form.pos();
    EXPECT_TRUE(form.screen()->geometry().contains(place)) << place.x() << ' ' << place.y();
  });
}

TEST_F(QtMacroWindowTest, StaysWhereTheUserPutItWhenItComesBackFromTheTaskBar) {
  ShowAnd([this] {
    form.move(40, 50);
    const QPoint place = form.pos();
    QShowEvent back;
    QSpontaneKeyEvent::setSpontaneous(&back);
    qApp->notify(&form, &back);
    EXPECT_EQ(form.pos(), place);
  });
}

TEST_F(QtMacroWindowTest, CutsNoCaptionInEitherLanguage) {
  for (const bool isGreek : {false, true}) {
    isGreek ? SetGreek() : SetEnglish();
    ShowAnd([this] {
      form.resize(form.minimumSizeHint());
      form.layout()->activate();
      for (const QWidget* widget : form.findChildren<QAbstractButton*>()) {
        EXPECT_GE(widget->width(), widget->sizeHint().width()) << widget->objectName().data();
        EXPECT_TRUE(form.rect().contains(widget->geometry())) << widget->objectName().data();
      }
    });
  }
}

TEST_F(QtMacroWindowTest, ControlsDoNotOverlap) {
  ShowAnd([this] {
    const auto widgets = form.findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
    for (const QWidget* one : widgets) {
      for (const QWidget* other : widgets) {
        const bool bothNamed = !one->objectName().isEmpty() && !other->objectName().isEmpty();
        if (one == other || !bothNamed || one->inherits("QSizeGrip")) continue;
        EXPECT_FALSE(one->geometry().intersects(other->geometry()))
            << one->objectName().data() << ' ' << other->objectName().data();
      }
    }
  });
}

TEST_F(QtMacroWindowTest, ListAndTextTakeTheRoomOfALargerWindow) {
  ShowAnd([this] {
    const QSize list = form.lstMacroNames->size();
    const QSize text = TextWidget()->size();
    const int button = form.cmdAdd->width();
    form.resize(form.size() + QSize(300, 200));
    EXPECT_TRUE(QTest::qWaitFor([&] { return TextWidget()->height() > text.height() + 150; }));
    EXPECT_GT(TextWidget()->width(), text.width() + 100);
    EXPECT_GT(form.lstMacroNames->width(), list.width() + 50);
    EXPECT_GT(form.lstMacroNames->height(), list.height() + 150);
    EXPECT_EQ(form.cmdAdd->width(), button);
  });
}

TEST_F(QtMacroWindowTest, LettersOfTheButtonsLeadToOneEach) {
  for (const bool isGreek : {false, true}) {
    isGreek ? SetGreek() : SetEnglish();
    QSet<QChar> letters;
    const auto buttons = form.findChildren<QAbstractButton*>();
    for (const QAbstractButton* button : buttons) {
      const qsizetype mark = button->text().indexOf(u'&');
      ASSERT_GE(mark, 0) << button->objectName().data();
      letters.insert(button->text()[mark + 1].toUpper());
    }
    EXPECT_EQ(buttons.size(), 11);
    EXPECT_EQ(letters.size(), buttons.size());
  }
}

TEST_F(QtMacroWindowTest, AltAndALetterPressesAButtonFromTheText) {
  int saved = 0;
  view.cmdSave.onClick = [&] { ++saved; };
  ShowAnd([&] {
    view.rtbMacroText.SetLocked(false);
    view.rtbMacroText.SetFocus();
    QTest::sendKeyEvent(QTest::Click, TextWidget(), Qt::Key_S, "s", Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([&] { return saved == 1; }, 10000));
  });
}

TEST_F(QtMacroWindowTest, TabGoesRoundWithoutALockedText) {
  ShowAnd([this] {
    view.rtbMacroText.onGotFocus = [this] { view.lstMacroNames.SetFocus(); };
    const QStringList round = {"chkBold",   "chkItalics", "chkUnderlined", "cmdAdd",
                               "cmdEdit",   "cmdSave",    "cmdSaveAs",     "cmdCancel",
                               "cmdDelete", "cmdRun",     "cmdClose",      "lstMacroNames"};
    EXPECT_EQ(TabOrder(Qt::Key_Tab), round);
    QStringList back(round.rbegin() + 1, round.rend());
    back.append("lstMacroNames");
    EXPECT_EQ(TabOrder(Qt::Key_Backtab), back);
  });
}

TEST_F(QtMacroWindowTest, TabInTheTextIsACharacterAndShiftTabLeavesIt) {
  ShowAnd([this] {
    std::vector<int> pressed;
    view.rtbMacroText.onKeyPress = [&](int& code) { pressed.push_back(std::exchange(code, 0)); };
    view.rtbMacroText.SetLocked(false);
    view.rtbMacroText.SetFocus();
    QTest::keyClick(TextWidget(), Qt::Key_Tab);
    EXPECT_THAT(pressed, testing::ElementsAre(9));
    EXPECT_TRUE(TextWidget()->hasFocus());
    QTest::keyClick(TextWidget(), Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_THAT(pressed, testing::ElementsAre(9));
    EXPECT_EQ(form.focusWidget(), form.chkUnderlined);
  });
}

TEST_F(QtMacroWindowTest, KeysOfTheStyleAreCharactersOnAGreekKeyboardToo) {
  ShowAnd([this] {
    std::vector<int> pressed;
    view.rtbMacroText.onKeyPress = [&](int& code) { pressed.push_back(std::exchange(code, 0)); };
    view.rtbMacroText.SetLocked(false);
    view.rtbMacroText.SetFocus();
    for (const char16_t key : std::u16string_view(u"BIUKFSΒΙΘΚΦΣ")) {
      QTest::sendKeyEvent(QTest::Click, TextWidget(), Qt::Key(key), QString(), Qt::ControlModifier);
    }
    EXPECT_THAT(pressed, testing::ElementsAre(2, 9, 21, 11, 6, 19, 2, 9, 21, 11, 6, 19));
  });
}

TEST_F(QtMacroWindowTest, EnterPressesOnlyTheButtonThatHasTheFocus) {
  QStringList pressed;
  view.cmdAdd.onClick = [&] { pressed.append("add"); };
  view.cmdRun.onClick = [&] { pressed.append("run"); };
  ShowAnd([&] {
    for (QWidget* focused : {static_cast<QWidget*>(form.lstMacroNames),
                             static_cast<QWidget*>(form.chkBold), TextWidget()}) {
      focused->setFocus();
      QTest::keyClick(focused, Qt::Key_Return);
    }
    EXPECT_EQ(pressed, QStringList());
    form.cmdRun->setFocus();
    QTest::keyClick(form.cmdRun, Qt::Key_Return);
    EXPECT_EQ(pressed, QStringList{"run"});
  });
}

TEST_F(QtMacroWindowTest, CloseBoxAsksAsTheUser) {
  std::vector<UnloadMode> asked;
  view.window.onQueryUnload = [&](bool& cancel, UnloadMode mode) {
    asked.push_back(mode);
    cancel = mode == UnloadMode::User;
  };
  ShowAnd([&] {
    form.close();
    EXPECT_TRUE(form.isVisible());
    EXPECT_EQ(asked, std::vector{UnloadMode::User});
  });
}

TEST_F(QtMacroWindowTest, EscapeDoesNothing) {
  int asked = 0;
  view.window.onQueryUnload = [&](bool&, UnloadMode mode) { asked += mode == UnloadMode::User; };
  ShowAnd([&] {
    for (QWidget* focused :
         {static_cast<QWidget*>(form.lstMacroNames), static_cast<QWidget*>(form.chkBold),
          TextWidget(), static_cast<QWidget*>(form.cmdAdd)}) {
      focused->setFocus();
      QTest::keyClick(focused, Qt::Key_Escape);
      EXPECT_TRUE(form.isVisible()) << focused->objectName().data();
    }
    EXPECT_EQ(asked, 0);
  });
}

TEST_F(QtMacroWindowTest, RightButtonReachesTheControlsAndDisabledButtons) {
  int helped = 0;
  const auto count = [&](MouseButton button) { helped += button == MouseButton::Right; };
  view.chkBold.onMouseUp = view.lblColour.onMouseUp = view.lstMacroNames.onMouseUp =
      view.cmdAdd.onMouseUp = view.cmdSave.onMouseUp = count;
  view.cmdSave.SetEnabled(false);
  ShowAnd([&] {
    for (QWidget* widget :
         {static_cast<QWidget*>(form.chkBold), static_cast<QWidget*>(form.lblColour),
          static_cast<QWidget*>(form.lstMacroNames), static_cast<QWidget*>(form.cmdAdd),
          static_cast<QWidget*>(form.cmdSave)}) {
      const QPoint place = widget->mapTo(static_cast<QWidget*>(&form), widget->rect().center());
      QTest::mouseClick(form.windowHandle(), Qt::RightButton, {}, place);
    }
  });
  EXPECT_EQ(helped, 5);
}

TEST_F(QtMacroWindowTest, TextIsOfOneLineThatWraps) {
  ShowAnd([this] {
    view.rtbMacroText.SetText(u"one\ntwo " + std::u16string(500, u'x'));
    EXPECT_EQ(view.rtbMacroText.Text().find(u'\n'), std::u16string::npos);
    auto* text = qobject_cast<QPlainTextEdit*>(TextWidget());
    EXPECT_GT(text->document()->firstBlock().layout()->lineCount(), 3);
    EXPECT_GT(text->viewport()->height(), 6 * text->fontMetrics().height());
  });
}

TEST_F(QtMacroWindowTest, ListAndTextAreReadByTheirNames) {
  view.lstMacroNames.SetAccessibleName(u"Macro selection listbox");
  view.rtbMacroText.SetAccessibleName(u"Macro editing textbox");
  EXPECT_EQ(form.lstMacroNames->accessibleName(), "Macro selection listbox");
  EXPECT_EQ(TextWidget()->accessibleName(), "Macro editing textbox");
}

TEST_F(QtMacroWindowTest, ColourIsShownAsItIs) {
  view.lblColour.SetBackColor(0x0000FF);
  ShowAnd([this] {
    const QImage shown = form.lblColour->grab().toImage();
    EXPECT_EQ(shown.pixelColor(5, shown.height() / 2), QColor(255, 0, 0));
  });
}

}  // namespace
}  // namespace verlume::qt
