#include "reach/advice.h"

#include <gtest/gtest.h>

#include "reach/reach_samples.h"

namespace verlume {
namespace {

using namespace samples;

// Behind a router that may be asked, while a call is waited for.
ReachFacts Waiting(const RouterVerdict& router) {
  return {.addresses = {kLoopback, kPrivate},
          .router = router,
          .choice = RouterChoice::Yes,
          .isListening = true,
          .port = 4000,
          .place = {kPrivate.text, 4000}};
}

ReachFacts Waiting(RouterFinding finding) {
  return Waiting({.finding = finding, .place = {kOuter, 4001}});
}

// The address to give is the machine's own.
ReachFacts WaitingAt(const NetworkAddress& address) {
  ReachFacts facts = Waiting(RouterFinding::NotAsked);
  facts.addresses.push_back(address);
  facts.place.host = address.text;
  return facts;
}

ReachFacts WithFirewall(ReachFacts facts, std::u16string_view name = u"ufw") {
  facts.firewalls = {{u"firewalld", false}, {std::u16string(name), true}};
  return facts;
}

ReachFacts Without(ReachFacts facts, RouterChoice choice) {
  facts.choice = choice;
  return facts;
}

TEST(AdviceTest, EachCaseHasOne) {
  using enum RouterFinding;
  ReachFacts offline = Waiting(Passes);
  offline.addresses = {kLoopback, kLinkLocal};
  ReachFacts onCable = Waiting(Asking);
  onCable.addresses = {kLoopback, {u"169.254.7.7", u"eth0"}};
  ReachFacts idle = Waiting(NotAsked);
  idle.isListening = false;
  ReachFacts talking = idle;
  talking.isTalking = true;
  ReachFacts atProvider = Waiting(NotAsked);
  atProvider.addresses = {kLoopback, kProviders};
  atProvider.choice = RouterChoice::NotYet;
  ReachFacts refusedAtProvider = Waiting(Refused);
  refusedAtProvider.outerAddress = u"100.64.0.7";
  ReachFacts passes = Waiting(Passes);
  passes.place = {kOuter, 4001};
  struct {
    const char* name;
    ReachFacts facts;
    Advice advice;
  } const samples[] = {
      {"offline", offline, Advice::FindNetwork},
      {"on a cable", onCable, Advice::WaitForRouter},
      {"talking", talking, Advice::EndConversation},
      {"idle", idle, Advice::WaitFirst},
      {"idle, with firewall", WithFirewall(idle), Advice::WaitFirst},
      {"global IPv6", WaitingAt(kGlobal), Advice::GiveIPv6},
      {"global IPv6, router not allowed", Without(WaitingAt(kGlobal), RouterChoice::No),
       Advice::GiveIPv6},
      {"global IPv6, with firewall", WithFirewall(WaitingAt(kGlobal)), Advice::OpenFirewall},
      {"public IPv4", WaitingAt(kPublic), Advice::GivePlace},
      {"public IPv4, with firewall", WithFirewall(WaitingAt(kPublic)), Advice::OpenFirewall},
      {"at the provider", atProvider, Advice::OtherSideWaits},
      {"not decided", Without(Waiting(NotAsked), RouterChoice::NotYet), Advice::AllowRouter},
      {"not allowed", WithFirewall(Without(Waiting(NotAsked), RouterChoice::No)),
       Advice::AllowRouter},
      {"asking", Waiting(Asking), Advice::WaitForRouter},
      {"not asked yet", Waiting(NotAsked), Advice::WaitForRouter},
      {"passes", passes, Advice::GivePlace},
      {"passes, with firewall", WithFirewall(passes), Advice::OpenFirewall},
      {"high port", Waiting(PassesHighPort), Advice::WaitOnAnotherPort},
      {"behind provider", Waiting(BehindProvider), Advice::OtherSideWaits},
      {"behind router", Waiting(BehindRouter), Advice::ForwardTwice},
      {"refused", Waiting(Refused), Advice::ForwardByHand},
      {"refused at the provider", refusedAtProvider, Advice::OtherSideWaits},
      {"silent", Waiting(Silent), Advice::ForwardByHand},
      {"nonsense", Waiting(Nonsense), Advice::ForwardByHand},
      {"no address", Waiting(PassesNoAddress), Advice::ForwardByHand},
      {"disagreement", Waiting(Disagreement), Advice::ForwardByHand},
  };
  for (const auto& [name, facts, advice] : samples) {
    EXPECT_EQ(AdviceOn(facts), advice) << name;
    EXPECT_NE(AdviceText(facts, false), AdviceText(facts, true)) << name;
    for (const bool isGreek : {false, true}) {
      EXPECT_EQ(AdviceText(facts, isGreek).find(u'%'), std::u16string::npos) << name;
    }
  }
}

TEST(AdviceTest, ForwardingNamesPortAndAddress) {
  const ReachFacts refused = Waiting(RouterFinding::Refused);
  EXPECT_TRUE(AdviceText(refused, false)
                  .starts_with(u"In the router's settings, forward TCP port 4000 to 192.168.1.5."));
  EXPECT_TRUE(AdviceText(refused, true)
                  .starts_with(u"Στις ρυθμίσεις του δρομολογητή, προωθήστε τη θύρα TCP 4000 στη "
                               u"διεύθυνση 192.168.1.5."));
  const ReachFacts behind =
      Waiting({.finding = RouterFinding::BehindRouter, .place = {u"10.0.0.2", 4000}});
  EXPECT_NE(AdviceText(behind, false).find(u"forward TCP port 4000 to 10.0.0.2."),
            std::u16string::npos);
}

TEST(AdviceTest, BesidesIPv6TheRouterMayPassCallsOn) {
  ReachFacts facts = WaitingAt(kGlobal);
  EXPECT_EQ(AdviceText(facts, false).find(u"81.2.69.160"), std::u16string::npos);
  facts.router = {.finding = RouterFinding::Passes, .place = {kOuter, 4001}};
  EXPECT_TRUE(AdviceText(facts, false)
                  .ends_with(u"Who has no IPv6 can call 81.2.69.160, port "
                             u"4001."));
}

TEST(AdviceTest, TheFirewallIsOpenedByACommand) {
  EXPECT_EQ(AdviceText(WithFirewall(WaitingAt(kGlobal)), false),
            u"Open TCP port 4000 in the firewall ufw. In a terminal: sudo ufw allow 4000/tcp");
  EXPECT_EQ(AdviceText(WithFirewall(WaitingAt(kGlobal), u"firewalld"), true),
            u"Ανοίξτε τη θύρα TCP 4000 στο τείχος προστασίας firewalld. Σε τερματικό: sudo "
            u"firewall-cmd --add-port=4000/tcp");
}

TEST(AdviceTest, AFirewallOfAnotherNameHasNoCommandAndIsShownHarmless) {
  EXPECT_EQ(AdviceText(WithFirewall(WaitingAt(kGlobal), u"\u202e; rm"), false),
            u"Open TCP port 4000 in the firewall \\u202E; rm.");
}

}  // namespace
}  // namespace verlume
