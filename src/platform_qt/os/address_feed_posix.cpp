#include <linux/netlink.h>
#include <linux/rtnetlink.h>
#include <sys/socket.h>

#include <array>
#include <cerrno>

#include "platform_qt/os/address_feed.h"
#include "platform_qt/os/descriptor_posix.h"

namespace verlume::qt {
namespace {

int OpenAddressNews() {
  const int kernel = ::socket(AF_NETLINK, SOCK_RAW | SOCK_CLOEXEC | SOCK_NONBLOCK, NETLINK_ROUTE);
  sockaddr_nl wanted{};
  wanted.nl_family = AF_NETLINK;
  wanted.nl_groups = RTMGRP_IPV4_IFADDR | RTMGRP_IPV6_IFADDR;
  if (kernel >= 0 && ::bind(kernel, reinterpret_cast<sockaddr*>(&wanted), sizeof wanted) != 0) {
    ::close(kernel);
    return -1;
  }
  return kernel;
}

bool TellsOfGone(const nlmsghdr* message, std::size_t size) {
  for (; NLMSG_OK(message, size); message = NLMSG_NEXT(message, size)) {
    if (message->nlmsg_type == RTM_DELADDR) return true;
  }
  return false;
}

}  // namespace

struct AddressFeed::System {
  OwnedDescriptor kernel{OpenAddressNews()};
};

AddressFeed::AddressFeed() : system_(std::make_unique<System>()) {}

AddressFeed::~AddressFeed() = default;

SocketNumber AddressFeed::Number() const {
  return system_->kernel.Number();
}

AddressNews AddressFeed::Read() {
  AddressNews news = AddressNews::Touched;
  // What comes faster than it is read is read with the next event.
  constexpr int kMostAtOnce = 100;
  for (int i = 0; i < kMostAtOnce; ++i) {
    alignas(nlmsghdr) std::array<char, 8192> bytes{};
    sockaddr_nl sender{};
    socklen_t length = sizeof sender;
    const ssize_t size = ::recvfrom(system_->kernel.Number(), bytes.data(), bytes.size(), 0,
                                    reinterpret_cast<sockaddr*>(&sender), &length);
    if (size < 0 && errno == ENOBUFS) news = AddressNews::Gone;  // some were lost
    if (size <= 0) break;
    const bool isFromKernel = sender.nl_pid == 0;
    const auto* messages = reinterpret_cast<const nlmsghdr*>(bytes.data());
    if (isFromKernel && TellsOfGone(messages, static_cast<std::size_t>(size))) {
      news = AddressNews::Gone;
    }
  }
  return news;
}

}  // namespace verlume::qt
