// Asks this machine's router for a port, says what it reports, and takes one call there. For
// tools/check_with_miniupnpd.
//   verlume_router_probe PORT
// Prints a line for each language, then "called" when a call has come, and gives the port back.
// Exit code 1 when a language was not granted the port, or nobody has called.
#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>

#include <QCoreApplication>
#include <cstdio>
#include <cstdlib>

#include "platform_qt/os/descriptor_posix.h"
#include "platform_qt/router/router.h"
#include "router/home.h"

namespace {

using namespace verlume;

bool Print(const char* name, const RouterReport& report) {
  const auto text = [](const std::u16string& from) {
    return std::string(from.begin(), from.end());
  };
  const bool isMapped = report.state == RouterState::Mapped;
  std::printf("%s: %s, %s port %d %s\n", name, isMapped ? "mapped" : "not mapped",
              text(report.outerAddress).c_str(), report.outerPort, text(report.reason).c_str());
  std::fflush(stdout);
  return isMapped;
}

// Within 20 s.
bool IsCalled(std::uint16_t port) {
  const qt::OwnedDescriptor socket(::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0));
  sockaddr_in place{};
  place.sin_family = AF_INET;
  place.sin_port = htons(port);
  if (::bind(socket.Number(), reinterpret_cast<const sockaddr*>(&place), sizeof place) != 0 ||
      ::listen(socket.Number(), 1) != 0) {
    return false;
  }
  pollfd waiting{socket.Number(), POLLIN, 0};
  return ::poll(&waiting, 1, 20'000) > 0;
}

}  // namespace

int main(int argc, char* argv[]) {
  QCoreApplication application(argc, argv);
  const int port = argc > 1 ? std::atoi(argv[1]) : 0;
  qt::QtRouter router;
  router.MapPort(port);
  router::WaitFor([&router] {
    return router.Report(RouterLanguage::Upnp).state != RouterState::Asking &&
           router.Report(RouterLanguage::NatPmp).state != RouterState::Asking;
  });
  const bool byUpnp = Print("UPnP", router.Report(RouterLanguage::Upnp));
  const bool byNatPmp = Print("NAT-PMP", router.Report(RouterLanguage::NatPmp));
  const bool isCalled = IsCalled(static_cast<std::uint16_t>(port));
  std::puts(isCalled ? "called" : "not called");
  return byUpnp && byNatPmp && isCalled ? 0 : 1;
}
