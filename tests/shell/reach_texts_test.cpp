#include "shell/reach_texts.h"

#include <gmock/gmock.h>

#include "shell/language.h"
#include "shell/shell_fixture.h"

namespace verlume {
namespace {

using testing::ElementsAre;

class ReachTextsTest : public ShellTest {
 protected:
  void Speak(bool isGreek) {
    state.IsGreek = isGreek;
    language.ApplyLanguage();
  }

  fake::FakeReachWindow& reach = fake.reach;
  Language language{state, platform, errors, settings};
};

TEST_F(ReachTextsTest, NoTextIsMissingInEitherLanguage) {
  std::vector<FixedText> texts = ReachTexts(window.frmMain);
  for (FixedText& text : ReachWindowTexts(reach.frmReach)) texts.push_back(std::move(text));
  EXPECT_GT(texts.size(), 20u);
  for (const FixedText& text : texts) {
    EXPECT_NE(text.text.In(false), u"");
    EXPECT_NE(text.text.In(true), u"");
    EXPECT_NE(text.text.In(false), text.text.In(true));
  }
}

TEST_F(ReachTextsTest, TheWindowSpeaksTheLanguageInForce) {
  Speak(false);
  EXPECT_EQ(reach.window.title, u"Can I be called?");
  EXPECT_THAT(reach.lstReachAddresses.headings, ElementsAre(u"Address", u"Who can call it"));
  EXPECT_EQ(reach.lblReachRouterCaption.caption, u"Router");
  EXPECT_EQ(reach.lblReachRouter.accessibleName, u"Router");
  EXPECT_EQ(reach.cmdReachAgain.caption, u"Look again");
  Speak(true);
  EXPECT_EQ(reach.window.title, u"Μπορούν να με καλέσουν;");
  EXPECT_THAT(reach.lstReachAddresses.headings,
              ElementsAre(u"Διεύθυνση", u"Ποιος μπορεί να την καλέσει"));
  EXPECT_EQ(reach.lblReachRouter.accessibleName, u"Δρομολογητής");
  EXPECT_EQ(reach.cmdReachAgain.caption, u"Νέος έλεγχος");
}

TEST_F(ReachTextsTest, TheAnswersAboutTheRouterSpeakIt) {
  Speak(false);
  EXPECT_EQ(window.routerBar.cmdRouterYes.caption, u"Yes");
  EXPECT_EQ(window.routerBar.cmdRouterClose.toolTip, u"Close this bar (Esc)");
  EXPECT_EQ(window.mnuCommReach.toolTip,
            u"Shows who can call this computer, and what to do if nobody can");
  Speak(true);
  EXPECT_EQ(window.routerBar.cmdRouterYes.caption, u"Ναι");
  EXPECT_EQ(window.routerBar.cmdRouterNo.caption, u"Όχι");
}

}  // namespace
}  // namespace verlume
