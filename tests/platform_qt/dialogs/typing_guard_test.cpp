#include "platform_qt/dialogs/typing_guard.h"

#include <gtest/gtest.h>

#include <QCheckBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>

#include "platform_qt/dialogs/dialogs.h"
#include "platform_qt/dialogs/modal_driver.h"
#include "platform_qt/windows/window_focus.h"

namespace verlume::qt {
namespace {

// A box that nobody asked for, over a window with a text control. Keys are sent to the window of
// the box, as the window system does.
class TypingGuardTest : public testing::Test {
 protected:
  TypingGuardTest() { EXPECT_TRUE(ShowAndWait(mainWindow)); }

  Answer AnswerTo(std::function<void(QMessageBox&)> act) { return AnswerTo(Box(), std::move(act)); }
  Answer AnswerTo(const Message& message, std::function<void(QMessageBox&)> act) {
    const ModalDriver driver([&](QDialog& dialog) {
      auto& box = dynamic_cast<QMessageBox&>(dialog);
      EXPECT_TRUE(WaitForFocus(box));
      act(box);
      EXPECT_FALSE(box.isVisible());
      box.reject();
    });
    return dialogs.ShowMessage(message);
  }
  static Message Box() {
    Message box = Question(u"Will you accept it?", u"Incoming call", Answer::Yes);
    box.unexpected = true;
    return box;
  }

  static void Press(QMessageBox& box, Qt::Key key, Qt::KeyboardModifiers held = {}) {
    QTest::keyClick(box.windowHandle(), key, held);
  }
  static void Type(QMessageBox& box, const QString& text) {
    for (const QChar c : text) {
      QTest::sendKeyEvent(QTest::Click, box.windowHandle(), Qt::Key(c.toUpper().unicode()), c, {});
    }
  }
  // Lets the time pass after which a key answers the box.
  static void Rest() {
    QElapsedTimer rest;
    rest.start();
    EXPECT_TRUE(QTest::qWaitFor([&] { return rest.hasExpired(1050); }, 10000));
  }
  static void PressAfterRest(QMessageBox& box, Qt::Key key, Qt::KeyboardModifiers held = {}) {
    Rest();
    Press(box, key, held);
  }
  static bool Closes(QMessageBox& box) {
    return QTest::qWaitFor([&] { return !box.isVisible(); }, 10000);
  }

