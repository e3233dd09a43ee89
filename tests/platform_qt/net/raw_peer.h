// A peer made of nothing but the system's own socket: it does what no copy of the program would.
#pragma once

#include <arpa/inet.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

#include <cerrno>
#include <cstdint>
#include <string>
#include <string_view>
#include <utility>

namespace verlume::qt {

class RawPeer {
 public:
  // Begins a call to a port of this machine. The system there takes it whether or not the program
  // does, as long as it has room for callers that wait. `sendBuffer` in bytes, 0 for the usual.
  explicit RawPeer(std::int32_t port, int sendBuffer = 0)
      : descriptor_(::socket(AF_INET, SOCK_STREAM | SOCK_NONBLOCK, 0)) {
    if (sendBuffer > 0) {
      ::setsockopt(descriptor_, SOL_SOCKET, SO_SNDBUF, &sendBuffer, sizeof sendBuffer);
    }
    sockaddr_in address = {};
    address.sin_family = AF_INET;
    address.sin_port = htons(static_cast<std::uint16_t>(port));
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    ::connect(descriptor_, reinterpret_cast<const sockaddr*>(&address), sizeof address);
  }
  RawPeer(RawPeer&& other) noexcept : descriptor_(std::exchange(other.descriptor_, -1)) {}
  RawPeer& operator=(RawPeer&&) = delete;
  ~RawPeer() { Close(); }

  // Whether the call has got through: true for who waits to be accepted, too.
  bool IsConnected() const {
    sockaddr_in address = {};
    socklen_t size = sizeof address;
    return ::getpeername(descriptor_, reinterpret_cast<sockaddr*>(&address), &size) == 0;
  }
  std::int32_t OwnPort() const {
    sockaddr_in address = {};
    socklen_t size = sizeof address;
    ::getsockname(descriptor_, reinterpret_cast<sockaddr*>(&address), &size);
    return ntohs(address.sin_port);
  }

  // How much of the bytes the system takes without waiting.
  std::size_t Send(std::string_view bytes) {
    const ssize_t sent = ::send(descriptor_, bytes.data(), bytes.size(), MSG_NOSIGNAL);
    return sent < 0 ? 0 : static_cast<std::size_t>(sent);
  }
  // Adds to Received(); true once the other side has closed, cut or refused the connection.
  bool HasEnded() {
    char buffer[4096];
    for (;;) {
      const ssize_t size = ::recv(descriptor_, buffer, sizeof buffer, 0);
      if (size == 0) return true;
      if (size < 0) return errno != EAGAIN && errno != ENOTCONN;
      received_.append(buffer, static_cast<std::size_t>(size));
    }
  }
  const std::string& Received() const { return received_; }

  // Says that it will send no more, and goes on listening.
  void HalfClose() { ::shutdown(descriptor_, SHUT_WR); }
  void Close() {
    if (descriptor_ >= 0) ::close(std::exchange(descriptor_, -1));
  }
  // Ends the connection as a machine does that knows nothing of it.
  void Reset() {
    const linger none = {1, 0};
    ::setsockopt(descriptor_, SOL_SOCKET, SO_LINGER, &none, sizeof none);
    Close();
  }

 private:
  int descriptor_;
  std::string received_;
};

}  // namespace verlume::qt
