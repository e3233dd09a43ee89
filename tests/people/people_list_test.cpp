#include "people/people_list.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "people/people_samples.h"
#include "support/program_copy.h"

namespace verlume {
namespace {

using fake::ProgramCopy;
using testing::ElementsAre;

class PeopleListTest : public testing::Test {
 protected:
  static PeerBook SomePeople() {
    PeerBook book;
    book.Meet(MeetingOf(1, u"Bob", u"bob 4000", {2026, 1, 2}));
    PeerBook::Meeting invited = MeetingOf(2, u"Carol", u"carol 4000", {2026, 2, 3});
    invited.isInvited = true;
    book.Meet(invited);
    return book;
  }
  // Opens the window; the user does that in it, and closes it.
  void InWindow(const std::function<void()>& act) {
    window.window.whileModal = act;
    ann.platform.window.mnuCommPeople.Click();
  }
  bool FileHas(std::u16string_view text) const { return ann.Peers().find(text) != text.npos; }

  fake::FakeNetwork network;
  ProgramCopy ann{network, u"Ann", SomePeople()};
  fake::FakePeopleWindow& window = ann.platform.people;
};

TEST_F(PeopleListTest, WhoWasMetLastComesFirst) {
  InWindow([this] {
    ASSERT_EQ(window.lstPeople.rows.size(), 2u);
    EXPECT_THAT(window.lstPeople.rows[0], ElementsAre(u"", u"Carol", u"3 February 2026",
                                                      u"3 February 2026", u"By invitation"));
    EXPECT_THAT(window.lstPeople.rows[1],
                ElementsAre(u"", u"Bob", u"2 January 2026", u"2 January 2026", u""));
    EXPECT_EQ(window.lstPeople.selected, 0);
    EXPECT_TRUE(window.fraPerson.visible);
    EXPECT_TRUE(window.lblPeopleKey.caption.starts_with(u"00020000 00000000 "));
    EXPECT_EQ(window.lblPeopleNone.caption, u"");
    window.cmdPeopleClose.Click();
  });
  EXPECT_EQ(window.window.timesShownModal, 1);
}

TEST_F(PeopleListTest, InGreekItIsGreek) {
  ann.platform.window.mnuToolsLanguageGreek.Click();
  InWindow([this] { EXPECT_EQ(window.lstPeople.rows[1][2], u"2 Ιανουαρίου 2026"); });
}

TEST_F(PeopleListTest, ANameIsGivenWhenTheUserHasTypedIt) {
  InWindow([this] {
    window.lstPeople.Choose(1);
    window.txtPeopleName.Type(u"Ro");
    EXPECT_EQ(window.lstPeople.rows[1][0], u"Ro");
    EXPECT_FALSE(FileHas(u"Given"));
    window.txtPeopleName.Type(u"Robert");
    window.lstPeople.Choose(0);
    EXPECT_TRUE(FileHas(u"Given=\"Robert\""));
    EXPECT_EQ(window.txtPeopleName.text, u"");
    window.txtPeopleName.Type(u"My Carol");
  });
  EXPECT_TRUE(FileHas(u"Given=\"My Carol\"")) << "closing the window keeps it, too";
  EXPECT_TRUE(FileHas(u"Given=\"Robert\""));
}

TEST_F(PeopleListTest, WhoIsVerifiedIsTicked) {
  InWindow([this] {
    window.chkPeopleVerified.SetValue(1);
    EXPECT_EQ(window.lstPeople.rows[0][4], u"Verified");
    EXPECT_TRUE(FileHas(u"Verified=True"));
    window.lstPeople.Choose(1);
    EXPECT_EQ(window.chkPeopleVerified.value, 0);
    window.lstPeople.Choose(0);
    EXPECT_EQ(window.chkPeopleVerified.value, 1);
    window.chkPeopleVerified.SetValue(0);
    EXPECT_FALSE(FileHas(u"Verified=True"));
  });
}

TEST_F(PeopleListTest, ForgettingIsAskedAbout) {
  InWindow([this] {
    ann.platform.dialogs.answers = {Answer::No, Answer::Yes, Answer::Yes};
    window.cmdPeopleForget.Click();
    EXPECT_EQ(window.lstPeople.rows.size(), 2u);
    EXPECT_TRUE(ann.platform.dialogs.messages[0].text.starts_with(u"Do you want to forget Carol?"));
    window.cmdPeopleForget.Click();
    ASSERT_EQ(window.lstPeople.rows.size(), 1u);
    EXPECT_EQ(window.lstPeople.rows[0][1], u"Bob");
    EXPECT_FALSE(window.fraPerson.visible) << "nobody is selected";
    window.lstPeople.Choose(0);
    window.cmdPeopleForget.Click();
    EXPECT_TRUE(window.lblPeopleNone.caption.starts_with(u"Nobody yet."));
    window.cmdPeopleForget.Click();
  });
  EXPECT_EQ(ann.Peers(), u"");
}

TEST_F(PeopleListTest, WhoIsMetMeanwhileAppearsAndTheSelectionStays) {
  ProgramCopy bob(network, u"Dora");
  InWindow([&] {
    window.lstPeople.Choose(1);
    window.txtPeopleName.Type(u"Robert");
    bob.Enter(u"/WAIT 4000");
    bob.platform.dialogs.answers = {Answer::Yes};
    ann.Enter(u"/CALL dora 4000");
    network.RunUntilIdle();
    ASSERT_EQ(window.lstPeople.rows.size(), 3u);
    EXPECT_EQ(window.lstPeople.rows[0][1], u"Dora");
    EXPECT_EQ(window.lstPeople.selected, 2);
    EXPECT_EQ(window.lstPeople.rows[2][0], u"Robert");
    EXPECT_EQ(window.txtPeopleName.text, u"Robert");
  });
  EXPECT_TRUE(FileHas(u"Given=\"Robert\""));
}

}  // namespace
}  // namespace verlume
