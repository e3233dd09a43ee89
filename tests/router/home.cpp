#include "router/home.h"

#include <arpa/inet.h>
#include <net/route.h>
#include <sys/ioctl.h>
#include <sys/socket.h>

#include <cstdlib>
#include <stdexcept>

#include "network/interface_setup.h"

namespace verlume::router {
namespace {

using network::Checked;

void SetAddress(sockaddr& place, const std::string& text) {
  auto* address = reinterpret_cast<sockaddr_in*>(&place);
  address->sin_family = AF_INET;
  ::inet_pton(AF_INET, text.c_str(), &address->sin_addr);
}

}  // namespace

Home::Home() {
  machine_.Run([] { network::AddAddress(kDevice, kMachine, 24); });
  router_.Run([] {
    network::AddAddress(kDevice, kRouter, 24);
    network::AddAddress(kDevice, kNeighbour, 24);
  });
}

void Home::OnMachine(const std::function<void()>& action) const {
  machine_.Run([&action] {
    const QEventLoop eventsOfThisThread;
    action();
  });
}

void Home::AddDefaultRoute(const std::string& gateway, int metric) const {
  machine_.Run([&] {
    const network::Descriptor control(
        Checked(::socket(AF_INET, SOCK_DGRAM | SOCK_CLOEXEC, 0), "socket"));
    rtentry route{};
    SetAddress(route.rt_dst, "0.0.0.0");
    SetAddress(route.rt_genmask, "0.0.0.0");
    SetAddress(route.rt_gateway, gateway);
    route.rt_flags = RTF_UP | RTF_GATEWAY;
    route.rt_metric = static_cast<short>(metric + 1);
    Checked(::ioctl(control.Number(), SIOCADDRT, &route), "add a route");
  });
}

void Home::Ip(const std::string& arguments) const {
  machine_.Run([&] {
    if (std::system(("ip " + arguments).c_str()) != 0) throw std::runtime_error("ip " + arguments);
  });
}

}  // namespace verlume::router
