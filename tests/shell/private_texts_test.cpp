#include "shell/private_texts.h"

#include <gmock/gmock.h>

#include "shell/language.h"
#include "shell/shell_fixture.h"

namespace verlume {
namespace {

using testing::ElementsAre;

class PrivateTextsTest : public ShellTest {
 protected:
  void Speak(bool isGreek) {
    state.IsGreek = isGreek;
    language.ApplyLanguage();
  }

  fake::FakePeopleWindow& people = fake.people;
  fake::FakeVerifyWindow& verify = fake.verify;
  Language language{state, platform, errors, settings};
};

TEST_F(PrivateTextsTest, NoTextIsMissingInEitherLanguage) {
  std::vector<FixedText> texts = PrivateTexts(window.frmMain);
  for (FixedText& text : PeopleWindowTexts(people.frmPeople)) texts.push_back(std::move(text));
  for (FixedText& text : VerifyWindowTexts(verify.frmVerify)) texts.push_back(std::move(text));
  EXPECT_GT(texts.size(), 30u);
  for (const FixedText& text : texts) {
    EXPECT_NE(text.text.In(false), u"");
    EXPECT_NE(text.text.In(true), u"");
    EXPECT_NE(text.text.In(false), text.text.In(true));
  }
}

TEST_F(PrivateTextsTest, TheWindowsSpeakTheLanguageInForce) {
  Speak(false);
  EXPECT_EQ(people.window.title, u"People");
  EXPECT_THAT(people.lstPeople.headings,
              ElementsAre(u"Name", u"Calls itself", u"Since", u"Last", u"Verified"));
  EXPECT_EQ(people.txtPeopleName.accessibleName, u"Your name for them");
  EXPECT_EQ(people.cmdPeopleForget.caption, u"Forget");
  EXPECT_EQ(verify.window.title, u"Verify");
  EXPECT_EQ(verify.cmdVerifyMatch.caption, u"They match");
  EXPECT_EQ(verify.lblVerifyDigits.accessibleName, u"Safety digits");
  Speak(true);
  EXPECT_EQ(people.window.title, u"Άτομα");
  EXPECT_THAT(people.lstPeople.headings,
              ElementsAre(u"Όνομα", u"Συστήνεται ως", u"Από", u"Τελευταία", u"Επαλήθευση"));
  EXPECT_EQ(verify.cmdVerifyMatch.caption, u"Ταιριάζουν");
}

TEST_F(PrivateTextsTest, TheAnswersToAnotherKeySpeakIt) {
  Speak(false);
  EXPECT_EQ(window.keyBar.cmdKeyGoOn.caption, u"Go on with this key");
  EXPECT_EQ(window.keyBar.cmdKeyHangUp.caption, u"Hang up");
  EXPECT_EQ(window.lblLock.toolTip, u"Click to verify");
  Speak(true);
  EXPECT_EQ(window.keyBar.cmdKeyGoOn.caption, u"Συνέχεια με αυτό το κλειδί");
  EXPECT_EQ(window.keyBar.cmdKeyHangUp.caption, u"Τερματισμός σύνδεσης");
}

TEST_F(PrivateTextsTest, TheEntriesSayWhatTheyDo) {
  Speak(false);
  EXPECT_EQ(window.mnuCommVerify.toolTip, u"Make sure that nobody is between you");
  EXPECT_EQ(window.mnuPrivateOnly.toolTip, u"Hangs up when the other side cannot");
}

}  // namespace
}  // namespace verlume
