#include "platform_qt/windows/people_window.h"

#include <gtest/gtest.h>

#include "platform_qt/windows/modal_window_fixture.h"
#include "shell/private_texts.h"

namespace verlume::qt {
namespace {

class QtPeopleWindowTest : public ModalWindowTest<QtPeopleWindow> {
 protected:
  QtPeopleWindowTest() {
    SetLanguage(false);
    view.lstPeople.SetRows(
        {{u"Carol", u"Bob", u"3 November 2026", u"22 November 2026", u"Yes"},
         {u"", std::u16string(32, u'w'), u"3 November 2026", u"22 November 2026", u""}});
    view.lstPeople.Select(0);
    view.txtPeopleName.SetText(u"Carol");
    view.lblPeopleKey.SetCaption(
        u"3141 5926 5358 9793 2384 6264 3383 2795 0288 4197 1693 9937 5105 8209 7494 4592");
    view.cmdPeopleForget.onClick = [this] { ++forgets; };
    view.cmdPeopleClose.onClick = [this] { view.window.Unload(); };
  }
  void SetLanguage(bool isGreek) {
    for (const auto& [set, text] : PeopleWindowTexts(view)) set(text.In(isGreek));
  }

  int forgets = 0;
};

TEST_F(QtPeopleWindowTest, EveryElementBearsItsName) {
  EXPECT_EQ(form.objectName(), "frmPeople");
  ExpectOneOfEach({"lblPeopleNone", "lstPeople", "fraPerson", "lblPeopleNameCaption",
                   "txtPeopleName", "chkPeopleVerified", "lblPeopleKeyCaption", "lblPeopleKey",
                   "cmdPeopleForget", "cmdPeopleClose"});
}

TEST_F(QtPeopleWindowTest, FocusStartsInTheTableAndTabGoesThroughThePerson) {
  ShowAnd([this] {
    EXPECT_EQ(TabOrder(6),
              "lstPeople txtPeopleName chkPeopleVerified lblPeopleKey cmdPeopleForget "
              "cmdPeopleClose");
  });
}

TEST_F(QtPeopleWindowTest, EnterAndEscapeCloseAndForgetNobody) {
  std::vector<UnloadMode> asked;
  view.window.onQueryUnload = [&](bool&, UnloadMode mode) { asked.push_back(mode); };
  for (QWidget* focused :
       {static_cast<QWidget*>(form.txtPeopleName), static_cast<QWidget*>(form.chkPeopleVerified)}) {
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Escape}) {
      const ModalDriver driver([&](QDialog&) {
        focused->setFocus();
        QTest::keyClick(focused, key);
      });
      view.window.ShowModal();
    }
  }
  const std::vector<UnloadMode> both{UnloadMode::Code, UnloadMode::User};
  EXPECT_EQ(asked, (std::vector{both[0], both[1], both[0], both[1]}));
  EXPECT_EQ(forgets, 0);
}

TEST_F(QtPeopleWindowTest, SaysInThePlaceOfTheTableThatThereIsNobody) {
  QSize withPeople;
  ShowAnd([&] {
    EXPECT_TRUE(form.lstPeople->isVisible());
    EXPECT_FALSE(form.lblPeopleNone->isVisible());
    withPeople = form.size();
  });
  view.fraPerson.SetVisible(false);
  view.lblPeopleNone.SetCaption(kNobodyYet.In(false));
  ShowAnd([&] {
    EXPECT_FALSE(form.lstPeople->isVisible());
    EXPECT_TRUE(form.lblPeopleNone->isVisible());
    EXPECT_FALSE(form.txtPeopleName->isVisible());
    EXPECT_EQ(form.width(), withPeople.width());
  });
  view.lblPeopleNone.SetCaption(u"");
  ShowAnd([&] { EXPECT_TRUE(form.lstPeople->isVisible()); });
}

TEST_F(QtPeopleWindowTest, NothingIsCutInEitherLanguage) {
  for (const bool isGreek : {false, true}) {
    SetLanguage(isGreek);
    ShowAnd([this] { ExpectNothingIsCut(); });
  }
}

TEST_F(QtPeopleWindowTest, NamesArePlainText) {
  view.lblPeopleKey.SetCaption(u"<b>31</b>");
  for (const QLabel* text : form.findChildren<QLabel*>()) {
    EXPECT_EQ(text->textFormat(), Qt::PlainText) << text->objectName().data();
  }
}

}  // namespace
}  // namespace verlume::qt
