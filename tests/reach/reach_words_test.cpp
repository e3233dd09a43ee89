#include "reach/reach_words.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

#include "reach/reach_samples.h"
#include "shell/nickname.h"

namespace verlume {
namespace {

using namespace samples;
using testing::HasSubstr;

std::string Utf8(const std::u16string& text) {
  return testing::PrintToString(text);
}

ReachFacts With(const RouterVerdict& router) {
  return {.router = router, .choice = RouterChoice::Yes, .isListening = true, .port = 4000};
}

std::u16string English(const RouterVerdict& router) {
  return RouterText(With(router), false);
}

bool IsShowableThroughout(std::u16string_view text) {
  while (!text.empty()) {
    const std::u16string_view character = FirstCharacter(text);
    if (!IsShowable(character)) return false;
    text.remove_prefix(character.size());
  }
  return true;
}

TEST(ReachWordsTest, TheRouterIsQuotedNotBelieved) {
  using enum RouterFinding;
  EXPECT_EQ(English({.finding = Passes, .place = {kOuter, 4000}}),
            u"It says that it passes calls to 81.2.69.160, port 4000, on to this computer.");
  EXPECT_EQ(English({.finding = Passes, .place = {kOuter, 4001}}),
            u"It says that it passes calls to 81.2.69.160, port 4001, on to this computer. Callers "
            u"have to use port 4001, not 4000.");
  EXPECT_EQ(
      English({.finding = BehindRouter, .place = {u"10.0.0.2", 4000}}),
      u"It says that its outer address is 10.0.0.2. That is a private address: your router is "
      u"behind another router.");
  EXPECT_EQ(English({.finding = BehindProvider, .place = {u"100.64.0.7", 4000}}),
            u"It says that its outer address is 100.64.0.7. That is on a network of your "
            u"provider's, behind the provider's own router.");
  EXPECT_EQ(English({.finding = Disagreement, .place = {kOuter, 4000}, .otherHost = u"10.0.0.2"}),
            u"Asked in two ways, it names two outer addresses: 81.2.69.160 and 10.0.0.2. One of "
            u"them is wrong.");
  EXPECT_EQ(English({.finding = Nonsense, .words = u"203.0.113.5"}),
            u"It says that its outer address is “203.0.113.5”. No router has such an address.");
  EXPECT_EQ(English({.finding = Refused, .words = u"718 ConflictInMappingEntry"}),
            u"It refuses to pass calls on. Its own words: “718 ConflictInMappingEntry”");
}

TEST(ReachWordsTest, EveryFindingHasItsWordsInBothLanguages) {
  for (int i = 0; i <= static_cast<int>(RouterFinding::Disagreement); ++i) {
    const ReachFacts facts = With({.finding = static_cast<RouterFinding>(i)});
    EXPECT_FALSE(RouterText(facts, false).empty()) << i;
    EXPECT_NE(RouterText(facts, false), RouterText(facts, true)) << i;
    EXPECT_EQ(RouterText(facts, true).find(u'%'), std::u16string::npos) << i;
  }
}

TEST(ReachWordsTest, WithoutPermissionItIsNotAsked) {
  ReachFacts facts = With({});
  EXPECT_EQ(RouterText(facts, false), u"It is asked to pass calls on when you wait for a call.");
  facts.choice = RouterChoice::No;
  EXPECT_EQ(RouterText(facts, false), u"Verlume does not ask the router.");
}

TEST(ReachWordsTest, AnAddressWithoutAPortIsToldAsWell) {
  ReachFacts facts = With({.finding = RouterFinding::Refused});
  facts.outerAddress = kOuter;
  EXPECT_EQ(RouterText(facts, false),
            u"It refuses to pass calls on. It says that its outer address is 81.2.69.160.");
  facts.outerAddress = u"100.64.0.7";
  EXPECT_THAT(Utf8(RouterText(facts, false)), HasSubstr("behind the provider's own router"));
  facts.outerAddress = HostileWords();
  EXPECT_TRUE(IsShowableThroughout(RouterText(facts, false))) << Utf8(RouterText(facts, false));
}

TEST(ReachWordsTest, HostileWordsAreShownHarmlessAndShort) {
  for (const RouterFinding finding : {RouterFinding::Refused, RouterFinding::Nonsense}) {
    for (const bool isGreek : {false, true}) {
      const std::u16string text =
          RouterText(With({.finding = finding, .words = HostileWords()}), isGreek);
      EXPECT_TRUE(IsShowableThroughout(text)) << Utf8(text);
      EXPECT_NE(text.find(u"<b>%1 %5</b>\\u202E\\u200B\\x0A\\x0D"), text.npos) << Utf8(text);
      EXPECT_LT(text.size(), 250u);
    }
  }
}

TEST(ReachWordsTest, EachFirewallHasALine) {
  EXPECT_EQ(FirewallText({{u"ufw", true}, {u"firewalld", false}}, false),
            u"ufw is on. It keeps calls out, unless the port is open in it.\r\nfirewalld is off.");
  EXPECT_EQ(FirewallText({{u"ufw", false}}, true), u"Το ufw είναι ανενεργό.");
  EXPECT_EQ(FirewallText({}, false),
            u"No firewall that Verlume can ask was found on this computer.");
}

TEST(ReachWordsTest, ManyFirewallsAreNotAllNamed) {
  const std::vector<Firewall> many(1000, {HostileWords(), true});
  const std::u16string text = FirewallText(many, false);
  EXPECT_EQ(std::ranges::count(text, u'\n'), 7);
  EXPECT_LT(text.size(), 2000u);
}

}  // namespace
}  // namespace verlume
