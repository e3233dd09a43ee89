#include "platform_qt/windows/reach_window.h"

#include <gtest/gtest.h>

#include <QAccessible>
#include <QClipboard>
#include <QScrollBar>

#include "platform_qt/windows/modal_window_fixture.h"
#include "shell/reach_texts.h"

namespace verlume::qt {
namespace {

// As long as such texts get.
constexpr TextPair kLongRouter = {
    u"It says that it passes calls on port 4000 on to this computer, but its own address "
    u"100.64.3.7 "
    u"is one of your provider's network. It was asked by UPnP; nothing answered to NAT-PMP.",
    u"Λέει ότι προωθεί τις κλήσεις στη θύρα 4000 προς αυτόν τον υπολογιστή, αλλά η δική του "
    u"διεύθυνση "
    u"100.64.3.7 ανήκει στο δίκτυο του παρόχου σας. Ερωτήθηκε με UPnP· στο NAT-PMP δεν απάντησε "
    u"κανείς."};
constexpr TextPair kLongFirewall = {
    u"ufw is on. If it does not let port 4000 through, nobody can call.",
    u"Το ufw λειτουργεί. Αν δεν αφήνει τη θύρα 4000 να περάσει, δεν μπορεί να καλέσει κανείς."};
constexpr TextPair kLongAdvice = {
    u"In the settings of the other router, which is nearer to the Internet, forward TCP port 4000 "
    u"to "
    u"100.64.3.7. Or let the other side wait for a call, and call it yourself.",
    u"Στις ρυθμίσεις του άλλου δρομολογητή, που είναι πιο κοντά στο διαδίκτυο, προωθήστε τη θύρα "
    u"TCP "
    u"4000 στη διεύθυνση 100.64.3.7. Ή αφήστε την άλλη πλευρά να περιμένει κλήση και καλέστε την "
    u"εσείς."};

class QtReachWindowTest : public ModalWindowTest<QtReachWindow> {
 protected:
  QtReachWindowTest() {
    SetLanguage(false);
    view.lstReachAddresses.SetRows(
        {{u"192.168.1.20", u"computers on this network"},
         {u"2001:db8:1234:5678:9abc:def0:1234:5678", u"anyone who has IPv6"}});
    view.txtReachAddress.SetText(u"2001:db8:1234:5678:9abc:def0:1234:5678 4000");
    view.cmdReachClose.onClick = [this] { view.window.Unload(); };
    for (Button* button :
         {&view.cmdReachCopyAddress, &view.cmdReachCopyInvitation, &view.cmdReachAgain}) {
      button->onClick = [this] { ++presses; };
    }
  }
  void SetLanguage(bool isGreek) {
    for (const auto& [set, text] : ReachWindowTexts(view)) set(text.In(isGreek));
    view.lblReachRouter.SetCaption(kLongRouter.In(isGreek));
    view.lblReachFirewall.SetCaption(kLongFirewall.In(isGreek));
    view.lblReachAdvice.SetCaption(kLongAdvice.In(isGreek));
  }
  std::vector<WrappedText*> Texts() const {
    return {form.lblReachRouter, form.lblReachFirewall, form.lblReachAdvice};
  }

  int presses = 0;
};

TEST_F(QtReachWindowTest, EveryElementBearsItsName) {
  EXPECT_EQ(form.objectName(), "frmReach");
  ExpectOneOfEach({"lstReachAddresses", "lblReachRouterCaption", "lblReachRouter",
                   "lblReachFirewallCaption", "lblReachFirewall", "lblReachAdviceCaption",
                   "lblReachAdvice", "lblReachAddressCaption", "txtReachAddress",
                   "cmdReachCopyAddress", "cmdReachCopyInvitation", "cmdReachAgain",
                   "cmdReachClose"});
}

TEST_F(QtReachWindowTest, TabGoesDownTheWindow) {
  ShowAnd([this] {
    EXPECT_EQ(TabOrder(9),
              "lstReachAddresses lblReachRouter lblReachFirewall lblReachAdvice txtReachAddress "
              "cmdReachCopyAddress cmdReachCopyInvitation cmdReachAgain cmdReachClose");
  });
}

TEST_F(QtReachWindowTest, EnterAndEscapeCloseFromEveryText) {
  std::vector<UnloadMode> asked;
  view.window.onQueryUnload = [&](bool&, UnloadMode mode) { asked.push_back(mode); };
  for (QWidget* focused : std::initializer_list<QWidget*>{
           form.lstReachAddresses, form.lblReachRouter, form.txtReachAddress}) {
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Escape}) {
      const ModalDriver driver([&](QDialog&) {
        focused->setFocus();
        QTest::keyClick(focused, key);
      });
      view.window.ShowModal();
    }
  }
  const std::vector<UnloadMode> both{UnloadMode::Code, UnloadMode::User};
  EXPECT_EQ(asked, (std::vector{both[0], both[1], both[0], both[1], both[0], both[1]}));
  EXPECT_EQ(presses, 0);
}

