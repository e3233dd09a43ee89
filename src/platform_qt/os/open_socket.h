// A socket over IPv4 that is open during the lifetime of an object and never makes its caller wait;
// each system in a file of its own. Nothing here throws.
#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <string_view>
#include <utility>

#include "platform_qt/os/ipv4.h"
#include "platform_qt/os/tcp.h"

namespace verlume::qt {

enum class SocketStep {
  Done,
  Later,  // not now: it can be waited for
  Failed,
};

struct SocketBytes {
  SocketStep step = SocketStep::Failed;
  std::size_t size = 0;  // how many were sent or received; received 0 by TCP: the peer has ended
};

class OpenSocket {
 public:
  OpenSocket() = default;
  explicit OpenSocket(SocketNumber number) : number_(number) {}
  OpenSocket(OpenSocket&& other) noexcept : number_(std::exchange(other.number_, kNoSocket)) {}
  OpenSocket& operator=(OpenSocket&& other) noexcept {
    std::swap(number_, other.number_);
    return *this;
  }
  ~OpenSocket() {
    if (IsOpen()) CloseSocket(number_);
  }

  // Not open when the system has none left.
  static OpenSocket Stream();     // TCP
  static OpenSocket Datagrams();  // UDP

  bool IsOpen() const { return number_ != kNoSocket; }
  SocketNumber Number() const { return number_; }

  bool Bind(const Ipv4Place& from) const;
  // Later: it is settled when the socket can be written to. UDP: only the peer is heard.
  SocketStep Connect(const Ipv4Place& to) const;
  // Whether a connection that came later has come.
  bool HasConnected() const;
  // The place of this end.
  std::optional<Ipv4Place> LocalPlace() const;
  // Through which of this machine's addresses groups are asked, and how many routers pass it on.
  void AskGroupsFrom(Ipv4 local, int hops) const;

  SocketBytes Send(std::string_view bytes) const;
  SocketBytes SendTo(std::string_view bytes, const Ipv4Place& to) const;
  // What a datagram has beyond the buffer's end is lost.
  SocketBytes Receive(std::span<char> buffer) const;
  SocketBytes ReceiveFrom(std::span<char> buffer, Ipv4Place& sender) const;

 private:
  SocketNumber number_ = kNoSocket;
};

enum class Readiness { Read, Write };

struct Waited {
  bool isReady = false;        // or has an error, or was closed by the peer
  bool isInterrupted = false;  // `interrupt` can be read
};

inline constexpr int kWithoutEnd = -1;

// Waits until something can be done with `socket`, `interrupt` can be read, or the time is up; a
// signal may end it earlier. kNoSocket in one of the places is not waited for.
Waited WaitForSocket(SocketNumber socket, Readiness wanted, SocketNumber interrupt,
                     int milliseconds);

}  // namespace verlume::qt
