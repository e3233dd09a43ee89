#include "platform_qt/windows/verify_window.h"

#include <gtest/gtest.h>

#include <QAccessible>
#include <QClipboard>

#include "platform_qt/windows/modal_window_fixture.h"
#include "shell/private_texts.h"

namespace verlume::qt {
namespace {

constexpr const char16_t* kDigits = u"031415926535897932384626433832795028841971693993751058209749";
constexpr const char16_t* kInGroups =
    u"03141 59265 35897 93238\n46264 33832 79502 88419\n71693 99375 10582 09749";

class QtVerifyWindowTest : public ModalWindowTest<QtVerifyWindow> {
 protected:
  QtVerifyWindowTest() {
    SetLanguage(false);
    view.lblVerifyWho.SetCaption(u"Carol (calls itself Bob)");
    view.lblVerifyDigits.SetDigits(kDigits);
    view.picVerifyCode.SetCode(kDigits);
    view.cmdVerifyMatch.onClick = [this] { ++matches; };
    view.cmdVerifyClose.onClick = [this] {
      ++closes;
      view.window.Unload();
    };
  }
  void SetLanguage(bool isGreek) {
    for (const auto& [set, text] : VerifyWindowTexts(view)) set(text.In(isGreek));
  }

  int matches = 0;
  int closes = 0;
};

TEST_F(QtVerifyWindowTest, EveryElementBearsItsName) {
  EXPECT_EQ(form.objectName(), "frmVerify");
  ExpectOneOfEach({"lblVerifyWho", "lblVerifyDigits", "picVerifyCode", "lblVerifyMeaning",
                   "cmdVerifyCopy", "cmdVerifyMatch", "cmdVerifyClose"});
}

TEST_F(QtVerifyWindowTest, DigitsStandInThreeRowsOfFourGroups) {
  EXPECT_EQ(view.lblVerifyDigits.Digits(), kInGroups);
  view.lblVerifyDigits.SetDigits(kInGroups);
  EXPECT_EQ(view.lblVerifyDigits.Digits(), kInGroups);
  view.lblVerifyDigits.SetDigits(u"<b>12</b> 3456&");
  EXPECT_EQ(view.lblVerifyDigits.Digits(), u"12345 6");
  const QFontMetrics letters(form.lblVerifyDigits->font());
  EXPECT_EQ(letters.horizontalAdvance("11111 "), letters.horizontalAdvance("000000"));
}

TEST_F(QtVerifyWindowTest, DigitsAreReadOneByOneWithAPauseBehindEachGroup) {
  const QAccessibleInterface* digits = QAccessible::queryAccessibleInterface(form.lblVerifyDigits);
  const QString name = digits->text(QAccessible::Name);
  EXPECT_TRUE(name.startsWith("Safety digits: 0 3 1 4 1, 5 9 2 6 5, 3 5 8 9 7, 9 3 2 3 8, 4"))
      << name.toStdString();
  EXPECT_TRUE(name.endsWith("1 0 5 8 2, 0 9 7 4 9"));
  EXPECT_EQ(name.count(u','), 11);
}

TEST_F(QtVerifyWindowTest, DigitsHaveTheFocusAndAreCopiedByTheKeyboard) {
  ShowAnd([this] {
    EXPECT_EQ(form.focusWidget(), form.lblVerifyDigits);
    QTest::keyClick(form.lblVerifyDigits, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(form.lblVerifyDigits, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(FromQt(QApplication::clipboard()->text()), kInGroups);
  });
  ShowAnd([this] { EXPECT_FALSE(form.lblVerifyDigits->hasSelectedText()); });
}

TEST_F(QtVerifyWindowTest, EnterAndEscapeCloseAndNeverSayThatTheyMatch) {
  std::vector<UnloadMode> asked;
  view.window.onQueryUnload = [&](bool&, UnloadMode mode) { asked.push_back(mode); };
  for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Escape}) {
    const ModalDriver driver([&](QDialog&) {
      if (HasKeyboard()) QTest::keyClick(form.focusWidget(), key);
    });
    view.window.ShowModal();
  }
  EXPECT_EQ(asked, (std::vector{UnloadMode::Code, UnloadMode::User}));
  EXPECT_EQ(closes, 1);
  EXPECT_EQ(matches, 0);
}

TEST_F(QtVerifyWindowTest, TabGoesFromTheDigitsToTheButtonsAndBack) {
  ShowAnd([this] {
    EXPECT_EQ(TabOrder(5),
              "lblVerifyDigits cmdVerifyCopy cmdVerifyMatch cmdVerifyClose lblVerifyDigits");
    form.cmdVerifyMatch->setFocus();
    QTest::keyClick(form.cmdVerifyMatch, Qt::Key_Space);
    EXPECT_EQ(matches, 1);
  });
}

TEST_F(QtVerifyWindowTest, NothingIsCutInEitherLanguage) {
  for (const bool isGreek : {false, true}) {
    SetLanguage(isGreek);
    ShowAnd([this] { ExpectNothingIsCut(); });
  }
}

TEST_F(QtVerifyWindowTest, CodeHasAName) {
  const QAccessibleInterface* code = QAccessible::queryAccessibleInterface(form.picVerifyCode);
  EXPECT_EQ(code->role(), QAccessible::Graphic);
  EXPECT_EQ(code->text(QAccessible::Name), "The digits as a QR code");
}

}  // namespace
}  // namespace verlume::qt