TEST_F(QtReachWindowTest, NothingIsCutInEitherLanguage) {
  for (const bool isGreek : {false, true}) {
    SetLanguage(isGreek);
    ShowAnd([this] {
      ExpectNothingIsCut();
      for (const WrappedText* text : Texts()) {
        EXPECT_GE(text->height(), text->document()->size().height()) << text->objectName().data();
        EXPECT_FALSE(text->verticalScrollBar()->isVisible()) << text->objectName().data();
      }
    });
  }
}

TEST_F(QtReachWindowTest, GrowsWithItsTextsWhileItIsOpen) {
  for (Label* text : {&view.lblReachRouter, &view.lblReachFirewall, &view.lblReachAdvice}) {
    text->SetCaption(u"…");
  }
  ShowAnd([this] {
    const QSize before = form.size();
    for (Label* text : {&view.lblReachRouter, &view.lblReachFirewall, &view.lblReachAdvice}) {
      text->SetCaption(std::u16string(kLongRouter.In(true)) + u" " +
                       std::u16string(kLongAdvice.In(true)));
    }
    const auto hasRoom = [this] {
      return std::ranges::all_of(Texts(), [](const WrappedText* text) {
        return text->height() >= text->document()->size().height();
      });
    };
    EXPECT_TRUE(QTest::qWaitFor(hasRoom, 10000));
    EXPECT_GT(form.height(), before.height());
    EXPECT_EQ(form.width(), before.width());
    EXPECT_TRUE(form.rect().contains(form.cmdReachClose->geometry()));
  });
}

TEST_F(QtReachWindowTest, TextsAreSelectedAndCopiedByTheKeyboard) {
  ShowAnd([this] {
    form.lblReachAdvice->setFocus();
    QTest::keyClick(form.lblReachAdvice, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(form.lblReachAdvice, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(FromQt(QApplication::clipboard()->text()), kLongAdvice.In(false));
  });
}

TEST_F(QtReachWindowTest, AnAddressThatIsMissingIsNotAskedFor) {
  EXPECT_EQ(form.txtReachAddress->placeholderText(), "");
  const QAccessibleInterface* field = QAccessible::queryAccessibleInterface(form.txtReachAddress);
  EXPECT_EQ(field->text(QAccessible::Name), "Address to give");
}

TEST_F(QtReachWindowTest, NothingInItCanBeTyped) {
  ShowAnd([this] {
    for (QWidget* text :
         std::initializer_list<QWidget*>{form.lblReachRouter, form.txtReachAddress}) {
      text->setFocus();
      QTest::keyClick(text, Qt::Key_X);
    }
    EXPECT_EQ(view.lblReachRouter.Caption(), kLongRouter.In(false));
    EXPECT_EQ(view.txtReachAddress.Text(), u"2001:db8:1234:5678:9abc:def0:1234:5678 4000");
  });
}

TEST_F(QtReachWindowTest, WhatARouterSaysIsTextAndMakesTheWindowNoWider) {
  int width = 0;
  ShowAnd([&] { width = form.width(); });
  const std::u16string said = u"<b>Refused</b> <img src='x'> " + std::u16string(400, u'W');
  view.lblReachRouter.SetCaption(said);
  ShowAnd([&] {
    EXPECT_EQ(view.lblReachRouter.Caption(), said);
    EXPECT_EQ(form.width(), width);
    const WrappedText& text = *form.lblReachRouter;
    EXPECT_LE(text.height(), text.fontMetrics().lineSpacing() * WrappedText::kMostLines);
    EXPECT_TRUE(text.verticalScrollBar()->isVisible()) << "more than it shows";
    EXPECT_LE(form.frameGeometry().height(), 480);
  });
}

TEST_F(QtReachWindowTest, AssistiveToolsReadWhatATextIsAboutAndTheText) {
  for (const WrappedText* text : Texts()) {
    QAccessibleInterface* read =
        QAccessible::queryAccessibleInterface(const_cast<WrappedText*>(text));
    EXPECT_NE(read->text(QAccessible::Name), "") << text->objectName().data();
    EXPECT_TRUE(read->state().readOnly) << text->objectName().data();
    ASSERT_TRUE(read->textInterface()) << text->objectName().data();
    EXPECT_EQ(read->textInterface()->text(0, read->textInterface()->characterCount()),
              text->toPlainText());
  }
  const QAccessibleInterface* router = QAccessible::queryAccessibleInterface(form.lblReachRouter);
  EXPECT_EQ(router->text(QAccessible::Name), "Router");
  const QAccessibleInterface* table = QAccessible::queryAccessibleInterface(form.lstReachAddresses);
  EXPECT_EQ(table->text(QAccessible::Name), "Addresses of this computer");
}

}  // namespace
}  // namespace verlume::qt
