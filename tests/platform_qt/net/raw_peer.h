// A peer that is a bare system socket, and can do what the program never does.
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
  // Starts connecting to a port of this machine. The system accepts it into the backlog, if there
  // is room, before the program does. `sendBuffer` in bytes, 0 for the system's default.
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
  // An end of a connection that is there already.
  static RawPeer Of(int descriptor) {
    RawPeer peer;
    peer.descriptor_ = descriptor;
    return peer;
  }
  RawPeer(RawPeer&& other) noexcept
      : descriptor_(std::exchange(other.descriptor_, -1)), received_(std::move(other.received_)) {}
  RawPeer& operator=(RawPeer&&) = delete;
  ~RawPeer() { Close(); }

  // Whether the connection is established; true in the backlog already.
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

  // Sends without blocking; returns how many bytes the system took.
  std::size_t Send(std::string_view bytes) {
    const ssize_t sent = ::send(descriptor_, bytes.data(), bytes.size(), MSG_NOSIGNAL);
    return sent < 0 ? 0 : static_cast<std::size_t>(sent);
  }
  // Appends to Received(); true once the other side has closed, reset or refused the connection.
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

  // Shuts down sending, and goes on receiving.
  void HalfClose() { ::shutdown(descriptor_, SHUT_WR); }
  void Close() {
    if (descriptor_ >= 0) ::close(std::exchange(descriptor_, -1));
  }
  // Closes with an RST.
  void Reset() {
    const linger none = {1, 0};
    ::setsockopt(descriptor_, SOL_SOCKET, SO_LINGER, &none, sizeof none);
    Close();
  }

 private:
  RawPeer() : descriptor_(-1) {}

  int descriptor_;
  std::string received_;
};

}  // namespace verlume::qt
