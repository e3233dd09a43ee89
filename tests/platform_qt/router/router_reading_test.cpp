// What routers say of themselves, with sense and without.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform_qt/os/ipv4.h"
#include "platform_qt/router/igd_description.h"
#include "platform_qt/router/router_text.h"
#include "platform_qt/router/ssdp_answer.h"

namespace verlume::qt {
namespace {

using testing::IsEmpty;
using testing::SizeIs;

const HttpUrl kBase = *ParseHttpUrl("http://192.168.0.1:5000/igd/description.xml?a=/b/");

std::string Resolved(std::string_view reference) {
  const auto url = ResolveUrl(kBase, reference);
  if (!url) return "none";
  return Ipv4Text(url->host) + " " + std::to_string(url->port) + " " + url->path;
}

TEST(HttpUrl, IsAnAddressAPortAndAPath) {
  EXPECT_EQ(ParseHttpUrl("HTTP://10.0.0.1"), (HttpUrl{*ParseIpv4("10.0.0.1"), 80, "/"}));
  EXPECT_EQ(ParseHttpUrl("http://10.0.0.1:8080/x?y"),
            (HttpUrl{*ParseIpv4("10.0.0.1"), 8080, "/x?y"}));
}

TEST(HttpUrl, NothingElseIsOne) {
  for (const std::string& nonsense :
       {std::string(), std::string("http://"), std::string("http:///x"),
        std::string("http://router/"), std::string("https://10.0.0.1/"),
        std::string("http://10.0.0.1:/"), std::string("http://10.0.0.1:0/"),
        std::string("http://10.0.0.1:65536/"), std::string("http://10.0.0.1:80x/"),
        std::string("http://user@10.0.0.1/"), std::string("http://10.0.0.1/a b"),
        std::string("http://10.0.0.1/\r\nX: y"), std::string("http://10.0.0.1/\xCE\xB1"),
        std::string("http://[::1]/"), "http://10.0.0.1/" + std::string(1000, 'x')}) {
    EXPECT_EQ(ParseHttpUrl(nonsense), std::nullopt) << nonsense;
  }
}

TEST(HttpUrl, AReferenceStaysOnItsMachine) {
  EXPECT_EQ(Resolved("/control"), "192.168.0.1 5000 /control");
  EXPECT_EQ(Resolved("control?x"), "192.168.0.1 5000 /igd/control?x");
  EXPECT_EQ(Resolved("http://192.168.0.1:80/c"), "192.168.0.1 80 /c");
  for (const char* elsewhere : {"http://192.168.0.2:5000/c", "//192.168.0.2/c", "", "/a b",
                                "/c\r\nHost: x", "http://router/c"}) {
    EXPECT_EQ(Resolved(elsewhere), "none") << elsewhere;
  }
}

std::optional<SsdpAnswer> ReadSsdp(const std::string& lines) {
  return ReadSsdpAnswer("HTTP/1.1 200 OK\r\n" + lines + "\r\n\r\n", kBase.host);
}

TEST(SsdpAnswer, SaysWhereARouterDescribesItself) {
  const auto answer = ReadSsdp(
      "ST: urn:schemas-upnp-org:device:InternetGatewayDevice:2\r\n"
      "location: http://192.168.0.1:5000/d.xml");
  ASSERT_TRUE(answer);
  EXPECT_TRUE(answer->isOfRouter);
  EXPECT_EQ(answer->location, ParseHttpUrl("http://192.168.0.1:5000/d.xml"));
}

TEST(SsdpAnswer, OfAnotherMachineOrKindIsToldApart) {
  EXPECT_FALSE(ReadSsdp("ST: urn:schemas-upnp-org:device:MediaServer:1")->isOfRouter);
  EXPECT_FALSE(ReadSsdp("LOCATION: http://192.168.0.2:5000/d.xml")->location);
  EXPECT_FALSE(ReadSsdp("LOCATION: ")->location);
  EXPECT_FALSE(ReadSsdpAnswer("NOTIFY * HTTP/1.1\r\n\r\n", kBase.host));
  EXPECT_FALSE(ReadSsdpAnswer("", kBase.host));
  EXPECT_FALSE(ReadSsdpAnswer(std::string(2000, '\0'), kBase.host));
}

std::string Description(const std::string& type, const std::string& control,
                        const std::string& base = "") {
  return "<?xml version=\"1.0\"?><root><URLBase>" + base +
         "</URLBase><device><serviceList><service><serviceType>" + type +
         "</serviceType><controlURL>" + control +
         "</controlURL></service></serviceList></device></root>";
}

constexpr char kIpConnection[] = "urn:schemas-upnp-org:service:WANIPConnection:1";

TEST(IgdDescription, NamesTheServiceThatPassesCallsOn) {
  const auto services = ReadIgdDescription(Description(kIpConnection, "ctl/IPConn"), kBase);
  ASSERT_THAT(services, SizeIs(1));
  EXPECT_EQ(services[0].type, kIpConnection);
  EXPECT_EQ(services[0].control.path, "/igd/ctl/IPConn");
  const auto based =
      ReadIgdDescription(Description(kIpConnection, "/c", "http://192.168.0.1:49000/"), kBase);
  ASSERT_THAT(based, SizeIs(1));
  EXPECT_EQ(based[0].control.port, 49000);
}

TEST(IgdDescription, OneThatPointsElsewhereNamesNone) {
  EXPECT_THAT(ReadIgdDescription(Description(kIpConnection, "http://192.168.0.2/c"), kBase),
              IsEmpty());
  EXPECT_THAT(ReadIgdDescription(Description(kIpConnection, "/c", "http://192.168.0.2/"), kBase),
              IsEmpty());
}

TEST(IgdDescription, NonsenseNamesNone) {
  const std::string endless(1000, 'x');
  for (const std::string& nonsense :
       {std::string(), std::string("<"), std::string("<a"), std::string("<a b=\""),
        std::string("</service></service></service>"), std::string("<![CDATA["),
        std::string(60'000, '<'), Description(endless, "/c"), Description("Other:1", "/c"),
        Description(std::string(kIpConnection) + "\"\r\nX: y", "/c"),
        Description(kIpConnection, endless.substr(0, 50) + " " + endless)}) {
    EXPECT_THAT(ReadIgdDescription(nonsense, kBase), IsEmpty()) << nonsense.substr(0, 100);
  }
}

TEST(SoapAnswer, HasValuesByTheirNames) {
  const SoapValues values = ReadSoapAnswer(
      "<s:Envelope><s:Body><u:R><NewExternalIPAddress>203.0.113.7</NewExternalIPAddress>"
      "<NewInternalClient></NewInternalClient></u:R></s:Body></s:Envelope>");
  EXPECT_EQ(values.at("NewExternalIPAddress"), "203.0.113.7");
  std::string many;
  for (int i = 0; i < 1000; ++i) many += "<n" + std::to_string(i) + ">x</n>";
  EXPECT_LE(ReadSoapAnswer(many).size(), 100u);
  EXPECT_LE(ReadSoapAnswer("<n>" + std::string(1000, 'x') + "</n>").at("n").size(), 127u);
}

TEST(SoapAnswer, PortsAreNumbers) {
  EXPECT_EQ(ReadPort("65535"), 65535);
  for (const char* nonsense : {"", "65536", "-1", "0x50", "80 ", "port"}) {
    EXPECT_EQ(ReadPort(nonsense), std::nullopt) << nonsense;
  }
}

TEST(RouterText, IsShortAndDoesNotSteer) {
  EXPECT_EQ(RouterText("718 \xCE\xB1 <b>"), u"718 α <b>");
  EXPECT_EQ(RouterText("a\xFF\r\n\x1B\xE2\x80\xAE\xC2\x85"),
            u"a\xFFFD\xFFFD\xFFFD\xFFFD\xFFFD\xFFFD");
  EXPECT_EQ(RouterText(std::string(5000, 'x')), std::u16string(200, u'x'));
  std::string faces;
  for (int i = 0; i < 300; ++i) faces += "\xF0\x9F\x98\x80";
  EXPECT_EQ(RouterText("x" + faces).size(), 199u) << "no half of a character";
}

TEST(OuterAddress, IsOneMachinesOrNone) {
  EXPECT_EQ(ReadOuterAddress("203.0.113.7").text, u"203.0.113.7");
  for (const char* none : {"", "0.0.0.0"}) {
    EXPECT_TRUE(ReadOuterAddress(none).makesSense) << none;
    EXPECT_EQ(ReadOuterAddress(none).text, u"") << none;
  }
  for (const char* nonsense : {"router", "127.0.0.1", "239.255.255.250", "255.255.255.255",
                               "0.1.2.3", "203.0.113.7\n", "<b>", "2001:db8::1"}) {
    EXPECT_FALSE(ReadOuterAddress(nonsense).makesSense) << nonsense;
  }
}

}  // namespace
}  // namespace verlume::qt
