#include "platform_qt/dialogs/dialogs.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QCheckBox>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>

#include "platform_qt/convert/text.h"
#include "platform_qt/dialogs/modal_driver.h"
#include "platform_qt/windows/window_focus.h"

namespace verlume::qt {
namespace {

class QtDialogsTest : public testing::Test {
 protected:
  QtDialogsTest() { EXPECT_TRUE(ShowAndWait(mainWindow)); }

  static QMessageBox& AsBox(QDialog& dialog) { return dynamic_cast<QMessageBox&>(dialog); }
  static void Click(QDialog& dialog, QMessageBox::StandardButton button) {
    AsBox(dialog).button(button)->click();
  }
  static QString Plain(const QAbstractButton* button) { return button->text().remove(u'&'); }
  // The answer of the box to the act.
  Answer AnswerTo(const Message& message, std::function<void(QDialog&)> act) {
    const ModalDriver driver(std::move(act));
    return dialogs.ShowMessage(message);
  }
  static QStringList ButtonTexts(QDialog& dialog) {
    QStringList texts;
    for (const QAbstractButton* button : AsBox(dialog).buttons()) texts.append(Plain(button));
    texts.sort();
    return texts;
  }

  QWidget mainWindow;
  QtDialogs dialogs{&mainWindow};
};

TEST_F(QtDialogsTest, BoxShowsTextTitleAndIconAsGiven) {
  AnswerTo(Refusal(u"<b>a</b> & b\r\n\r\nc", u"Font size definition"), [](QDialog& dialog) {
    QMessageBox& box = AsBox(dialog);
    EXPECT_EQ(box.objectName(), "messageBox");
    EXPECT_EQ(box.text(), "<b>a</b> & b\n\nc");
    EXPECT_EQ(box.textFormat(), Qt::PlainText);
    EXPECT_EQ(box.windowTitle(), "Font size definition");
    EXPECT_EQ(box.icon(), QMessageBox::Critical);
    EXPECT_TRUE(box.isModal());
    Click(dialog, QMessageBox::Ok);
  });
}

TEST_F(QtDialogsTest, EachKindHasItsIcon) {
  AnswerTo(Note(u"text", u"title"), [](QDialog& dialog) {
    EXPECT_EQ(AsBox(dialog).icon(), QMessageBox::Information);
    Click(dialog, QMessageBox::Ok);
  });
  AnswerTo(Question(u"text", u"title", Answer::No), [](QDialog& dialog) {
    EXPECT_EQ(AsBox(dialog).icon(), QMessageBox::Question);
    Click(dialog, QMessageBox::No);
  });
}

TEST_F(QtDialogsTest, EveryButtonAnswersItsOwn) {
  EXPECT_EQ(AnswerTo(Note(u"?", u"t"), [](QDialog& box) { Click(box, QMessageBox::Ok); }),
            Answer::Ok);
  const Message all = QuestionWithCancel(u"?", u"t");
  EXPECT_EQ(AnswerTo(all, [](QDialog& box) { Click(box, QMessageBox::Yes); }), Answer::Yes);
  EXPECT_EQ(AnswerTo(all, [](QDialog& box) { Click(box, QMessageBox::No); }), Answer::No);
  EXPECT_EQ(AnswerTo(all, [](QDialog& box) { Click(box, QMessageBox::Cancel); }), Answer::Cancel);
}

TEST_F(QtDialogsTest, ATickComesBackAsTheUserLeftIt) {
  Message ask = Question(u"?", u"t", Answer::Yes);
  Tick tick{u"&Keep waiting", false};
  ask.tick = &tick;
  AnswerTo(ask, [](QDialog& dialog) {
    QCheckBox* check = AsBox(dialog).checkBox();
    EXPECT_EQ(check->text(), "&Keep waiting");
    EXPECT_FALSE(check->isChecked());
    check->click();
    Click(dialog, QMessageBox::No);
  });
  EXPECT_TRUE(tick.isSet);
  AnswerTo(ask, [](QDialog& dialog) {
    EXPECT_TRUE(AsBox(dialog).checkBox()->isChecked());
    dialog.reject();
  });
  EXPECT_TRUE(tick.isSet);
}

TEST_F(QtDialogsTest, ABoxHasNoTickUnlessItIsAskedFor) {
  AnswerTo(Note(u"?", u"t"), [](QDialog& dialog) {
    EXPECT_EQ(AsBox(dialog).checkBox(), nullptr);
    Click(dialog, QMessageBox::Ok);
  });
}

TEST_F(QtDialogsTest, EnterGivesTheDefaultAnswer) {
  const auto enter = [](QDialog& box) { QTest::keyClick(&box, Qt::Key_Return); };
  EXPECT_EQ(AnswerTo(Question(u"?", u"t", Answer::No), enter), Answer::No);
  EXPECT_EQ(AnswerTo(Question(u"?", u"t", Answer::Yes), enter), Answer::Yes);
}

TEST_F(QtDialogsTest, EscapeAndClosingAnswerCancelElseNoElseOk) {
  const auto escape = [](QDialog& box) { QTest::keyClick(&box, Qt::Key_Escape); };
  const auto close = [](QDialog& box) { box.close(); };
  EXPECT_EQ(AnswerTo(QuestionWithCancel(u"?", u"t"), escape), Answer::Cancel);
  EXPECT_EQ(AnswerTo(QuestionWithCancel(u"?", u"t"), close), Answer::Cancel);
  EXPECT_EQ(AnswerTo(Question(u"?", u"t", Answer::Yes), escape), Answer::No);
  EXPECT_EQ(AnswerTo(Question(u"?", u"t", Answer::Yes), close), Answer::No);
  EXPECT_EQ(AnswerTo(Note(u"?", u"t"), escape), Answer::Ok);
  EXPECT_EQ(AnswerTo(Note(u"?", u"t"), close), Answer::Ok);
}

TEST_F(QtDialogsTest, ButtonsSpeakTheLanguage) {
  const auto expect = [this](const QStringList& texts) {
    AnswerTo(QuestionWithCancel(u"?", u"t"), [&](QDialog& box) {
      EXPECT_EQ(ButtonTexts(box), texts);
      box.reject();
    });
  };
  expect({"Cancel", "No", "Yes"});
  dialogs.SetLanguage(true);
  expect({"Άκυρο", "Όχι", "Ναι"});
  dialogs.SetLanguage(true);
  dialogs.SetLanguage(false);
  expect({"Cancel", "No", "Yes"});
}

TEST_F(QtDialogsTest, ABoxBeforeTheFirstWindowTakesTheKeyboard) {
  mainWindow.hide();
  const auto isInactive = [] {
    return QGuiApplication::applicationState() != Qt::ApplicationActive;
  };
  ASSERT_TRUE(QTest::qWaitFor(isInactive, 10000));
  AnswerTo(Note(u"?", u"t"), [](QDialog& box) {
    EXPECT_FALSE(box.testAttribute(Qt::WA_ShowWithoutActivating));
    EXPECT_TRUE(WaitForFocus(box));
    box.reject();
  });
}

TEST_F(QtDialogsTest, ExpectedBoxHeedsKeysAtOnce) {
  EXPECT_EQ(AnswerTo(Question(u"?", u"t", Answer::Yes),
                     [](QDialog& box) {
                       QTest::keyClick(&box, Qt::Key_Return);
                       EXPECT_FALSE(box.isVisible());
                     }),
            Answer::Yes);
}

TEST_F(QtDialogsTest, BoxOverABoxBelongsToIt) {
  AnswerTo(Note(u"first", u"t"), [this](QDialog& first) {
    AnswerTo(Note(u"second", u"t"), [&first](QDialog& second) {
      EXPECT_EQ(second.parentWidget(), &first);
      second.reject();
    });
    first.reject();
  });
}

TEST_F(QtDialogsTest, BoxThatGoesWithItsOwnerAnswersAsIfClosed) {
  auto owner = std::make_unique<QWidget>();
  QtDialogs ofOwner(owner.get());
  const ModalDriver driver([&](QDialog& box) {
    box.setParent(owner.get(), box.windowFlags());
    owner.reset();
  });
  EXPECT_EQ(ofOwner.ShowMessage(Question(u"?", u"t", Answer::Yes)), Answer::No);
}

TEST_F(QtDialogsTest, LongTextWraps) {
  const std::u16string words = [] {
    std::u16string text;
    for (int word = 0; word < 120; ++word) text += u"λέξη ";
    return text;
  }();
  AnswerTo(Note(words, u"t"), [](QDialog& box) {
    EXPECT_LT(box.width(), 800);
    EXPECT_GT(box.height(), 5 * box.fontMetrics().height());
    box.reject();
  });
}

class InputBoxTest : public QtDialogsTest {
 protected:
  static QLineEdit* Edit(QDialog& box) { return box.findChild<QLineEdit*>(); }
};

TEST_F(InputBoxTest, ProposesAndReturnsTheText) {
  const ModalDriver driver([](QDialog& box) {
    EXPECT_EQ(box.objectName(), "inputBox");
    EXPECT_EQ(box.windowTitle(), "Nickname");
    EXPECT_EQ(Edit(box)->text(), "ann");
    EXPECT_EQ(Edit(box)->selectedText(), "ann");
    Edit(box)->setText(QStringLiteral("Άννα <3"));
    box.accept();
  });
  EXPECT_EQ(dialogs.AskText(u"Type it.", u"Nickname", u"ann"), u"Άννα <3");
}

TEST_F(InputBoxTest, ControlCharactersBecomeBlanksAndALoneSurrogateItsMark) {
  const std::u16string typed = {u'a',   u'\n',  u'b',   u'\r',  u'\t',  0,    u'\u007F', u'\u0085',
                                0x2028, 0x2029, 0xD83D, 0xDE00, 0xD800, u'c', 0xDC00};
  const ModalDriver driver([&](QDialog& box) {
    Edit(box)->setText(ToQt(typed));
    box.accept();
  });
  EXPECT_EQ(dialogs.AskText(u"Type it.", u"Name", u""),
            u"a b       \xD83D\xDE00\uFFFD"
            u"c\uFFFD");
}

TEST_F(InputBoxTest, CancelIsEmpty) {
  const ModalDriver driver([](QDialog& box) { QTest::keyClick(&box, Qt::Key_Escape); });
  EXPECT_EQ(dialogs.AskText(u"Type it.", u"Nickname", u"ann"), u"");
}

TEST_F(InputBoxTest, PromptIsPlainText) {
  const ModalDriver driver([](QDialog& box) {
    auto* label = box.findChild<QLabel*>();
    EXPECT_EQ(label->text(), "<i>Type</i>\n\nit.");
    EXPECT_EQ(label->textFormat(), Qt::PlainText);
    EXPECT_TRUE(label->wordWrap());
    box.reject();
  });
  dialogs.AskText(u"<i>Type</i>\r\n\r\nit.", u"t", u"");
}

TEST_F(InputBoxTest, ButtonsSpeakTheLanguage) {
  dialogs.SetLanguage(true);
  const ModalDriver driver([](QDialog& box) {
    QStringList texts;
    for (const auto* button : box.findChildren<QPushButton*>()) texts.append(Plain(button));
    texts.sort();
    EXPECT_EQ(texts, (QStringList{"OK", "Άκυρο"}));
    box.reject();
  });
  dialogs.AskText(u"?", u"t", u"");
}

}  // namespace
}  // namespace verlume::qt
