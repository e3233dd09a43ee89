#include "platform_qt/os/open_socket.h"

#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>

#include <array>
#include <cerrno>

namespace verlume::qt {
namespace {

OpenSocket OpenIpv4(int type) {
  return OpenSocket(::socket(AF_INET, type | SOCK_NONBLOCK | SOCK_CLOEXEC, 0));
}

sockaddr_in NativePlace(const Ipv4Place& place) {
  sockaddr_in native{};
  native.sin_family = AF_INET;
  native.sin_port = htons(place.port);
  native.sin_addr.s_addr = place.address;
  return native;
}

Ipv4Place PlaceOf(const sockaddr_in& native) {
  return {native.sin_addr.s_addr, ntohs(native.sin_port)};
}

SocketBytes BytesOf(ssize_t result) {
  if (result >= 0) return {SocketStep::Done, static_cast<std::size_t>(result)};
  return {errno == EAGAIN ? SocketStep::Later : SocketStep::Failed, 0};
}

}  // namespace

OpenSocket OpenSocket::Stream() {
  return OpenIpv4(SOCK_STREAM);
}

OpenSocket OpenSocket::Datagrams() {
  return OpenIpv4(SOCK_DGRAM);
}

bool OpenSocket::Bind(const Ipv4Place& from) const {
  const sockaddr_in native = NativePlace(from);
  return ::bind(static_cast<int>(number_), reinterpret_cast<const sockaddr*>(&native),
                sizeof native) == 0;
}

SocketStep OpenSocket::Connect(const Ipv4Place& to) const {
  const sockaddr_in native = NativePlace(to);
  const int result = ::connect(static_cast<int>(number_),
                               reinterpret_cast<const sockaddr*>(&native), sizeof native);
  if (result == 0) return SocketStep::Done;
  return errno == EINPROGRESS ? SocketStep::Later : SocketStep::Failed;
}

bool OpenSocket::HasConnected() const {
  int error = 0;
  socklen_t length = sizeof error;
  return ::getsockopt(static_cast<int>(number_), SOL_SOCKET, SO_ERROR, &error, &length) == 0 &&
         error == 0;
}

std::optional<Ipv4Place> OpenSocket::LocalPlace() const {
  sockaddr_in native{};
  socklen_t length = sizeof native;
  if (::getsockname(static_cast<int>(number_), reinterpret_cast<sockaddr*>(&native), &length) !=
      0) {
    return std::nullopt;
  }
  return PlaceOf(native);
}

void OpenSocket::AskGroupsFrom(Ipv4 local, int hops) const {
  const in_addr from{local};
  ::setsockopt(static_cast<int>(number_), IPPROTO_IP, IP_MULTICAST_IF, &from, sizeof from);
  ::setsockopt(static_cast<int>(number_), IPPROTO_IP, IP_MULTICAST_TTL, &hops, sizeof hops);
}

SocketBytes OpenSocket::Send(std::string_view bytes) const {
  return BytesOf(::send(static_cast<int>(number_), bytes.data(), bytes.size(), MSG_NOSIGNAL));
}

SocketBytes OpenSocket::SendTo(std::string_view bytes, const Ipv4Place& to) const {
  const sockaddr_in native = NativePlace(to);
  return BytesOf(::sendto(static_cast<int>(number_), bytes.data(), bytes.size(), MSG_NOSIGNAL,
                          reinterpret_cast<const sockaddr*>(&native), sizeof native));
}

SocketBytes OpenSocket::Receive(std::span<char> buffer) const {
  return BytesOf(::recv(static_cast<int>(number_), buffer.data(), buffer.size(), 0));
}

SocketBytes OpenSocket::ReceiveFrom(std::span<char> buffer, Ipv4Place& sender) const {
  sockaddr_in native{};
  socklen_t length = sizeof native;
  const SocketBytes bytes =
      BytesOf(::recvfrom(static_cast<int>(number_), buffer.data(), buffer.size(), 0,
                         reinterpret_cast<sockaddr*>(&native), &length));
  sender = PlaceOf(native);
  return bytes;
}

Waited WaitForSocket(SocketNumber socket, Readiness wanted, SocketNumber interrupt,
                     int milliseconds) {
  const short event = wanted == Readiness::Read ? POLLIN : POLLOUT;
  // poll passes over a negative descriptor.
  std::array<pollfd, 2> waiting = {
      {{static_cast<int>(socket), event, 0}, {static_cast<int>(interrupt), POLLIN, 0}}};
  if (::poll(waiting.data(), waiting.size(), milliseconds) < 0) return {};
  return {waiting[0].revents != 0, waiting[1].revents != 0};
}

}  // namespace verlume::qt