  QWidget mainWindow;
  QPlainTextEdit* control = [this] {
    auto* edit = new QPlainTextEdit(&mainWindow);
    edit->setFocus();
    return edit;
  }();
  QtDialogs dialogs{&mainWindow};
};

TEST_F(TypingGuardTest, WhatIsTypedGoesOnIntoTheControl) {
  const QString typed = "yes no y n  any ναι όχι ";
  AnswerTo([&](QMessageBox& box) {
    Type(box, typed);
    Press(box, Qt::Key_Backspace);
    Press(box, Qt::Key_Left);
    Type(box, "!");
    EXPECT_TRUE(box.isVisible());
    box.reject();
  });
  EXPECT_EQ(control->toPlainText(), "yes no y n  any ναι όχ!ι");
}

TEST_F(TypingGuardTest, WhatIsTypedAfterARestGoesThereToo) {
  AnswerTo([&](QMessageBox& box) {
    for (const char* letter : {"y", " ", "n"}) {
      Rest();
      Type(box, letter);
    }
    EXPECT_TRUE(box.isVisible());
    box.reject();
  });
  EXPECT_EQ(control->toPlainText(), "y n");
}

TEST_F(TypingGuardTest, NoMnemonicOfEitherLanguageIsABareLetter) {
  for (const bool isGreek : {false, true}) {
    dialogs.SetLanguage(isGreek);
    AnswerTo([&](QMessageBox& box) {
      Rest();
      Type(box, isGreek ? "ναόχοι" : "yesno");
      EXPECT_TRUE(box.isVisible());
      box.reject();
    });
  }
  EXPECT_EQ(control->toPlainText(), "yesnoναόχοι");
}

TEST_F(TypingGuardTest, EnterEscapeAndMnemonicsWithinTypingDoNothing) {
  AnswerTo([&](QMessageBox& box) {
    Type(box, "a");
    Press(box, Qt::Key_Return);
    Press(box, Qt::Key_Escape);
    Press(box, Qt::Key_Y, Qt::AltModifier);
    Press(box, Qt::Key_N, Qt::AltModifier);
    EXPECT_TRUE(box.isVisible());
    box.reject();
  });
  EXPECT_EQ(control->toPlainText(), "a");
}

TEST_F(TypingGuardTest, AKeyBeforeTheBoxCountsToo) {
  QTest::keyClick(mainWindow.windowHandle(), Qt::Key_Shift);
  AnswerTo([](QMessageBox& box) {
    Press(box, Qt::Key_Return);
    EXPECT_TRUE(box.isVisible());
    box.reject();
  });
}

TEST_F(TypingGuardTest, EnterAfterARestGivesTheDefaultAnswer) {
  EXPECT_EQ(AnswerTo([](QMessageBox& box) {
              PressAfterRest(box, Qt::Key_Return);
              EXPECT_TRUE(Closes(box));
            }),
            Answer::Yes);
}

TEST_F(TypingGuardTest, OverHalfTypedTextTheFirstEnterOnlyMovesTheKeyboard) {
  control->setPlainText("half");
  const Answer answer = AnswerTo([](QMessageBox& box) {
    EXPECT_FALSE(box.defaultButton()->hasFocus());
    PressAfterRest(box, Qt::Key_Return);
    ASSERT_TRUE(box.isVisible());
    EXPECT_TRUE(box.defaultButton()->hasFocus());
    Press(box, Qt::Key_Return);
    ASSERT_TRUE(box.isVisible()) << "no rest before it";
    PressAfterRest(box, Qt::Key_Return);
    EXPECT_TRUE(Closes(box));
  });
  EXPECT_EQ(answer, Answer::Yes);
  EXPECT_EQ(control->toPlainText(), "half");
}

TEST_F(TypingGuardTest, TypingTakesTheKeyboardBackFromTheBox) {
  control->setPlainText("half");
  control->moveCursor(QTextCursor::End);
  AnswerTo([](QMessageBox& box) {
    PressAfterRest(box, Qt::Key_Return);
    Rest();
    Type(box, " ");
    ASSERT_TRUE(box.isVisible()) << "Enter, not Tab, reached the button";
    EXPECT_FALSE(box.defaultButton()->hasFocus());
    Type(box, "a");
    PressAfterRest(box, Qt::Key_Return);
    EXPECT_TRUE(box.isVisible()) << "it moves the keyboard again";
    box.reject();
  });
  EXPECT_EQ(control->toPlainText(), "half a");
}

TEST_F(TypingGuardTest, EscapeAfterARestAnswersAlsoOverHalfTypedText) {
  control->setPlainText("half");
  EXPECT_EQ(AnswerTo([](QMessageBox& box) {
              PressAfterRest(box, Qt::Key_Escape);
              EXPECT_TRUE(Closes(box));
            }),
            Answer::No);
}

TEST_F(TypingGuardTest, AltWithAMnemonicAfterARestAnswers) {
  EXPECT_EQ(AnswerTo([](QMessageBox& box) {
              PressAfterRest(box, Qt::Key_N, Qt::AltModifier);  // presses Alt first
              EXPECT_TRUE(Closes(box));
            }),
            Answer::No)
      << "the Alt before the letter is no key of its own";
  AnswerTo([](QMessageBox& box) {
    PressAfterRest(box, Qt::Key_Shift);
    Press(box, Qt::Key_N, Qt::AltModifier);
    EXPECT_TRUE(box.isVisible()) << "but another modifier is";
    box.reject();
  });
}

TEST_F(TypingGuardTest, ABlankAnswersOnAButtonThatTabOrAnArrowReached) {
  for (const Qt::Key key : {Qt::Key_Tab, Qt::Key_Right}) {
    control->setPlainText("half");
    EXPECT_EQ(AnswerTo([&](QMessageBox& box) {
                PressAfterRest(box, key);
                EXPECT_TRUE(box.button(QMessageBox::No)->hasFocus());
                Press(box, Qt::Key_Space);
                ASSERT_TRUE(box.isVisible()) << "no rest before it";
                PressAfterRest(box, Qt::Key_Space);
                EXPECT_TRUE(Closes(box));
              }),
              Answer::No)
        << key;
    EXPECT_EQ(control->toPlainText(), "half");
  }
}

TEST_F(TypingGuardTest, ArrowsAndTabsWithinTypingBelongToTheControl) {
  AnswerTo([](QMessageBox& box) {
    Type(box, "ab");
    Press(box, Qt::Key_Left);
    Press(box, Qt::Key_Tab);
    Type(box, " ");
    EXPECT_TRUE(box.isVisible());
    box.reject();
  });
  EXPECT_EQ(control->toPlainText(), "a\t b");
}

TEST_F(TypingGuardTest, TheMouseAnswersAfterHalfASecondAndNotBefore) {
  QElapsedTimer shown;
  shown.start();
  const Answer answer = AnswerTo([](QMessageBox& box) {
    EXPECT_TRUE(QTest::qWaitFor(
        [&] {
          QTest::mouseClick(box.button(QMessageBox::No), Qt::LeftButton);
          return !box.isVisible();
        },
        10000));
  });
  EXPECT_EQ(answer, Answer::No);
  EXPECT_GE(shown.elapsed(), 500);
}

TEST_F(TypingGuardTest, WhatAnInputMethodEntersGoesIntoTheControl) {
  control->setPlainText("a");
  control->moveCursor(QTextCursor::End);
  AnswerTo([](QMessageBox& box) {
    PressAfterRest(box, Qt::Key_Return);  // the keyboard is at the box now
    ASSERT_TRUE(box.defaultButton()->hasFocus());
    QInputMethodQueryEvent query(Qt::ImEnabled | Qt::ImSurroundingText);
    QCoreApplication::sendEvent(QGuiApplication::focusObject(), &query);
    EXPECT_TRUE(query.value(Qt::ImEnabled).toBool());
    EXPECT_EQ(query.value(Qt::ImSurroundingText).toString(), "a");
    QInputMethodEvent entered;
    entered.setCommitString("ή");
    QCoreApplication::sendEvent(QGuiApplication::focusObject(), &entered);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !box.defaultButton()->hasFocus(); }, 10000));
    box.reject();
  });
  EXPECT_EQ(control->toPlainText(), "aή");
}

