#include "network/interface_setup.h"

#include <arpa/inet.h>
#include <linux/rtnetlink.h>
#include <net/if.h>
#include <sys/ioctl.h>
#include <sys/socket.h>

#include <array>
#include <cstring>

#include "network/descriptor.h"

namespace verlume::network {
namespace {

constexpr std::size_t kLongestAddress = 16;

struct BinaryAddress {
  std::uint8_t family = 0;
  std::array<unsigned char, kLongestAddress> bytes{};
  std::size_t size = 0;
};

BinaryAddress Parse(const std::string& text) {
  BinaryAddress address;
  const bool isIPv6 = text.find(':') != text.npos;
  address.family = isIPv6 ? AF_INET6 : AF_INET;
  address.size = isIPv6 ? sizeof(in6_addr) : sizeof(in_addr);
  if (::inet_pton(address.family, text.c_str(), address.bytes.data()) != 1) {
    throw std::system_error(EINVAL, std::generic_category(), text);
  }
  return address;
}

// The netlink request that adds an address.
struct AddressRequest {
  nlmsghdr header{};
  ifaddrmsg message{};
  std::array<unsigned char, 2 * RTA_SPACE(kLongestAddress)> attributes{};

  void Append(unsigned short type, const BinaryAddress& address) {
    rtattr attribute{};
    attribute.rta_type = type;
    attribute.rta_len = static_cast<unsigned short>(RTA_LENGTH(address.size));
    unsigned char* at = reinterpret_cast<unsigned char*>(this) + header.nlmsg_len;
    std::memcpy(at, &attribute, sizeof attribute);
    std::memcpy(at + RTA_LENGTH(0), address.bytes.data(), address.size);
    header.nlmsg_len += static_cast<unsigned>(RTA_SPACE(address.size));
  }
};

// Sends the request and waits for the kernel's answer to it.
void Ask(const AddressRequest& request) {
  const Descriptor kernel(
      Checked(::socket(AF_NETLINK, SOCK_RAW | SOCK_CLOEXEC, NETLINK_ROUTE), "netlink"));
  Checked(static_cast<int>(::send(kernel.Number(), &request, request.header.nlmsg_len, 0)),
          "ask for an address");
  struct {
    nlmsghdr header;
    nlmsgerr answer;
    std::array<unsigned char, 1024> rest;
  } reply{};
  Checked(static_cast<int>(::recv(kernel.Number(), &reply, sizeof reply, 0)), "netlink's answer");
  if (reply.answer.error != 0) {
    throw std::system_error(-reply.answer.error, std::generic_category(), "add an address");
  }
}

}  // namespace

void SetUp(const std::string& device) {
  const Descriptor control(Checked(::socket(AF_INET, SOCK_DGRAM | SOCK_CLOEXEC, 0), "socket"));
  ifreq request{};
  device.copy(request.ifr_name, IFNAMSIZ - 1);
  Checked(::ioctl(control.Number(), SIOCGIFFLAGS, &request), "read a device's flags");
  request.ifr_flags |= IFF_UP | IFF_RUNNING;
  Checked(::ioctl(control.Number(), SIOCSIFFLAGS, &request), "set a device up");
}

void AddAddress(const std::string& device, const std::string& address, int prefixLength) {
  const BinaryAddress binary = Parse(address);
  AddressRequest request;
  request.header.nlmsg_type = RTM_NEWADDR;
  request.header.nlmsg_flags = NLM_F_REQUEST | NLM_F_ACK | NLM_F_CREATE | NLM_F_EXCL;
  request.header.nlmsg_len = NLMSG_LENGTH(sizeof(ifaddrmsg));
  request.message.ifa_family = binary.family;
  request.message.ifa_prefixlen = static_cast<unsigned char>(prefixLength);
  request.message.ifa_flags = IFA_F_NODAD;
  request.message.ifa_index = ::if_nametoindex(device.c_str());
  request.Append(IFA_LOCAL, binary);
  request.Append(IFA_ADDRESS, binary);
  Ask(request);
}

}  // namespace verlume::network
