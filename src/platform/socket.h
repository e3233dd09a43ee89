// The TCP socket sckControl: it listens for one call or makes one, and holds one connection.
//
// Text is Windows-1253 on the wire; a character outside it is sent as '?'. Events are raised on the
// user-interface thread, never from inside an operation of the socket.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

namespace verlume {

// The classic numbers; text is sent only in Connected.
enum class SocketState { Closed = 0, Listening = 2, Connecting = 6, Connected = 7 };

// Of what is sent: a line that people read, or a word between the programs.
enum class TextKind { Line, Signal };

// What fits into the 16 bits with a sign in which callers keep a port.
inline constexpr std::int32_t kGreatestNameablePort = 32767;

class Socket {
 public:
  virtual ~Socket() = default;

  virtual SocketState State() const = 0;

  // The port to listen on, 0 for a free one that every caller can name, up to
  // kGreatestNameablePort; once listening or connected, the port in use.
  virtual void SetLocalPort(std::int32_t port) = 0;
  virtual std::int32_t LocalPort() const = 0;
  // The name or address to call, and its port.
  virtual void SetRemoteHost(std::u16string_view host) = 0;
  virtual void SetRemotePort(std::int32_t port) = 0;
  // The peer's, or the asking caller's; "" and the last port set where there is none. An IPv4 peer
  // is shown as plain IPv4 however it came.
  virtual std::u16string RemoteHostIP() const = 0;
  virtual std::int32_t RemotePort() const = 0;
  // The machine's own address (not a loopback one where there is another) and host name.
  virtual std::u16string LocalIP() const = 0;
  virtual std::u16string LocalHostName() const = 0;

  // Listens on the local port, IPv4 and IPv6. Throws RunTimeFailure 10048 when the port is taken,
  // 70 when it is not allowed. Raises onConnectionRequest for one caller; further callers wait
  // unanswered until the socket is closed.
  virtual void Listen() = 0;
  // Calls the remote host. Raises onConnect, or onClose within 15 s when no connection can be made.
  virtual void Connect() = 0;
  // Takes the call `requestId` after Close has ended the listening. A caller that has left
  // meanwhile, or an id that is not known, raises onClose.
  virtual void Accept(std::int64_t requestId) = 0;
  // Ends whatever there is; no event but onUndelivered follows. Texts that wait are still sent, for
  // 2 s at most.
  virtual void Close() = 0;

  // One text as one send, in the order of the calls; returns at once. A text waits until the peer's
  // machine has acknowledged all before it, so that none arrives joined with another. Ignored
  // unless Connected.
  virtual void SendData(std::u16string_view text, TextKind kind) = 0;
  // How many of the lines sent over the connection the peer's machine has not acknowledged; 0
  // unless Connected.
  virtual std::size_t LinesWaiting() const = 0;
  // Sends what waits of connections that were closed, at once: comes back when it is acknowledged,
  // or after 2 s. onUndelivered is raised meanwhile.
  virtual void FinishSending() = 0;
  // All that the arrival being raised holds; "" when nothing waits.
  virtual std::u16string GetData() = 0;

  std::function<void(std::int64_t requestId)> onConnectionRequest;
  std::function<void()> onConnect;
  // One arrival. A rich text whose pieces are still on their way is held back until it is whole
  // (20 s after its last byte or 4 MiB at most); everything else is delivered at once. No arrival
  // comes before the dialogue pane has taken in the one before it.
  std::function<void(std::int32_t bytesTotal)> onDataArrival;
  // The peer's machine has acknowledged lines: LinesWaiting is less than it was.
  std::function<void()> onAcknowledged;
  // A connection has ended, and the peer's machine never acknowledged the last `lines` lines sent
  // over it. Raised right before onClose, or up to 3 s after Close.
  std::function<void(std::size_t lines)> onUndelivered;
  // The peer closed, the connection broke, or the call could not be made. What had arrived before
  // has been delivered.
  std::function<void()> onClose;
};

}  // namespace verlume
