// A peer that is a bare system socket, and can do what the program never does. Each system in a
// file of its own.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>

#include "platform_qt/os/tcp.h"

namespace verlume::qt {

class RawPeer {
 public:
  // Starts connecting to a port of this machine. The system accepts it into the backlog, if there
  // is room, before the program does. `sendBuffer` in bytes, 0 for the system's default.
  explicit RawPeer(std::int32_t port, int sendBuffer = 0);
  // An end of a connection that is there already.
  static RawPeer Of(SocketNumber number) {
    RawPeer peer;
    peer.number_ = number;
    return peer;
  }
  RawPeer(RawPeer&& other) noexcept
      : number_(std::exchange(other.number_, kNoSocket)), received_(std::move(other.received_)) {}
  RawPeer& operator=(RawPeer&&) = delete;
  ~RawPeer() { Close(); }

  // Whether the connection is established; true in the backlog already.
  bool IsConnected() const;
  std::int32_t OwnPort() const;

  // Sends without blocking; returns how many bytes the system took.
  std::size_t Send(std::string_view bytes);
  // Appends to Received(); true once the other side has closed, reset or refused the connection.
  bool HasEnded();
  const std::string& Received() const { return received_; }

  // Shuts down sending, and goes on receiving.
  void HalfClose() { EndSending(number_); }
  void Close() {
    if (number_ != kNoSocket) CloseSocket(std::exchange(number_, kNoSocket));
  }
  // Closes with an RST.
  void Reset();

 private:
  RawPeer() = default;

  SocketNumber number_ = kNoSocket;
  std::string received_;
};

}  // namespace verlume::qt
