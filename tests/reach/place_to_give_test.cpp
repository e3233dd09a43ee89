#include "reach/place_to_give.h"

#include <gtest/gtest.h>

#include <ostream>

#include "reach/reach_samples.h"

namespace verlume {

void PrintTo(const PlaceToCall& place, std::ostream* out) {
  *out << testing::PrintToString(place.host) << " " << place.port;
}

namespace {

using namespace samples;

const RouterVerdict kPasses = {.finding = RouterFinding::Passes, .place = {u"81.2.69.160", 4001}};

PlaceToCall Place(const std::vector<NetworkAddress>& addresses, const RouterVerdict& router = {},
                  std::u16string_view own = u"192.168.1.5") {
  return PlaceToGive(addresses, router, own, 4000);
}

TEST(PlaceToGiveTest, AnIPv6AddressThatAnyoneCanReachIsFirst) {
  const PlaceToCall expected = {kGlobal.text, 4000};
  EXPECT_EQ(Place({kLoopback, kPrivate, kPublic, kUnique, kGlobal}, kPasses), expected);
  EXPECT_EQ(Place({kTemporary, kLinkLocal, kTunnel, kGlobal}), expected);
}

TEST(PlaceToGiveTest, ThenSuchAnIPv4Address) {
  EXPECT_EQ(Place({kLoopback, kTemporary, kPublic}, kPasses), (PlaceToCall{kPublic.text, 4000}));
}

TEST(PlaceToGiveTest, ThenWhatTheRouterPassesOnWithItsOwnPort) {
  EXPECT_EQ(Place({kLoopback, kPrivate, kUnique, kTemporary, kTunnel}, kPasses), kPasses.place);
}

TEST(PlaceToGiveTest, NothingThatIsNotPassedOnForCertain) {
  using enum RouterFinding;
  for (const RouterFinding finding : {NotAsked, Asking, Silent, Refused, Nonsense, PassesNoAddress,
                                      PassesHighPort, BehindRouter, BehindProvider, Disagreement}) {
    EXPECT_EQ(Place({kLoopback, kPrivate}, {.finding = finding, .place = kPasses.place}),
              (PlaceToCall{kPrivate.text, 4000}));
  }
}

TEST(PlaceToGiveTest, ATemporaryAddressOnlyWithoutAnother) {
  EXPECT_EQ(Place({kLoopback, kUnique, kPrivate, kTemporary}, {}, kTemporary.text),
            (PlaceToCall{kPrivate.text, 4000}));
  EXPECT_EQ(Place({kUnique, kTemporary}, {}, kTemporary.text), (PlaceToCall{kUnique.text, 4000}));
  EXPECT_EQ(Place({kLoopback, kTemporary}, {}, kTemporary.text),
            (PlaceToCall{kTemporary.text, 4000}));
}

TEST(PlaceToGiveTest, WhatTheSocketNamesWithoutAnyKnownAddress) {
  EXPECT_EQ(Place({}), (PlaceToCall{u"192.168.1.5", 4000}));
  EXPECT_EQ(Place({{u"<nonsense>", u"\u202e"}}), (PlaceToCall{u"192.168.1.5", 4000}));
}

}  // namespace
}  // namespace verlume
