#include "people/invitation.h"

#include <gtest/gtest.h>

namespace verlume {
namespace {

constexpr std::u16string_view kKeyText = u"Bw8XHycvNz9HT1dfZ293f4ePl5-nr7e_x8_X3-fv9_8";

std::u16string InvitationTo(std::u16string_view place, std::u16string_view key = kKeyText) {
  return std::u16string(u"verlume://").append(place).append(u"/?key=").append(key);
}

TEST(InvitationTest, AnAddressAPortAndAKeyAreRead) {
  const auto invitation = InvitationIn(InvitationTo(u"192.0.2.7:4000"));
  ASSERT_TRUE(invitation);
  EXPECT_EQ(invitation->host, u"192.0.2.7");
  EXPECT_EQ(invitation->port, 4000);
  EXPECT_EQ(invitation->key[0], 7);
  EXPECT_EQ(InvitationText(*invitation), InvitationTo(u"192.0.2.7:4000"));
}

TEST(InvitationTest, AnIPv6AddressStandsInBrackets) {
  const auto invitation = InvitationIn(InvitationTo(u"[2001:db8::7]:4000"));
  ASSERT_TRUE(invitation);
  EXPECT_EQ(invitation->host, u"2001:db8::7");
  EXPECT_EQ(InvitationText(*invitation), InvitationTo(u"[2001:db8::7]:4000"));
}

TEST(InvitationTest, ANameAndBlanksAroundItAreAccepted) {
  EXPECT_EQ(InvitationIn(u"  " + InvitationTo(u"bob-s.example:32767") + u" ")->host,
            u"bob-s.example");
}

TEST(InvitationTest, NonsenseIsRefused) {
  for (const char16_t* place :
       {u"192.0.2.7", u":4000", u"192.0.2.7:0", u"192.0.2.7:32768", u"192.0.2.7:99999999999",
        u"192.0.2.7:04000", u"192.0.2.7:4000x", u"2001:db8::7:4000", u"[192.0.2.7]:4000",
        u"[2001:db8::7:4000", u"[fe80::1%25eth0]:4000", u"ann@bob:4000", u"bob/x:4000",
        u"bob x:4000", u"bоb:4000", u"-bob:4000"}) {
    EXPECT_FALSE(InvitationIn(InvitationTo(place)));
  }
  const std::u16string good = InvitationTo(u"bob:4000");
  EXPECT_TRUE(InvitationIn(good));
  EXPECT_FALSE(InvitationIn(InvitationTo(u"bob:4000", kKeyText.substr(1))));
  EXPECT_FALSE(InvitationIn(good + u"&x=1"));
  EXPECT_FALSE(InvitationIn(good + u" hello"));
  EXPECT_FALSE(InvitationIn(good.substr(1)));
  EXPECT_FALSE(InvitationIn(u"http" + good.substr(7)));
  EXPECT_FALSE(InvitationIn(InvitationTo(std::u16string(254, u'a') + u":4000")));
}

TEST(InvitationTest, AWrongOneStillLooksLikeOne) {
  EXPECT_TRUE(LooksLikeInvitation(u" verlume://bob "));
  EXPECT_FALSE(LooksLikeInvitation(u"verlume://bob is what I typed"));
  EXPECT_FALSE(LooksLikeInvitation(u"see verlume://bob"));
}

}  // namespace
}  // namespace verlume
