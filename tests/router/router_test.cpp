// What routers of every manner are asked, and what is reported of them.
#include <gmock/gmock.h>

#include "router/nat_pmp_router.h"
#include "router/router_fixture.h"
#include "router/upnp_router.h"

namespace verlume::router {
namespace {

using namespace std::chrono_literals;
using qt::QtRouter;
using testing::IsEmpty;

class RouterTest : public RouterFixture {};

TEST_F(RouterTest, OneThatMapsIsReportedInBothLanguages) {
  const UpnpRouter upnp(home_);
  const NatPmpRouter natPmp(home_);
  const RouterReport expected = {RouterState::Mapped, u"203.0.113.7", kPort, u""};
  AfterMapping([&](QtRouter& router) {
    EXPECT_EQ(router.Report(RouterLanguage::Upnp), expected);
    EXPECT_EQ(router.Report(RouterLanguage::NatPmp), expected);
    const UpnpRouter::Mapping wanted = {Home::kMachine, kPort, 1200};
    EXPECT_EQ(upnp.Mappings()[kPort], wanted);
    EXPECT_EQ(natPmp.Mappings()[kPort].lease, 1200u);
  });
}

TEST_F(RouterTest, ThePortIsGivenBack) {
  const UpnpRouter upnp(home_);
  const NatPmpRouter natPmp(home_);
  AfterMapping([&](QtRouter& router) {
    EXPECT_FALSE(upnp.Mappings().empty());
    EXPECT_FALSE(natPmp.Mappings().empty());
    router.Release();
    EXPECT_TRUE(WaitFor([&] { return upnp.Mappings().empty() && natPmp.Mappings().empty(); }));
  });
}

TEST_F(RouterTest, TheEndGivesThePortBack) {
  const UpnpRouter upnp(home_);
  const NatPmpRouter natPmp(home_);
  AfterMapping([&](QtRouter&) {
    EXPECT_FALSE(upnp.Mappings().empty());
    EXPECT_FALSE(natPmp.Mappings().empty());
  });
  EXPECT_THAT(upnp.Mappings(), IsEmpty());
  EXPECT_THAT(natPmp.Mappings(), IsEmpty());
}

TEST_F(RouterTest, AnotherPortTakesThePlaceOfTheFirst) {
  const UpnpRouter upnp(home_);
  const NatPmpRouter natPmp(home_);
  AfterMapping([&](QtRouter& router) {
    router.MapPort(kPort + 1);
    ASSERT_TRUE(WaitForReports(router));
    EXPECT_EQ(upnp.Mappings().count(kPort), 0u);
    EXPECT_EQ(upnp.Mappings().count(kPort + 1), 1u);
    EXPECT_EQ(natPmp.Mappings().count(kPort), 0u);
    EXPECT_EQ(natPmp.Mappings().count(kPort + 1), 1u);
  });
}

TEST_F(RouterTest, TheAddressAloneChangesNothingOnTheRouter) {
  const UpnpRouter upnp(home_);
  const NatPmpRouter natPmp(home_);
  home_.OnMachine([&] {
    QtRouter router;
    router.AskAddress();
    ASSERT_TRUE(WaitForReports(router));
    const RouterReport expected = {RouterState::NotAsked, u"203.0.113.7", 0, u""};
    EXPECT_EQ(router.Report(RouterLanguage::Upnp), expected);
    EXPECT_EQ(router.Report(RouterLanguage::NatPmp), expected);
  });
  EXPECT_EQ(upnp.TimesAsked("#AddPortMapping"), 0);
  EXPECT_EQ(natPmp.TimesAskedForPort(), 0);
}

TEST_F(RouterTest, OneThatRefusesIsReportedWithItsReason) {
  const UpnpRouter upnp(home_, {.refusal = "606 Action not authorized"});
  const NatPmpRouter natPmp(home_, {.result = 2});
  AfterMapping([](QtRouter& router) {
    EXPECT_EQ(router.Report(RouterLanguage::Upnp),
              (RouterReport{RouterState::Refused, u"", 0, u"606 Action not authorized"}));
    EXPECT_EQ(router.Report(RouterLanguage::NatPmp),
              (RouterReport{RouterState::Refused, u"", 0, u"2"}));
  });
}

TEST_F(RouterTest, OneThatIsSilentIsReportedSo) {
  AfterMapping([](QtRouter& router) {
    EXPECT_EQ(router.Report(RouterLanguage::Upnp).state, RouterState::Silent);
    EXPECT_EQ(router.Report(RouterLanguage::NatPmp).state, RouterState::Silent);
  });
}

TEST_F(RouterTest, AnothersPortIsNotTakenOver) {
  UpnpRouter upnp(home_, {.takesOver = true});
  const UpnpRouter::Mapping anothers = {Home::kNeighbour, 80, 0};
  upnp.SetMapping(kPort, anothers);
  AfterMapping([&](QtRouter& router) {
    const RouterReport expected = {RouterState::Refused, u"", 0, u"718"};
    EXPECT_EQ(router.Report(RouterLanguage::Upnp), expected);
    EXPECT_EQ(upnp.Mappings()[kPort], anothers);
  });
  EXPECT_EQ(upnp.Mappings()[kPort], anothers) << "nor is it given back";
}

TEST_F(RouterTest, APortThatAnotherHasByNowIsNotGivenBack) {
  UpnpRouter upnp(home_);
  const UpnpRouter::Mapping anothers = {Home::kNeighbour, 80, 0};
  AfterMapping([&](QtRouter&) { upnp.SetMapping(kPort, anothers); });
  EXPECT_EQ(upnp.Mappings()[kPort], anothers);
}

TEST_F(RouterTest, OneThatKnowsNoLeasesIsAskedWithoutEnd) {
  const UpnpRouter upnp(home_, {.onlyWithoutEnd = true});
  AfterMapping([&](QtRouter& router) {
    EXPECT_EQ(router.Report(RouterLanguage::Upnp).state, RouterState::Mapped);
    const UpnpRouter::Mapping wanted = {Home::kMachine, kPort, 0};
    EXPECT_EQ(upnp.Mappings()[kPort], wanted);
  });
  EXPECT_THAT(upnp.Mappings(), IsEmpty());
}

TEST_F(RouterTest, ThePromiseIsRenewedAtHalfOfItsTime) {
  const UpnpRouter upnp(home_);
  const NatPmpRouter natPmp(home_, {.longestLease = 2});
  const qt::RouterTimes times = {.lease = 4s, .again = 100s};
  AfterMapping(
      [&](QtRouter& router) {
        int reports = 0;
        router.onReport = [&reports] { ++reports; };
        EXPECT_TRUE(WaitFor([&] {
          return upnp.TimesAsked("#AddPortMapping") >= 3 && natPmp.TimesAskedForPort() >= 4;
        }));
        EXPECT_EQ(reports, 0) << "the router has said nothing else";
      },
      times);
}

TEST_F(RouterTest, OneThatRefusedIsAskedAgain) {
  const UpnpRouter upnp(home_, {.refusal = "501 ActionFailed"});
  AfterMapping(
      [&](QtRouter&) {
        EXPECT_TRUE(WaitFor([&] { return upnp.TimesAsked("#AddPortMapping") >= 2; }));
      },
      {.lease = 20s, .again = 1s});
}

TEST_F(RouterTest, ItsOtherGatewayIsAskedToo) {
  home_.AddDefaultRoute(Home::kNeighbour, 10);
  const UpnpRouter upnp(home_, {.address = Home::kNeighbour});
  const NatPmpRouter natPmp(home_, {.address = Home::kNeighbour});
  AfterMapping([&](QtRouter& router) {
    EXPECT_EQ(router.Report(RouterLanguage::Upnp).state, RouterState::Mapped);
    EXPECT_EQ(router.Report(RouterLanguage::NatPmp).state, RouterState::Mapped);
  });
}

TEST_F(RouterTest, ThePortOfAnEarlierAddressOfTheMachineIsGivenBack) {
  const UpnpRouter upnp(home_);
  AfterMapping([&](QtRouter& router) {
    home_.Ip("addr del 192.168.77.2/24 dev cable");
    home_.Ip("addr add 192.168.77.3/24 dev cable");
    home_.Ip("route replace default via 192.168.77.1");
    ASSERT_TRUE(MapAndWait(router));
    EXPECT_EQ(router.Report(RouterLanguage::Upnp).state, RouterState::Mapped);
    EXPECT_EQ(upnp.Mappings()[kPort].client, "192.168.77.3");
  });
}

// The inner one of two routers in a row has a private address outside.
TEST_F(RouterTest, APrivateOuterAddressIsReportedAsItIs) {
  const UpnpRouter upnp(home_, {.outerAddress = "10.20.30.40"});
  const NatPmpRouter natPmp(home_, {.outerAddress = "100.64.1.2", .outerPort = 999});
  AfterMapping([](QtRouter& router) {
    EXPECT_EQ(router.Report(RouterLanguage::Upnp),
              (RouterReport{RouterState::Mapped, u"10.20.30.40", kPort, u""}));
    EXPECT_EQ(router.Report(RouterLanguage::NatPmp),
              (RouterReport{RouterState::Mapped, u"100.64.1.2", 999, u""}));
  });
}

TEST_F(RouterTest, OneThatIsNotConnectedHasNoOuterAddress) {
  const UpnpRouter upnp(home_, {.outerAddress = "0.0.0.0"});
  const NatPmpRouter natPmp(home_, {.outerAddress = "0.0.0.0"});
  const RouterReport expected = {RouterState::Mapped, u"", kPort, u""};
  AfterMapping([&](QtRouter& router) {
    EXPECT_EQ(router.Report(RouterLanguage::Upnp), expected);
    EXPECT_EQ(router.Report(RouterLanguage::NatPmp), expected);
  });
}

TEST_F(RouterTest, TheEndDoesNotWaitForARouterThatIsSilent) {
  home_.OnMachine([] {
    auto router = std::make_unique<QtRouter>();
    router->MapPort(kPort);
    WaitFor([] { return false; }, 300ms);  // both are asking
    const auto start = std::chrono::steady_clock::now();
    router.reset();
    EXPECT_LT(std::chrono::steady_clock::now() - start, 1s);
  });
}

TEST_F(RouterTest, TheEndTriesForTwoSecondsToGiveBack) {
  auto upnp = std::make_unique<UpnpRouter>(home_);
  auto natPmp = std::make_unique<NatPmpRouter>(home_);
  home_.OnMachine([&] {
    auto router = std::make_unique<QtRouter>();
    ASSERT_TRUE(MapAndWait(*router));
    home_.RouterSide().Run([] { ASSERT_EQ(std::system("ip link set cable down"), 0); });
    const auto start = std::chrono::steady_clock::now();
    router.reset();
    const auto time = std::chrono::steady_clock::now() - start;
    EXPECT_GT(time, 1s) << "it has tried";
    EXPECT_LT(time, 2500ms);
  });
}

}  // namespace
}  // namespace verlume::router
