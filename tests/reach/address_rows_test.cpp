#include "reach/address_rows.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "reach/reach_samples.h"

namespace verlume {
namespace {

using namespace samples;
using testing::ElementsAre;
using testing::IsEmpty;

using Row = TableBox::Row;

std::vector<Row> RowsOf(const ReachFacts& facts) {
  return AddressRows(facts, false);
}

TEST(AddressRowsTest, WhatMostCanCallComesFirst) {
  const ReachFacts facts = {.addresses = {kLoopback,
                                          kLinkLocal,
                                          kPrivate,
                                          kTunnel,
                                          kProviders,
                                          kUnique,
                                          kTemporary,
                                          kPublic,
                                          kGlobal,
                                          {u"203.0.113.5", u"eth1"}},
                            .router = {.finding = RouterFinding::Passes, .place = {kOuter, 4001}}};
  EXPECT_THAT(
      RowsOf(facts),
      ElementsAre(
          Row{u"2a02:587::1", u"anyone who has IPv6"}, Row{u"81.2.69.142", u"anyone"},
          Row{u"81.2.69.160, port 4001", u"anyone, as the router says"},
          Row{u"2a02:587::77", u"anyone, but it is temporary: do not give it to others"},
          Row{u"192.168.1.5", u"computers on this network"},
          Row{u"fd00::1", u"computers on this network"},
          Row{u"100.64.3.4", u"computers on a network of your provider's, behind its own router"},
          Row{u"2002:5102:458e::1", u"hardly anyone: it is a tunnel of an old kind"},
          Row{u"fe80::1", u"hardly anyone: it is only for the same cable or Wi-Fi"},
          Row{u"203.0.113.5", u"nobody on the Internet: it is set aside for other uses"},
          Row{u"127.0.0.1", u"this computer only"}));
}

TEST(AddressRowsTest, OnlyWhatTheRouterPassesOnForCertainHasARow) {
  for (const RouterFinding finding : {RouterFinding::BehindRouter, RouterFinding::Disagreement}) {
    EXPECT_THAT(RowsOf({.router = {.finding = finding, .place = {kOuter, 4001}}}), IsEmpty());
  }
}

TEST(AddressRowsTest, InGreek) {
  const ReachFacts facts = {.addresses = {kLoopback},
                            .router = {.finding = RouterFinding::Passes, .place = {kOuter, 4001}}};
  EXPECT_THAT(AddressRows(facts, true),
              ElementsAre(Row{u"81.2.69.160, θύρα 4001", u"όλοι, όπως λέει ο δρομολογητής"},
                          Row{u"127.0.0.1", u"μόνο αυτός ο υπολογιστής"}));
}

TEST(AddressRowsTest, WhatIsNoAddressHasNoRow) {
  EXPECT_THAT(RowsOf({.addresses = {{u"<b>nonsense</b>", u""}, {HostileWords(), u""}, {u"", u""}}}),
              IsEmpty());
}

TEST(AddressRowsTest, ManyAddressesAreNotAllShown) {
  EXPECT_EQ(RowsOf({.addresses = std::vector<NetworkAddress>(500, kPrivate)}).size(), 40u);
}

}  // namespace
}  // namespace verlume
