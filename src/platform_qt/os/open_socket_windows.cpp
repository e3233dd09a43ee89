#include "platform_qt/os/open_socket.h"

#include <winsock2.h>
#include <ws2tcpip.h>

#include <array>

namespace verlume::qt {
namespace {

// Windows wants to know who uses sockets. It forgets with the process.
bool HasSockets() {
  static const bool has = [] {
    WSADATA about{};
    return ::WSAStartup(MAKEWORD(2, 2), &about) == 0;
  }();
  return has;
}

OpenSocket OpenIpv4(int type) {
  if (!HasSockets()) return {};
  const SOCKET number =
      ::WSASocketW(AF_INET, type, 0, nullptr, 0, WSA_FLAG_OVERLAPPED | WSA_FLAG_NO_HANDLE_INHERIT);
  if (number == INVALID_SOCKET) return {};
  OpenSocket socket(static_cast<SocketNumber>(number));
  u_long doesNotWait = 1;
  return ::ioctlsocket(number, FIONBIO, &doesNotWait) == 0 ? std::move(socket) : OpenSocket();
}

sockaddr_in NativePlace(const Ipv4Place& place) {
  sockaddr_in native{};
  native.sin_family = AF_INET;
  native.sin_port = ::htons(place.port);
  native.sin_addr.s_addr = place.address;
  return native;
}

Ipv4Place PlaceOf(const sockaddr_in& native) {
  return {native.sin_addr.s_addr, ::ntohs(native.sin_port)};
}

SocketStep StepOfLastError() {
  return ::WSAGetLastError() == WSAEWOULDBLOCK ? SocketStep::Later : SocketStep::Failed;
}

SocketBytes BytesOf(int result) {
  if (result >= 0) return {SocketStep::Done, static_cast<std::size_t>(result)};
  return {StepOfLastError(), 0};
}

// A datagram that is longer than the buffer is an error here, and its beginning has been received.
SocketBytes ReceivedBytes(int result, std::span<char> buffer) {
  if (result < 0 && ::WSAGetLastError() == WSAEMSGSIZE) return {SocketStep::Done, buffer.size()};
  return BytesOf(result);
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
  return ::bind(static_cast<SOCKET>(number_), reinterpret_cast<const sockaddr*>(&native),
                sizeof native) == 0;
}

SocketStep OpenSocket::Connect(const Ipv4Place& to) const {
  const sockaddr_in native = NativePlace(to);
  const int result = ::connect(static_cast<SOCKET>(number_),
                               reinterpret_cast<const sockaddr*>(&native), sizeof native);
  return result == 0 ? SocketStep::Done : StepOfLastError();
}

bool OpenSocket::HasConnected() const {
  int error = 0;
  int length = sizeof error;
  return ::getsockopt(static_cast<SOCKET>(number_), SOL_SOCKET, SO_ERROR,
                      reinterpret_cast<char*>(&error), &length) == 0 &&
         error == 0;
}

std::optional<Ipv4Place> OpenSocket::LocalPlace() const {
  sockaddr_in native{};
  int length = sizeof native;
  if (::getsockname(static_cast<SOCKET>(number_), reinterpret_cast<sockaddr*>(&native), &length) !=
      0) {
    return std::nullopt;
  }
  return PlaceOf(native);
}

void OpenSocket::AskGroupsFrom(Ipv4 local, int hops) const {
  const auto count = static_cast<DWORD>(hops);
  ::setsockopt(static_cast<SOCKET>(number_), IPPROTO_IP, IP_MULTICAST_IF,
               reinterpret_cast<const char*>(&local), sizeof local);
  ::setsockopt(static_cast<SOCKET>(number_), IPPROTO_IP, IP_MULTICAST_TTL,
               reinterpret_cast<const char*>(&count), sizeof count);
}

SocketBytes OpenSocket::Send(std::string_view bytes) const {
  return BytesOf(
      ::send(static_cast<SOCKET>(number_), bytes.data(), static_cast<int>(bytes.size()), 0));
}

SocketBytes OpenSocket::SendTo(std::string_view bytes, const Ipv4Place& to) const {
  const sockaddr_in native = NativePlace(to);
  return BytesOf(::sendto(static_cast<SOCKET>(number_), bytes.data(),
                          static_cast<int>(bytes.size()), 0,
                          reinterpret_cast<const sockaddr*>(&native), sizeof native));
}

SocketBytes OpenSocket::Receive(std::span<char> buffer) const {
  return ReceivedBytes(
      ::recv(static_cast<SOCKET>(number_), buffer.data(), static_cast<int>(buffer.size()), 0),
      buffer);
}

SocketBytes OpenSocket::ReceiveFrom(std::span<char> buffer, Ipv4Place& sender) const {
  sockaddr_in native{};
  int length = sizeof native;
  const int result =
      ::recvfrom(static_cast<SOCKET>(number_), buffer.data(), static_cast<int>(buffer.size()), 0,
                 reinterpret_cast<sockaddr*>(&native), &length);
  const SocketBytes bytes = ReceivedBytes(result, buffer);
  sender = PlaceOf(native);
  return bytes;
}

// WSAPoll fails over a socket that is none, so that only those that are there are handed over.
// Before Windows 10 2004 it does not report a connection that was refused: then the time runs out.
Waited WaitForSocket(SocketNumber socket, Readiness wanted, SocketNumber interrupt,
                     int milliseconds) {
  std::array<WSAPOLLFD, 2> waiting{};
  ULONG count = 0;
  const auto add = [&](SocketNumber each, short event) -> const WSAPOLLFD* {
    if (each == kNoSocket) return nullptr;
    waiting[count] = {static_cast<SOCKET>(each), event, 0};
    return &waiting[count++];
  };
  const WSAPOLLFD* first = add(socket, wanted == Readiness::Read ? POLLRDNORM : POLLWRNORM);
  const WSAPOLLFD* second = add(interrupt, POLLRDNORM);
  if (count == 0) {
    ::Sleep(static_cast<DWORD>(milliseconds));
    return {};
  }
  if (::WSAPoll(waiting.data(), count, milliseconds) < 0) return {};
  return {first && first->revents != 0, second && second->revents != 0};
}

}  // namespace verlume::qt
