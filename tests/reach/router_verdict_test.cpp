#include "reach/router_verdict.h"

#include <gtest/gtest.h>

#include <ostream>

#include "reach/reach_samples.h"

namespace verlume {

void PrintTo(const RouterVerdict& verdict, std::ostream* out) {
  *out << "finding " << static_cast<int>(verdict.finding) << ", "
       << testing::PrintToString(verdict.place.host) << " " << verdict.place.port;
}

namespace {

using enum RouterFinding;

using samples::In;
using samples::Mapped;

RouterVerdict Both(const RouterReport& upnp, const RouterReport& natPmp) {
  return VerdictOn(upnp, natPmp, 4000);
}

TEST(RouterVerdictTest, AnOuterAddressIsTakenForWhatItIs) {
  struct {
    const char16_t* address;
    std::int32_t port;
    RouterFinding finding;
  } const samples[] = {
      {u"81.2.69.160", 4000, Passes},
      {u"81.2.69.160", 4001, Passes},
      {u"81.2.69.160", 32767, Passes},
      {u"81.2.69.160", 32768, PassesHighPort},
      {u"81.2.69.160", 65535, PassesHighPort},
      {u"81.2.69.160", 65536, Nonsense},
      {u"81.2.69.160", 0, Nonsense},
      {u"81.2.69.160", -1, Nonsense},
      {u"", 4000, PassesNoAddress},
      {u"192.168.178.2", 4000, BehindRouter},
      {u"169.254.1.1", 4000, BehindRouter},
      {u"100.64.0.7", 4000, BehindProvider},
      {u"127.0.0.1", 4000, Nonsense},
      {u"0.0.0.0", 4000, Nonsense},
      {u"255.255.255.255", 4000, Nonsense},
      {u"203.0.113.5", 4000, Nonsense},
      {u"2a02:587::1", 4000, Nonsense},
      {u"your.router", 4000, Nonsense},
      {u"81.2.69.160\u202e", 4000, Nonsense},
  };
  for (const auto& [address, port, finding] : samples) {
    const RouterVerdict verdict = VerdictOn(Mapped(address, port));
    EXPECT_EQ(verdict.finding, finding) << testing::PrintToString(std::u16string(address)) << port;
    EXPECT_EQ(verdict.place.host.empty(), finding == Nonsense || finding == PassesNoAddress);
  }
}

TEST(RouterVerdictTest, WhatHasNoPlaceIsWhatItIs) {
  EXPECT_EQ(VerdictOn(In(RouterState::NotAsked)).finding, NotAsked);
  EXPECT_EQ(VerdictOn(In(RouterState::Asking)).finding, Asking);
  EXPECT_EQ(VerdictOn(In(RouterState::Silent)).finding, Silent);
  EXPECT_EQ(VerdictOn(In(RouterState::Nonsense)).finding, Nonsense);
  EXPECT_EQ(VerdictOn(In(RouterState::Refused, u"718")),
            (RouterVerdict{.finding = Refused, .words = u"718"}));
}

TEST(RouterVerdictTest, OneLanguageIsEnough) {
  const RouterReport passes = Mapped(u"81.2.69.160", 4000);
  for (const RouterState other : {RouterState::NotAsked, RouterState::Asking, RouterState::Silent,
                                  RouterState::Refused, RouterState::Nonsense}) {
    EXPECT_EQ(Both(passes, In(other)), VerdictOn(passes));
    EXPECT_EQ(Both(In(other), passes), VerdictOn(passes));
  }
}

TEST(RouterVerdictTest, WhileOneIsStillAskedARefusalIsNotTheLastWord) {
  EXPECT_EQ(Both(In(RouterState::Refused), In(RouterState::Asking)).finding, Asking);
  EXPECT_EQ(Both(In(RouterState::Silent), In(RouterState::Refused)).finding, Refused);
  EXPECT_EQ(Both(In(RouterState::Nonsense), In(RouterState::Silent)).finding, Nonsense);
  EXPECT_EQ(Both(In(RouterState::NotAsked), In(RouterState::Silent)).finding, Silent);
}

TEST(RouterVerdictTest, OneToldAddressIsEnoughWhenNoPortIsAskedFor) {
  RouterReport told = In(RouterState::NotAsked);
  told.outerAddress = u"81.2.69.160";
  for (const RouterState other : {RouterState::Asking, RouterState::Silent}) {
    EXPECT_EQ(VerdictOn(told, In(other), 0).finding, NotAsked);
    EXPECT_EQ(VerdictOn(In(other), told, 0).finding, NotAsked);
    EXPECT_NE(VerdictOn(told, In(other), 4000).finding, NotAsked);
  }
}

TEST(RouterVerdictTest, OfTwoPortsTheOneThatWasAskedFor) {
  const RouterReport same = Mapped(u"81.2.69.160", 4000);
  const RouterReport another = Mapped(u"81.2.69.160", 4001);
  EXPECT_EQ(Both(same, another).place.port, 4000);
  EXPECT_EQ(Both(another, same).place.port, 4000);
  EXPECT_EQ(Both(another, Mapped(u"81.2.69.160", 4002)).place.port, 4001);
}

TEST(RouterVerdictTest, TwoOuterAddressesAreADisagreement) {
  const RouterReport one = Mapped(u"81.2.69.160", 4000);
  for (const char16_t* other : {u"81.2.69.161", u"192.168.1.2", u"100.64.0.7"}) {
    const RouterVerdict verdict = Both(one, Mapped(other, 4000));
    EXPECT_EQ(verdict.finding, Disagreement);
    EXPECT_EQ(verdict.place.host, u"81.2.69.160");
    EXPECT_EQ(verdict.otherHost, other);
  }
  EXPECT_EQ(Both(one, Mapped(u"::ffff:81.2.69.160", 4000)).finding, Passes);
}

}  // namespace
}  // namespace verlume