TEST_F(TypingGuardTest, KeysThatArriveBelowWhileTheBoxAppearsAreTyped) {
  bool hasShortcut = false;
  auto* action = new QAction(&mainWindow);
  action->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_Q));
  QObject::connect(action, &QAction::triggered, [&] { hasShortcut = true; });
  mainWindow.addAction(action);
  QTimer::singleShot(0, &mainWindow, [this] {
    QWindow* below = mainWindow.windowHandle();
    QTest::keyClick(below, Qt::Key_A);
    QTest::keyClick(below, Qt::Key_Return);
    QTest::keyClick(below, Qt::Key_Q, Qt::ControlModifier);
    QTest::keyClick(below, Qt::Key_Space);
  });
  AnswerTo([](QMessageBox& box) {
    EXPECT_TRUE(box.isVisible());
    box.reject();
  });
  EXPECT_EQ(control->toPlainText(), "a ");
  EXPECT_FALSE(hasShortcut);
}

TEST_F(TypingGuardTest, TheWindowBelowIsBlockedAsSoonAsTheBoxHasTheKeyboard) {
  AnswerTo([this](QMessageBox& box) {
    EXPECT_TRUE(QTest::qWaitFor(
        [&] { return box.windowHandle()->modality() == Qt::ApplicationModal; }, 10000));
    EXPECT_EQ(box.windowHandle()->transientParent(), mainWindow.windowHandle());
    QTest::keyClick(mainWindow.windowHandle(), Qt::Key_A);
    EXPECT_EQ(control->toPlainText(), "");
    box.reject();
  });
}

TEST_F(TypingGuardTest, OverAnotherSuchBoxTypingStillGoesIntoTheControl) {
  AnswerTo([this](QMessageBox& first) {
    AnswerTo([](QMessageBox& second) {
      Type(second, "y ");
      second.reject();
    });
    EXPECT_TRUE(WaitForFocus(first));
    Type(first, "n ");
    EXPECT_TRUE(first.isVisible());
    first.reject();
  });
  EXPECT_EQ(control->toPlainText(), "y n ");
}

TEST_F(TypingGuardTest, WithoutATextControlLettersAreLostAndAnswerNothing) {
  control->setReadOnly(true);
  control->setPlainText("read only");
  EXPECT_EQ(AnswerTo([](QMessageBox& box) {
              Type(box, "y n ");
              EXPECT_TRUE(box.isVisible());
              PressAfterRest(box, Qt::Key_Return);
              EXPECT_TRUE(Closes(box));
            }),
            Answer::Yes);
  EXPECT_EQ(control->toPlainText(), "read only");
}

TEST_F(TypingGuardTest, TheWidgetsBelowGetNoNativeWindows) {
  AnswerTo([this](QMessageBox& box) {
    EXPECT_EQ(control->internalWinId(), 0u);
    box.reject();
  });
}

TEST_F(TypingGuardTest, TheControlMayBeDeletedMeanwhile) {
  AnswerTo([this](QMessageBox& box) {
    delete control;
    Type(box, "y n ");
    EXPECT_TRUE(box.isVisible());
    box.reject();
  });
}

}  // namespace
}  // namespace verlume::qt
