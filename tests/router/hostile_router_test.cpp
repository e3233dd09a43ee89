// Routers, and machines that pass for one, that mean harm.
#include <sys/resource.h>
#include <sys/socket.h>

#include <fstream>
#include <tuple>

#include "router/nat_pmp_router.h"
#include "router/router_fixture.h"
#include "router/upnp_router.h"

namespace verlume::router {
namespace {

using namespace std::chrono_literals;
using qt::QtRouter;

constexpr std::int32_t kAskedPort = 4000;

class HostileRouterTest : public RouterFixture {
 protected:
  RouterState UpnpStateOf(const UpnpManner& manner) {
    const UpnpRouter upnp(home_, manner);
    return ReportOf(RouterLanguage::Upnp).state;
  }
  RouterState NatPmpStateOf(const NatPmpManner& manner) {
    const NatPmpRouter natPmp(home_, manner);
    return ReportOf(RouterLanguage::NatPmp).state;
  }
};

TEST_F(HostileRouterTest, WhoIsNoGatewayIsNotListenedTo) {
  const UpnpRouter neighbour(home_, {.address = Home::kNeighbour, .searchAnswers = 3});
  EXPECT_EQ(ReportOf(RouterLanguage::Upnp).state, RouterState::Silent);
  EXPECT_EQ(neighbour.TimesAsked(""), 0);
}

TEST_F(HostileRouterTest, NothingIsFetchedFromElsewhere) {
  std::atomic<int> visits = 0;
  const Server elsewhere(home_, SOCK_STREAM, Home::kNeighbour, 80, [&visits](int socket) {
    const network::Descriptor visitor(::accept(socket, nullptr, nullptr));
    ++visits;
  });
  for (const char* location :
       {"http://192.168.77.9/", "http://192.168.77.9:80/description.xml", "http://127.0.0.1:5000/",
        "http://192.168.77.1@192.168.77.9/", "http://3232255753/", "http://localhost:5000/",
        "https://192.168.77.1:5000/", "file:///etc/passwd", "http://192.168.77.1:0/",
        "http://192.168.77.1:99999/", "//192.168.77.9/"}) {
    EXPECT_EQ(UpnpStateOf({.location = location}), RouterState::Nonsense) << location;
  }
  EXPECT_EQ(visits, 0);
}

TEST_F(HostileRouterTest, NothingIsAskedOfAnotherMachine) {
  std::atomic<int> visits = 0;
  const Server elsewhere(home_, SOCK_STREAM, Home::kNeighbour, 80, [&visits](int socket) {
    const network::Descriptor visitor(::accept(socket, nullptr, nullptr));
    ++visits;
  });
  for (const char* control : {"http://192.168.77.9/control", "//192.168.77.9/control", "",
                              "/two words", "http://router.example/control"}) {
    EXPECT_EQ(UpnpStateOf({.control = control}), RouterState::Nonsense) << control;
  }
  EXPECT_EQ(visits, 0);
}

TEST_F(HostileRouterTest, ALieIsNonsense) {
  EXPECT_EQ(UpnpStateOf({.outerAddress = "my.router.example"}), RouterState::Nonsense);
  EXPECT_EQ(UpnpStateOf({.outerAddress = "127.0.0.1"}), RouterState::Nonsense);
  EXPECT_EQ(UpnpStateOf({.outerAddress = "255.255.255.255"}), RouterState::Nonsense);
  EXPECT_EQ(UpnpStateOf({.mapsTo = Home::kNeighbour}), RouterState::Nonsense);
  EXPECT_EQ(NatPmpStateOf({.outerAddress = "224.0.0.1"}), RouterState::Nonsense);
}

TEST_F(HostileRouterTest, AReasonIsShortPlainText) {
  const std::string reason = "606 \xFF\xFE\x1B[31m<b>&\xE2\x80\xAE" + std::string(1000, 'x');
  const UpnpRouter upnp(home_, {.refusal = reason});
  const RouterReport report = ReportOf(RouterLanguage::Upnp);
  EXPECT_EQ(report.state, RouterState::Refused);
  EXPECT_LE(report.reason.size(), 200u);
  EXPECT_EQ(report.reason.find(u'\x1B'), report.reason.npos);
  EXPECT_EQ(report.reason.find(u'\x202E'), report.reason.npos);
}

TEST_F(HostileRouterTest, ASearchThatIsAnsweredAThousandTimesTakesNoLonger) {
  const UpnpRouter upnp(home_, {.searchAnswers = 2000});
  EXPECT_EQ(ReportOf(RouterLanguage::Upnp).state, RouterState::Mapped);
  EXPECT_LE(upnp.TimesAsked("GET "), 4);
}

TEST_F(HostileRouterTest, GarbageInAnswerToASearchIsNonsense) {
  for (const std::string& answer :
       {std::string("\0\xFF garbage", 10), std::string("HTTP/1.1 200 OK\r\n"),
        std::string(1400, 'A'),
        std::string(
            "HTTP/1.1 999 X\r\nLOCATION: http://192.168.77.1:5000/description.xml\r\n\r\n")}) {
    EXPECT_NE(UpnpStateOf({.searchAnswer = answer}), RouterState::Mapped) << answer;
  }
}

// What a web server may do instead of an answer.
struct Attack {
  const char* name;
  std::function<void(int socket, const Server& server)> run;
};

void RepeatFor(int socket, const Server& server, std::string_view bytes,
               std::chrono::milliseconds pause) {
  while (!server.IsEnding() && SendAll(socket, bytes)) {
    std::this_thread::sleep_for(pause);
  }
}

std::string Deep(std::size_t size) {
  std::string xml = "HTTP/1.1 200 OK\r\n\r\n<?xml version=\"1.0\"?>";
  while (xml.size() < size) xml += "<serviceList><service><controlURL>/x</controlURL>";
  return xml;
}

const Attack kAttacks[] = {
    {"Garbage", [](int socket, const Server&) { SendAll(socket, std::string(3000, '\xFF')); }},
    {"Nothing", [](int, const Server&) {}},
    {"EndlessHead",
     [](int socket, const Server& server) {
       SendAll(socket, "HTTP/1.1 200 OK\r\n");
       RepeatFor(socket, server, "X-More: " + std::string(8000, 'x') + "\r\n", 0ms);
     }},
    {"EndlessBody",
     [](int socket, const Server& server) {
       SendAll(socket, "HTTP/1.1 200 OK\r\n\r\n");
       RepeatFor(socket, server, std::string(64 << 10, '<'), 0ms);
     }},
    {"EndlessChunks",
     [](int socket, const Server& server) {
       SendAll(socket, "HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n");
       RepeatFor(socket, server, "1\r\nx\r\n", 0ms);
     }},
    {"ByDrops",
     [](int socket, const Server& server) {
       SendAll(socket, "HTTP/1.1 200 OK\r\nContent-Length: 1000\r\n\r\n");
       RepeatFor(socket, server, "x", 100ms);
     }},
    {"NoAnswer",
     [](int socket, const Server&) {
       char byte = 0;
       ::recv(socket, &byte, 1, 0);
     }},
    {"LengthTooLong",
     [](int socket, const Server&) {
       SendAll(socket, "HTTP/1.1 200 OK\r\nContent-Length: 99999999999999999999\r\n\r\nx");
     }},
    {"LengthNegative",
     [](int socket, const Server&) {
       SendAll(socket, "HTTP/1.1 200 OK\r\nContent-Length: -1\r\n\r\nx");
     }},
    {"Elsewhere",
     [](int socket, const Server&) {
       SendAll(socket,
               "HTTP/1.1 302 Found\r\nLocation: http://192.168.77.9/\r\nContent-Length: 0\r\n\r\n");
     }},
    {"DeepXml", [](int socket, const Server&) { SendAll(socket, Deep(60'000)); }},
    {"XmlTooLong",
     [](int socket, const Server& server) {
       SendAll(socket, Deep(1000));
       RepeatFor(socket, server, "<serviceList><service><controlURL>/x</controlURL>", 0ms);
     }},
};

// Whatever the question is: the description, the address or the port.
class HostileAnswerTest : public RouterFixture,
                          public testing::WithParamInterface<std::tuple<Attack, const char*>> {};

long PeakMemoryInKilobytes() {
  std::ifstream status("/proc/self/status");
  for (std::string word; status >> word;) {
    long size = 0;
    if (word == "VmHWM:" && status >> size) return size;
  }
  return 0;
}

TEST_P(HostileAnswerTest, IsNonsenseInTimeAndTakesNoMemory) {
  const auto& [attack, question] = GetParam();
  UpnpManner manner;
  manner.attackOn = question;
  manner.attack = attack.run;
  std::ofstream("/proc/self/clear_refs") << "5";  // the peak begins now
  const long before = PeakMemoryInKilobytes();
  const auto start = std::chrono::steady_clock::now();
  RouterReport report;
  {
    const UpnpRouter upnp(home_, manner);
    report = ReportOf(RouterLanguage::Upnp);
  }
  EXPECT_EQ(report.state, RouterState::Nonsense);
  EXPECT_LT(std::chrono::steady_clock::now() - start, 18s);
  constexpr long kTwentyMegabytes = 20 << 10;
  EXPECT_LT(PeakMemoryInKilobytes() - before, kTwentyMegabytes);
}

INSTANTIATE_TEST_SUITE_P(EveryAttack, HostileAnswerTest,
                         testing::Combine(testing::ValuesIn(kAttacks),
                                          testing::Values("GET ", "#GetExternalIPAddress",
                                                          "#AddPortMapping")),
                         [](const auto& each) {
                           std::string name = std::get<0>(each.param).name;
                           for (const char c : std::string(std::get<1>(each.param))) {
                             if (std::isalpha(static_cast<unsigned char>(c))) name += c;
                           }
                           return name;
                         });

TEST_F(HostileRouterTest, NatPmpThatIsTooShortIsNonsense) {
  for (const std::size_t size : {0u, 1u, 11u}) {
    const std::string answer = std::string({'\0', '\x80'}) + std::string(20, '\0');
    EXPECT_EQ(NatPmpStateOf({.answer = [&](auto&) { return answer.substr(0, size); }}),
              RouterState::Nonsense)
        << size;
  }
}

TEST_F(HostileRouterTest, NatPmpOfAnotherPortOrWithoutTimeIsNonsense) {
  // A good answer with other bytes at a place: 9 is the machine's port, 11 the outer one, 12 to 15
  // the lifetime.
  const auto answerWith = [](std::size_t at, std::size_t count, char byte) {
    return [=](const std::string& question) -> std::optional<std::string> {
      if (question.size() < 12) {
        return std::string({'\0', '\x80', 0, 0, 0, 0, 0, 1, '\xCB', 0, 113, 7});
      }
      std::string answer({'\0', '\x82', 0, 0, 0, 0, 0, 1});
      answer += std::string({kAskedPort >> 8, static_cast<char>(kAskedPort & 255)}) +
                std::string({kAskedPort >> 8, static_cast<char>(kAskedPort & 255), 0, 0, 4, 0});
      answer.replace(at, count, count, byte);
      return answer;
    };
  };
  EXPECT_EQ(NatPmpStateOf({.answer = answerWith(0, 0, 0)}), RouterState::Mapped);
  EXPECT_EQ(NatPmpStateOf({.answer = answerWith(9, 1, 1)}), RouterState::Nonsense);
  EXPECT_EQ(NatPmpStateOf({.answer = answerWith(10, 2, 0)}), RouterState::Nonsense);
  EXPECT_EQ(NatPmpStateOf({.answer = answerWith(12, 4, 0)}), RouterState::Nonsense);
}

TEST_F(HostileRouterTest, NatPmpOfAnotherVersionIsARefusal) {
  const std::string answer({2, '\x80', 0, 1, 0, 0, 0, 0});
  const NatPmpRouter natPmp(home_, {.answer = [&](auto&) { return answer; }});
  const RouterReport report = ReportOf(RouterLanguage::NatPmp);
  EXPECT_EQ(report.state, RouterState::Refused);
  EXPECT_EQ(report.reason, u"1");
}

TEST_F(HostileRouterTest, NatPmpThatIsAnsweredAThousandTimesIsReadOnce) {
  EXPECT_EQ(NatPmpStateOf({.times = 2000}), RouterState::Mapped);
}

}  // namespace
}  // namespace verlume::router
