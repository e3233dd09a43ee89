#include <winsock2.h>

#include "platform_qt/net/raw_peer.h"

namespace verlume::qt {
namespace {

SOCKET HandleOf(SocketNumber number) {
  return static_cast<SOCKET>(number);
}

template <class Value>
void SetOption(SocketNumber number, int option, const Value& value) {
  ::setsockopt(HandleOf(number), SOL_SOCKET, option, reinterpret_cast<const char*>(&value),
               sizeof value);
}

}  // namespace

RawPeer::RawPeer(std::int32_t port, int sendBuffer)
    : number_(static_cast<SocketNumber>(::socket(AF_INET, SOCK_STREAM, 0))) {
  u_long isNonBlocking = 1;
  ::ioctlsocket(HandleOf(number_), FIONBIO, &isNonBlocking);
  if (sendBuffer > 0) SetOption(number_, SO_SNDBUF, sendBuffer);
  sockaddr_in address = {};
  address.sin_family = AF_INET;
  address.sin_port = htons(static_cast<std::uint16_t>(port));
  address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
  ::connect(HandleOf(number_), reinterpret_cast<const sockaddr*>(&address), sizeof address);
}

bool RawPeer::IsConnected() const {
  sockaddr_in address = {};
  int size = sizeof address;
  return ::getpeername(HandleOf(number_), reinterpret_cast<sockaddr*>(&address), &size) == 0;
}

std::int32_t RawPeer::OwnPort() const {
  sockaddr_in address = {};
  int size = sizeof address;
  ::getsockname(HandleOf(number_), reinterpret_cast<sockaddr*>(&address), &size);
  return ntohs(address.sin_port);
}

std::size_t RawPeer::Send(std::string_view bytes) {
  const int sent = ::send(HandleOf(number_), bytes.data(), static_cast<int>(bytes.size()), 0);
  return sent < 0 ? 0 : static_cast<std::size_t>(sent);
}

bool RawPeer::HasEnded() {
  char buffer[4096];
  for (;;) {
    const int size = ::recv(HandleOf(number_), buffer, sizeof buffer, 0);
    if (size == 0) return true;
    if (size < 0) {
      const int error = ::WSAGetLastError();
      return error != WSAEWOULDBLOCK && error != WSAENOTCONN;
    }
    received_.append(buffer, static_cast<std::size_t>(size));
  }
}

void RawPeer::Reset() {
  const linger none = {1, 0};
  SetOption(number_, SO_LINGER, none);
  Close();
}

}  // namespace verlume::qt
