// The contract of every Router, as tests that run on each implementation.
//
// A World has `Router& router` and `bool LetRouterAnswer()`: what the router has to say in both
// languages arrives, whatever that is; false if nothing does. The world's router answers nothing
// before.
#pragma once

#include <gtest/gtest.h>

#include "platform/router.h"

namespace verlume {

template <class World>
class RouterContract : public testing::Test {
 protected:
  RouterContract() {
    router.onReport = [this] { ++reports; };
  }
  ~RouterContract() override { router.onReport = nullptr; }

  void ExpectBoth(RouterState state) {
    for (const RouterLanguage language : {RouterLanguage::Upnp, RouterLanguage::NatPmp}) {
      EXPECT_EQ(router.Report(language).state, state);
      EXPECT_EQ(router.Report(language).outerPort, 0);
      EXPECT_EQ(router.Report(language).outerAddress, u"");
      EXPECT_EQ(router.Report(language).reason, u"");
    }
  }

  World world;
  Router& router = world.router;
  int reports = 0;
};

TYPED_TEST_SUITE_P(RouterContract);

TYPED_TEST_P(RouterContract, BeginsWithoutAPort) {
  EXPECT_EQ(this->router.Port(), 0);
  this->ExpectBoth(RouterState::NotAsked);
}

TYPED_TEST_P(RouterContract, AsksForAPort) {
  this->router.MapPort(4000);
  EXPECT_EQ(this->router.Port(), 4000);
  this->ExpectBoth(RouterState::Asking);
  EXPECT_EQ(this->reports, 0) << "nothing is raised from inside";
  ASSERT_TRUE(this->world.LetRouterAnswer());
  EXPECT_GE(this->reports, 1);
  for (const RouterLanguage language : {RouterLanguage::Upnp, RouterLanguage::NatPmp}) {
    EXPECT_NE(this->router.Report(language).state, RouterState::Asking);
    EXPECT_NE(this->router.Report(language).state, RouterState::NotAsked);
  }
}

TYPED_TEST_P(RouterContract, AsksAnewForTheSamePort) {
  this->router.MapPort(4000);
  ASSERT_TRUE(this->world.LetRouterAnswer());
  this->router.MapPort(4000);
  EXPECT_EQ(this->router.Port(), 4000);
  this->ExpectBoth(RouterState::Asking);
  EXPECT_TRUE(this->world.LetRouterAnswer());
}

TYPED_TEST_P(RouterContract, AsksForAnotherPort) {
  this->router.MapPort(4000);
  ASSERT_TRUE(this->world.LetRouterAnswer());
  this->router.MapPort(5000);
  EXPECT_EQ(this->router.Port(), 5000);
  this->ExpectBoth(RouterState::Asking);
}

TYPED_TEST_P(RouterContract, GivesThePortBack) {
  this->router.MapPort(4000);
  ASSERT_TRUE(this->world.LetRouterAnswer());
  const int before = this->reports;
  this->router.Release();
  EXPECT_EQ(this->router.Port(), 0);
  this->ExpectBoth(RouterState::NotAsked);
  EXPECT_EQ(this->reports, before) << "nothing is raised from inside";
}

TYPED_TEST_P(RouterContract, WithoutAPortThereIsNothingToGiveBack) {
  this->router.Release();
  this->router.Release();
  EXPECT_EQ(this->router.Port(), 0);
  this->ExpectBoth(RouterState::NotAsked);
}

TYPED_TEST_P(RouterContract, AsksForTheAddressAlone) {
  this->router.AskAddress();
  EXPECT_EQ(this->router.Port(), 0);
  this->ExpectBoth(RouterState::Asking);
  ASSERT_TRUE(this->world.LetRouterAnswer());
  EXPECT_EQ(this->router.Port(), 0);
}

TYPED_TEST_P(RouterContract, ThePortMattersMoreThanTheAddressAlone) {
  this->router.MapPort(4000);
  ASSERT_TRUE(this->world.LetRouterAnswer());
  const RouterReport before = this->router.Report(RouterLanguage::Upnp);
  this->router.AskAddress();
  EXPECT_EQ(this->router.Port(), 4000);
  EXPECT_EQ(this->router.Report(RouterLanguage::Upnp), before);
}

REGISTER_TYPED_TEST_SUITE_P(RouterContract, BeginsWithoutAPort, AsksForAPort,
                            AsksAnewForTheSamePort, AsksForAnotherPort, GivesThePortBack,
                            WithoutAPortThereIsNothingToGiveBack, AsksForTheAddressAlone,
                            ThePortMattersMoreThanTheAddressAlone);

}  // namespace verlume
